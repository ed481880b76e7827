// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/random/dice.h"

#include <QEvent>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <string>

namespace boulix::testing_support {

/// The hand of the random player: mouse and keyboard, used as the window system would, so that
/// modal windows, pop-up menus, disabled controls and the focus count. It knows no window by
/// name: what is on the screen is what it finds. It lets no event loop run: where one runs in the
/// middle of an action, the program waits there for the player.
class Hand {
  public:
    explicit Hand(Dice &dice) : dice_(dice) {}

    /// Does something in the window that takes input now, of which there must be one. Gives
    /// first what it is about to do, to `tell`.
    void act(const std::function<void(const std::string &action)> &tell);
    /// A click anywhere in this window, whatever stands before it.
    void knock(QWidget &window);

    /// Whether a button is held down on the screen: one that a key has pressed lets go, and gives
    /// its command, a moment later.
    bool aButtonIsDown() const;

    /// The window that takes input: a pop-up menu, the topmost dialog, or any other one.
    QWidget *windowForInput();

  private:
    struct Place {
        QPointer<QWidget> window;
        QPointer<QWidget> control;
        QPoint at; ///< within the window
    };
    using Tell = std::function<void(const std::string &action)>;

    void clickSomewhere(QWidget &window, const Tell &tell);
    void drag(QWidget &window, const Tell &tell);
    void wheel(QWidget &window, const Tell &tell);
    void pressKeys(QWidget &window, const Tell &tell);
    void fillIn(QWidget &window, const Tell &tell);
    void handleWindow(QWidget &window, const Tell &tell);

    QWidget &anyControl(QWidget &window);
    Place anyPlace(QWidget &window);
    QPoint pointIn(QWidget &control);
    void mouse(const Place &place, QEvent::Type type, Qt::MouseButton button,
               Qt::KeyboardModifiers keys);
    void click(const Place &place, Qt::MouseButton button, Qt::KeyboardModifiers keys);
    static void key(const QPointer<QWidget> &window, Qt::Key key, Qt::KeyboardModifiers keys);
    static void type(const QPointer<QWidget> &window, const QString &text);

    Dice &dice_;
    Qt::MouseButtons held_;
    int now_ = 0; ///< the time of the events, which is not that of any clock
};

/// A control as the diary names it.
std::string nameOf(const QWidget *control);

} // namespace boulix::testing_support
