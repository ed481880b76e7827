// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forecasts/pronos.h"

#include <set>

namespace boulix::testing_support {

/// The numbers to which `rule` gives its points, found number by number and draw by draw.
std::set<int> plainChosen(const pronos &rule);

} // namespace boulix::testing_support
