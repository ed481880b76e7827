// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>

namespace boulix::testing_support {

/// The control `name` within `window`. Throws std::runtime_error where there is none.
template <class Control>
Control &control(const QWidget &window, const char *name) {
    auto *found = window.findChild<Control *>(QString::fromUtf8(name));
    if (!found)
        throw std::runtime_error(std::string("no control named ") + name);
    return *found;
}

/// The visible window `name`, nothing where there is none.
QWidget *visibleWindow(const QString &name);

/// Clicks a control in its middle, as the user does.
void click(QWidget &control);

/// The user's hand. Each step waits until its window is the one that takes input, then acts in
/// it; so the windows that the program opens and waits for are used for real. A step whose window
/// does not come fails the test, as does a dialog without a step; every dialog that is up is then
/// closed, so that nothing hangs.
class Robot : public QObject {
  public:
    using Step = std::function<void(QWidget &window)>;

    Robot();
    ~Robot() override;

    Robot &in(const char *window, const Step &step);
    /// Clicks the button `button` of `window`.
    Robot &clickIn(const char *window, const char *button);
    /// Reads the message box with this text and title, and leaves it by `button`.
    Robot &box(const std::string &text, const std::string &title, QMessageBox::Icon icon,
               QMessageBox::StandardButton button = QMessageBox::Ok);
    /// Types a file name into the file dialog and confirms.
    Robot &chooseFile(const std::string &fullName);

    /// Lets the event queue run until all steps are done.
    void finish();

  private:
    void add(const char *window, const Step &step);
    void watch();
    void poll();
    void runStep(QWidget &window);
    void giveUp();

    struct Waiting {
        QString window;
        Step step;
    };
    std::deque<Waiting> steps_;
    QPointer<QWidget> busyIn_; // the next step waits until the one in this window is done
    QElapsedTimer sinceStep_;  // or since no dialog was up
};

} // namespace boulix::testing_support
