// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/handOver.h"

#include <QRegularExpression>

#include <utility>

namespace boulix {

namespace {

constexpr int releasePatience = 60000; // milliseconds; lodging has no limit: the user may end it

} // namespace

HandOver::HandOver(PrintOrder order, QObject *parent) : QObject(parent), order_(std::move(order)) {
    patience_.setSingleShot(true);
    patience_.setInterval(releasePatience);
    connect(&patience_, &QTimer::timeout, &lp_, &QProcess::kill);
    connect(&lp_, &QProcess::finished, this, &HandOver::finished);
    connect(&lp_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end(complaint());
    });
}

HandOver::~HandOver() {
    lp_.disconnect(this); // a process that is ended here has nobody to tell
}

void HandOver::start() {
    run(QStringList{QStringLiteral("-d"), order_.printer, QStringLiteral("-t"), order_.title} +
        order_.options +
        QStringList{QStringLiteral("-H"), QStringLiteral("hold"), QStringLiteral("--"),
                    order_.file->fileName()});
}

void HandOver::giveUp() {
    if (!canBeGivenUp() || givenUp_)
        return;
    givenUp_ = true;
    lp_.kill();
}

void HandOver::run(const QStringList &arguments) {
    lp_.start(QStringLiteral("lp"), arguments);
}

void HandOver::finished() {
    patience_.stop();
    if (lodged_.isEmpty())
        lodgingFinished();
    else if (succeeded())
        end({});
    else
        end(QStringLiteral("Il reste retenu dans la file d'impression (%1).\n").arg(lodged_) +
            complaint());
}

void HandOver::lodgingFinished() {
    const QString job = jobIn(QString::fromLocal8Bit(lp_.readAllStandardOutput()));
    if (givenUp_) {
        // It is held and stays so; taking it away only tidies the queue.
        if (!job.isEmpty())
            QProcess::startDetached(QStringLiteral("cancel"), {job});
        end({});
    } else if (!succeeded()) {
        end(complaint());
    } else if (job.isEmpty()) {
        end(QStringLiteral("lp: réponse inattendue"));
    } else {
        lodged_ = job;
        emit lodged();
        patience_.start();
        run({QStringLiteral("-i"), lodged_, QStringLiteral("-H"), QStringLiteral("immediate")});
    }
}

void HandOver::end(const QString &complaint) {
    if (std::exchange(ended_, true))
        return;
    order_.file.reset();
    emit ended(complaint);
}

bool HandOver::succeeded() const {
    return lp_.error() == QProcess::UnknownError && lp_.exitStatus() == QProcess::NormalExit &&
           lp_.exitCode() == 0;
}

QString HandOver::complaint() {
    const QString words = QString::fromLocal8Bit(lp_.readAllStandardError()).trimmed();
    return words.isEmpty() ? QStringLiteral("lp: ") + lp_.errorString() : words;
}

/// The job's name in the sentence in which `lp` tells it, whatever the language; empty where there
/// is none.
QString HandOver::jobIn(const QString &answer) const {
    const QString queue = order_.printer.section(QLatin1Char('/'), 0, 0);
    const QRegularExpression name(QRegularExpression::escape(queue) + QStringLiteral("-\\d+"));
    return name.match(answer).captured();
}

} // namespace boulix
