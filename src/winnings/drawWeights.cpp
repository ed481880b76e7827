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
std::uint64_t headOf(const std::int16_t *numbers) {
    std::uint64_t head = 0;
    std::memcpy(&head, numbers, sizeof head);
    return head;
}

} // namespace

drawWeights::drawWeights(const lotoComb &draw) {
    for (int i = 1; i <= lotoComb::size; ++i)
        weights_[static_cast<std::uint16_t>(draw.num(i))] = turns; // a repeated number counts once
    weights_[static_cast<std::uint16_t>(draw.compl_())] += complementary * turns;
}

/// `turns` times what two neighbouring numbers of a grid are worth, which are read at once.
std::size_t drawWeights::worthOfTwo(const std::int16_t *numbers) const {
    std::uint32_t both = 0;
    std::memcpy(&both, numbers, sizeof both);
    return std::size_t{weights_[both & 0xffffU]} + weights_[both >> 16U];
}

void drawWeights::count(const gameComb *grids, std::size_t count) {
    std::uint64_t head = 0; // of four zeros
    std::int32_t *counters = &grids_[4 * std::size_t{weights_[0]}];
    const auto take = [&](const gameComb &grid, std::size_t turn) {
        const std::int16_t *n = grid.numbers().data();
        const std::uint64_t nextHead = headOf(n);
        if (nextHead != head) [[unlikely]] {
            head = nextHead;
            counters = &grids_[worthOfTwo(n) + worthOfTwo(n + 2)];
        }
        ++counters[worthOfTwo(n + 4) + turn];
    };
    const gameComb *const end = grids + count;
    static_assert(turns == 8);
    for (; end - grids >= 8; grids += 8) {
        take(grids[0], 0);
        take(grids[1], 1);
        take(grids[2], 2);
        take(grids[3], 3);
        take(grids[4], 4);
        take(grids[5], 5);
        take(grids[6], 6);
        take(grids[7], 7);
    }
    for (; grids != end; ++grids)
        take(*grids, 0);
}

RankCounts drawWeights::wins() const {
    RankCounts wins{};
    for (std::size_t worth = 0; worth < worths; ++worth) {
        const std::int32_t *counts = &grids_[worth * turns];
        const std::int32_t grids = std::accumulate(counts, counts + turns, 0);
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
