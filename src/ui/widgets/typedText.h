// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

#include <functional>

class QEvent;
class QLineEdit;
class QString;

namespace boulix {

/// What is typed counts: before a command of the user runs, the text in the box that has the focus
/// is taken over as if the focus had left the box. Most commands leave the focus where it is: a
/// toolbar takes none, and neither does a shortcut, an arrow or a tab.
///
/// The application asks at each event, so no page has to think of it.
class TypedText : public QObject {
    Q_OBJECT

  public:
    /// To be called before `receiver` gets `event`, and before the focus moves because of it. True
    /// when the event must not be delivered: taking over the text brought up a message, and the
    /// user gives his command again once he has read it.
    bool takeBefore(QObject &receiver, QEvent &event);

  private:
    void followPresses(QObject &receiver);
    bool take();

    bool taking_ = false;
    bool told_ = false; ///< a message has come up since the last text was taken
};

/// Calls `handOver` with what the user has typed into `box` when he leaves it, presses Return in it
/// or gives a command; once for each text, even where a message comes up over the box meanwhile.
void whenLeft(QLineEdit &box, const std::function<void(const QString &text)> &handOver);

} // namespace boulix
