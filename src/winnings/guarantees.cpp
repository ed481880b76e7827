// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/guarantees.h"

#include "core/numberMask.h"
#include "games/game.h"

#include <algorithm>
#include <bit>

namespace boulix {

namespace {

constexpr int mostDrawn = 6;

std::uint64_t numbersOf(const game &grids) {
    std::uint64_t numbers = 0;
    for (const gameComb &grid : grids)
        numbers |= maskOf(grid.numbers());
    return numbers;
}

/// The numbers of `grid` as a set of the numbers in play, which are counted from 0 here.
std::size_t amongThose(std::uint64_t numbers, std::uint64_t grid) {
    std::size_t set = 0;
    forEachNumber(grid, [&](std::int16_t n) {
        set |= std::size_t{1} << static_cast<unsigned>(std::popcount(numbers & (numberBit(n) - 1)));
    });
    return set;
}

/// For every set of up to six numbers in play, how many of them the best grid holds.
class BestMatches {
  public:
    BestMatches(const game &grids, std::uint64_t numbers)
        : count_(std::popcount(numbers)), best_(std::size_t{1} << static_cast<unsigned>(count_)) {
        for (const gameComb &grid : grids)
            best_[amongThose(numbers, maskOf(grid.numbers()))] = 1;
        markSubsets();
        for (std::size_t set = 1; set < best_.size(); ++set)
            if (std::popcount(set) <= mostDrawn)
                best_[set] = best_[set] != 0 ? static_cast<std::uint8_t>(std::popcount(set))
                                             : bestWithoutOne(set);
    }
    const std::vector<std::uint8_t> &all() const { return best_; }

  private:
    /// Marks the sets that lie whole in a grid, from the larger ones down.
    void markSubsets() {
        for (std::size_t set = best_.size(); --set > 0;)
            if (best_[set] != 0)
                for (std::size_t rest = set; rest != 0; rest &= rest - 1)
                    best_[set ^ (rest & -rest)] = 1;
    }
    std::uint8_t bestWithoutOne(std::size_t set) const {
        std::uint8_t best = 0;
        for (std::size_t rest = set; rest != 0; rest &= rest - 1)
            best = std::max(best, best_[set ^ (rest & -rest)]);
        return best;
    }

    int count_;
    std::vector<std::uint8_t> best_;
};

} // namespace

int numbersInPlay(const game &grids) {
    return std::popcount(numbersOf(grids));
}

std::vector<GuaranteeRow> guaranteesOf(const game &grids) {
    const std::uint64_t numbers = numbersOf(grids);
    if (numbers == 0 || std::popcount(numbers) > mostGuaranteeNumbers)
        return {};
    const BestMatches matches(grids, numbers);
    std::vector<GuaranteeRow> rows;
    for (int drawn = 1; drawn <= mostDrawn; ++drawn)
        rows.push_back({drawn, mostDrawn, 0, 0, 0});
    for (std::size_t set = 1; set < matches.all().size(); ++set) {
        const int drawn = std::popcount(set);
        if (drawn > mostDrawn)
            continue;
        GuaranteeRow &row = rows[static_cast<std::size_t>(drawn - 1)];
        const int best = matches.all()[set];
        row.least = std::min(row.least, best);
        row.most = std::max(row.most, best);
        row.sum += static_cast<std::uint64_t>(best);
        ++row.cases;
    }
    return rows;
}

} // namespace boulix
