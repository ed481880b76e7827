// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/drawWeights.h"

#include "core/numbers.h"
#include "draws/lotoComb.h"
#include "winnings/gameResult.h"

#include <cstring>
#include <numeric>

namespace boulix {

namespace {

/// The first four numbers of a grid, to be compared at once.
std::uint64_t headOf(const gameComb::Numbers &numbers) {
    std::uint64_t head = 0;
    std::memcpy(&head, numbers.data(), sizeof head);
    return head;
}

} // namespace

drawWeights::drawWeights(const lotoComb &draw) {
    for (int i = 1; i <= lotoComb::size; ++i)
        weights_[static_cast<std::uint16_t>(draw.num(i))] = 1; // a repeated number counts once
    weights_[static_cast<std::uint16_t>(draw.compl_())] += complementary;
}

void drawWeights::count(const gameComb *grids, std::size_t count) {
    const auto weight = [this](std::int16_t n) {
        return std::size_t{weights_[static_cast<std::uint16_t>(n)]};
    };
    std::uint64_t head = 0; // of four zeros
    auto *counters = &grids_[4 * weight(0)];
    const auto take = [&](const gameComb &grid, std::size_t turn) {
        const gameComb::Numbers &n = grid.numbers();
        const std::uint64_t nextHead = headOf(n);
        if (nextHead != head) {
            head = nextHead;
            counters = &grids_[weight(n[0]) + weight(n[1]) + weight(n[2]) + weight(n[3])];
        }
        ++counters[weight(n[4]) + weight(n[5])][turn];
    };
    const gameComb *const end = grids + count;
    static_assert(turns == 4);
    for (; end - grids >= 4; grids += 4) {
        take(grids[0], 0);
        take(grids[1], 1);
        take(grids[2], 2);
        take(grids[3], 3);
    }
    for (; grids != end; ++grids)
        take(*grids, 0);
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
