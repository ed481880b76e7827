// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/printQueue.h"

#include "core/text.h"
#include "sill/reports.h"
#include "ui/printing/printQueueWindow.h"
#include "ui/widgets/qtText.h"

#include <QEventLoop>

#include <utility>

namespace boulix {

namespace {

constexpr int windowAfter = 1000; // milliseconds: a print system that answers at once shows none

} // namespace

PrintQueue::PrintQueue() : window_(std::make_unique<PrintQueueWindow>(*this)) {
    slow_.setSingleShot(true);
    slow_.setInterval(windowAfter);
    connect(&slow_, &QTimer::timeout, window_.get(), &PrintQueueWindow::show);
}

PrintQueue::~PrintQueue() = default;

void PrintQueue::add(PrintOrder order) {
    waiting_.push_back(std::move(order));
    if (!current_)
        startNext();
    tellChange();
}

bool PrintQueue::finish() {
    if (isIdle())
        return true;
    refused_ = false;
    QEventLoop loop;
    bool stays = false;
    connect(this, &PrintQueue::becameIdle, &loop, &QEventLoop::quit);
    connect(window_.get(), &PrintQueueWindow::staying, &loop, [&] {
        stays = true;
        loop.quit();
    });
    window_->waitForEnd(true);
    loop.exec();
    window_->waitForEnd(false);
    if (current_)
        window_->show(); // it is a slow one, for sure
    return !stays && !refused_;
}

void PrintQueue::giveUpCurrent() {
    if (current_)
        current_->giveUp();
}

void PrintQueue::startNext() {
    if (waiting_.empty())
        return;
    current_ = std::make_unique<HandOver>(std::move(waiting_.front()));
    waiting_.pop_front();
    connect(current_.get(), &HandOver::lodged, this, &PrintQueue::changed);
    // Not at once: the document goes away with its end, and must not be in the midst of telling it.
    connect(current_.get(), &HandOver::ended, this, &PrintQueue::currentEnded,
            Qt::QueuedConnection);
    slow_.start();
    current_->start();
}

void PrintQueue::currentEnded(const QString &complaint) {
    const QString title = current_->title();
    current_.reset();
    slow_.stop();
    startNext();
    if (!complaint.isEmpty())
        ++refusals_;
    tellChange();
    if (!complaint.isEmpty())
        tellRefusal(title, complaint);
}

void PrintQueue::tellRefusal(const QString &title, const QString &complaint) {
    refused_ = true;
    const std::string text = "L'imprimante n'accepte pas le document « " + fromQt(title) + " »." +
                             std::string(crlf) + fromQt(complaint);
    showUnexpected(RuntimeFailure(Failure::printerError, text));
    --refusals_;
    tellChange();
}

void PrintQueue::tellChange() {
    emit changed();
    if (isIdle())
        emit becameIdle();
}

} // namespace boulix
