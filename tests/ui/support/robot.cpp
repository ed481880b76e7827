// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/robot.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace boulix::testing_support {

namespace {

constexpr int pollMilliseconds = 5;
constexpr int patienceMilliseconds = 60'000; // a count of two seconds, on a busy machine

bool onScreen(const QWidget &window) {
    return window.isVisible() && window.windowHandle() && window.windowHandle()->isExposed();
}

/// The window that takes input: the topmost modal one, or else any visible one of that name.
/// Nothing before the user could see it.
QWidget *windowForInput(const QString &name) {
    QWidget *window = QApplication::activeModalWidget();
    if (!window)
        window = visibleWindow(name);
    return window && window->objectName() == name && onScreen(*window) ? window : nullptr;
}

std::string describe(const QWidget &window) {
    std::string words = window.objectName().toStdString();
    if (const auto *box = qobject_cast<const QMessageBox *>(&window))
        words += ": " + box->windowTitle().toStdString() + ": " + box->text().toStdString();
    return words;
}

} // namespace

QWidget *visibleWindow(const QString &name) {
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == name && window->isVisible())
            return window;
    return nullptr;
}

void click(QWidget &control) {
    QTest::mouseClick(&control, Qt::LeftButton);
}

Robot::Robot() {
    sinceStep_.start();
    watch();
}

Robot::~Robot() {
    for (const Waiting &left : steps_)
        ADD_FAILURE() << "never came: " << left.window.toStdString();
}

Robot &Robot::in(const char *window, const Step &step) {
    add(window, step);
    return *this;
}

Robot &Robot::clickIn(const char *window, const char *button) {
    add(window, [name = std::string(button)](QWidget &found) {
        click(control<QAbstractButton>(found, name.c_str()));
    });
    return *this;
}

Robot &Robot::box(const std::string &text, const std::string &title, QMessageBox::Icon icon,
                  QMessageBox::StandardButton button) {
    add("messageBox", [=](QWidget &found) {
        auto &shown = dynamic_cast<QMessageBox &>(found);
        EXPECT_EQ(shown.text().toStdString(), text);
        EXPECT_EQ(shown.windowTitle().toStdString(), title);
        EXPECT_EQ(shown.icon(), icon);
        click(*shown.button(button));
    });
    return *this;
}

Robot &Robot::chooseFile(const std::string &fullName) {
    add("comDiag", [=](QWidget &found) {
        auto &dialog = dynamic_cast<QFileDialog &>(found);
        control<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromStdString(fullName));
        const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
        auto *buttons = dialog.findChild<QDialogButtonBox *>();
        click(*buttons->button(opens ? QDialogButtonBox::Open : QDialogButtonBox::Save));
    });
    return *this;
}

void Robot::finish() {
    while (!steps_.empty())
        QApplication::processEvents(QEventLoop::AllEvents, pollMilliseconds);
}

void Robot::add(const char *window, const Step &step) {
    steps_.push_back({QString::fromUtf8(window), step});
    sinceStep_.start();
}

void Robot::watch() {
    // A timer of its own each time: the one that runs a step does not fire again while a window
    // that the step has opened waits in it.
    QTimer::singleShot(pollMilliseconds, this, &Robot::poll);
}

void Robot::poll() {
    watch();
    const bool waiting = !steps_.empty();
    QWidget *window = waiting ? windowForInput(steps_.front().window) : nullptr;
    if (window && window != busyIn_) {
        runStep(*window);
    } else if (!waiting && !QApplication::activeModalWidget()) {
        sinceStep_.start();
    } else if (sinceStep_.hasExpired(patienceMilliseconds)) {
        giveUp();
    }
}

void Robot::runStep(QWidget &window) {
    const Step step = steps_.front().step;
    steps_.pop_front();
    const QPointer<QWidget> before = busyIn_;
    busyIn_ = &window;
    try {
        step(window);
    } catch (const std::exception &error) {
        ADD_FAILURE() << error.what();
        giveUp();
    }
    busyIn_ = before;
    sinceStep_.start();
}

/// Ends every dialog that waits for the user until the program is free again.
void Robot::giveUp() {
    const QWidget *modal = QApplication::activeModalWidget();
    ADD_FAILURE() << "waited for " << (steps_.empty() ? "nothing" : steps_[0].window.toStdString())
                  << ", on top was " << (modal ? describe(*modal) : "no dialog");
    steps_.clear();
    auto *closer = new QTimer(this);
    connect(closer, &QTimer::timeout, this, [] {
        if (QWidget *window = QApplication::activeModalWidget())
            window->hide();
    });
    closer->start(pollMilliseconds);
}

} // namespace boulix::testing_support
