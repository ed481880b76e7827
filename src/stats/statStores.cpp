// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/statStores.h"

namespace boulix::modStats {

namespace {

/// How many triplets begin with a number below `a`.
double tripletsBelow(double a) {
    const double couples = (a - 1) * (96 - a) / 2;
    const double cubes = 48.0 * 48 * 48 - (49 - a) * (49 - a) * (49 - a);
    return ((cubes - 3 * couples - (a - 1)) / 3 + couples) / 2;
}

} // namespace

void InitTripletTable() {
    std::int32_t at = 0;
    for (std::int16_t a = 1; a <= lastNumber - 2; ++a)
        for (auto b = static_cast<std::int16_t>(a + 1); b <= lastNumber - 1; ++b)
            for (auto c = static_cast<std::int16_t>(b + 1); c <= lastNumber; ++c)
                tripletTable(++at) = {{a, b, c}, 0};
}

std::int32_t row(std::int16_t a, std::int16_t b, std::int16_t c) {
    const double couples = ((48.0 - a) - (b - a - 2) / 2.0) * (b - a - 1);
    return static_cast<std::int32_t>(tripletsBelow(a) + couples + (c - b));
}

void reset() {
    statResult = {};
    nStatResult = 0;
    statPeriods.assign(1, 0);
    nStatPeriods = 0;
    for (Triplet &triplet : tripletTable)
        triplet.flag = 0;
}

} // namespace boulix::modStats
