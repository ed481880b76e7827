// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/numberMask.h"
#include "core/numbers.h"
#include "draws/dbCombs.h"
#include "forecasts/presence.h"
#include "forecasts/pronostics.h"

#include <algorithm>
#include <bit>

namespace boulix {

bool pronostics::test(std::int32_t testDraw, std::int32_t before, std::int32_t after,
                      std::int32_t best) {
    if (!check())
        return false;
    baseTir(testDraw);
    compute(false);
    const std::uint64_t numbers = bestNumbers(best);
    baseTir(gDbCombs->Count());
    const std::int64_t first = std::max<std::int64_t>(std::int64_t{testDraw} - before, 1);
    const std::int64_t last =
        std::min<std::int64_t>(std::int64_t{testDraw} + after, gDbCombs->Count());
    nFound_.clear();
    for (std::int64_t at = first; at <= last; ++at) {
        const std::uint64_t found = presentIn(gDbCombs->Item(at).comb()) & numbers;
        nFound_.push_back(narrow16(std::popcount(found)));
    }
    return true;
}

void pronostics::baseTir(std::int32_t draw) {
    for (pronos &rule : rules_)
        rule.baseTir(narrow16(draw));
}

/// The `count` numbers with the most points; among equals the larger number comes first.
std::uint64_t pronostics::bestNumbers(std::int32_t count) const {
    std::vector<std::int32_t> points(lastNumber + 1);
    std::copy(nbrPoint_.begin(), nbrPoint_.end(), points.begin() + 1);
    std::vector<std::int32_t> order(lastNumber + 1);
    modMaths::sortIndex(points, order, lastNumber);
    std::uint64_t best = 0;
    for (std::int32_t i = 0; i < count; ++i)
        best |= numberBit(
            narrow16(order[static_cast<std::size_t>(checkedIndex(lastNumber - i, 1, lastNumber))]));
    return best;
}

} // namespace boulix
