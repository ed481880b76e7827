// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/desktop.h"

#include <QMessageBox>

namespace boulix {

/// Shows a message box with plain text and gives the button that it was left by; Escape is the
/// button that refuses, Enter the `enter` one, or the first where none is named.
QMessageBox::StandardButton
runMessageBox(QWidget *parent, const std::string &text, Icon icon, const std::string &title,
              QMessageBox::StandardButtons buttons = QMessageBox::Ok,
              QMessageBox::StandardButton enter = QMessageBox::NoButton);

/// Shows a message box with a button for each of `answers`, whose first letters differ and are
/// their mnemonics, and gives the index of the one chosen. Enter, Escape and the close box choose
/// the last.
std::size_t runChoiceBox(QWidget *parent, const std::string &text, Icon icon,
                         const std::string &title, const std::vector<std::string> &answers);

} // namespace boulix
