// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

class QWidget;

namespace boulix::testing_support {

/// Shows every window beside the main one, each filled as it is in use, and has `look` look at it.
/// The program must have been started, with draws in its base.
void forEveryDialog(const std::function<void(QWidget &window)> &look);

} // namespace boulix::testing_support
