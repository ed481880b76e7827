// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QPointer>
#include <QWidget>

namespace boulix {

/// As long as it lives, a window and the dialogs in front of it take no command. Afterwards the
/// focus is where the user had left it.
class HandsOff {
  public:
    explicit HandsOff(QWidget &window);
    ~HandsOff();
    HandsOff(const HandsOff &) = delete;
    HandsOff &operator=(const HandsOff &) = delete;

  private:
    QPointer<QWidget> window_;
    QPointer<QWidget> focusInWindow_;
    QPointer<QWidget> focus_; ///< in the window or in a dialog, which is disabled with it
};

} // namespace boulix
