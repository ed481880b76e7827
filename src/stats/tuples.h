// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "draws/lotoComb.h"

#include <cstdint>
#include <vector>

namespace boulix::modStats {

/// One to three numbers that are looked for together; `b` and `c` are 0 where there are fewer.
struct Tuple {
    std::int16_t a = 0;
    std::int16_t b = 0;
    std::int16_t c = 0;
};

/// Whether the tuple came out in a draw. The complementary number is taken for `a` or for the
/// `b` of a longer tuple, never for `c`.
bool holds(const lotoComb &comb, const Tuple &tuple);

/// For each of the tuples how many draws before `draw` it last came out; all draws before it where
/// it never did. They are found in one walk back through the base.
std::vector<std::int32_t> drawsSince(std::int32_t draw, const std::vector<Tuple> &tuples);

} // namespace boulix::modStats
