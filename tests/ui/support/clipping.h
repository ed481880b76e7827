// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

class QWidget;

namespace boulix::testing_support {

/// The visible labels, buttons, tabs, headers and other controls of `window` that have less room
/// than their text needs, or that stick out of the widget they stand in; each by its name.
std::vector<std::string> clippedControls(const QWidget &window);

} // namespace boulix::testing_support
