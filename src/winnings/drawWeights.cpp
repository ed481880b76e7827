// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/drawWeights.h"

#include "core/numbers.h"
#include "draws/lotoComb.h"
#include "winnings/gameResult.h"

#include <numeric>

namespace boulix {

drawWeights::drawWeights(const lotoComb &draw) {
    for (int i = 1; i <= lotoComb::size; ++i)
        weights_[static_cast<std::uint16_t>(draw.num(i))] = 1; // a repeated number counts once
    weights_[static_cast<std::uint16_t>(draw.compl_())] += complementary;
}

void drawWeights::count(const gameComb *grids, std::size_t count) {
    const auto weight = [this](std::int16_t n) { return weights_[static_cast<std::uint16_t>(n)]; };
    for (std::size_t i = 0; i < count; ++i) {
        const gameComb::Numbers &n = grids[i].numbers();
        const int worth =
            weight(n[0]) + weight(n[1]) + weight(n[2]) + weight(n[3]) + weight(n[4]) + weight(n[5]);
        ++grids_[static_cast<std::size_t>(worth)][i % turns];
    }
}

RankCounts drawWeights::wins() const {
    RankCounts wins{};
    for (std::size_t worth = 0; worth < worths; ++worth) {
        const auto &counts = grids_[worth];
        const std::int32_t grids = std::accumulate(counts.begin(), counts.end(), 0);
        if (grids == 0)
            continue;
        const auto matched = static_cast<int>(worth % complementary);
        const int withCompl = worth >= complementary ? 1 : 0;
        const int rank = (matched - 1) * 2 + 1 + withCompl;
        if (rank > 0)
            wins[static_cast<std::size_t>(checkedIndex(rank, 1, gameResult::ranks))] += grids;
    }
    return wins;
}

} // namespace boulix
