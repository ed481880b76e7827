// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace boulix {

/// "1 grille, 0,60 euro": how many grids there are, and what they cost at the price and in the
/// unit of the settings. The price is taken for what the user reads in its box, so that millions
/// of grids cost neither a cent more nor less.
std::string countAndPrice(std::int64_t grids);

/// "1 grille", "24 grilles".
std::string gridCount(std::int64_t grids);

} // namespace boulix
