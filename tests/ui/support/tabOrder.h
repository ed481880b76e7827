// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

class QWidget;

namespace boulix::testing_support {

/// The names of the controls that Tab reaches, from the first one round to it again; a button of a
/// toolbar has the name of its action.
std::vector<std::string> tabOrder(const QWidget &window);

/// The same by pressing the key in a window on the screen, from the control `first` on: what the
/// user gets where controls hand their focus on.
std::vector<std::string> tabPresses(QWidget &window, QWidget &first);

} // namespace boulix::testing_support
