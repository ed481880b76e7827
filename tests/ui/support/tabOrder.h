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

} // namespace boulix::testing_support
