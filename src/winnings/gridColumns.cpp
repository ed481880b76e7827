// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/gridColumns.h"

#include "core/numberMask.h"
#include "core/numbers.h"
#include "draws/lotoComb.h"
#include "games/game.h"
#include "winnings/gameResult.h"

#include <bit>

namespace boulix {

namespace {

constexpr std::int16_t lastNumber = 49;
constexpr std::size_t wordBits = 64;

/// Sixty-four grids' counts of matches, one binary digit of them in each word.
struct MatchBits {
    std::uint64_t ones = 0;
    std::uint64_t twos = 0;
    std::uint64_t fours = 0;

    /// The grids that match exactly `matched` numbers.
    std::uint64_t gridsWith(unsigned matched) const {
        return ((matched & 1U) != 0 ? ones : ~ones) & ((matched & 2U) != 0 ? twos : ~twos) &
               ((matched & 4U) != 0 ? fours : ~fours);
    }
};

/// Three bits added: what stays in the digit, and what is carried into the next one.
struct BitSum {
    BitSum(std::uint64_t a, std::uint64_t b, std::uint64_t c)
        : sum(a ^ b ^ c), carry((a & b) | ((a ^ b) & c)) {}
    std::uint64_t sum;
    std::uint64_t carry;
};

MatchBits addedUp(const std::array<const std::uint64_t *, lotoComb::size> &columns,
                  std::size_t word) {
    const BitSum low(columns[0][word], columns[1][word], columns[2][word]);
    const BitSum high(columns[3][word], columns[4][word], columns[5][word]);
    const BitSum ones(low.sum, high.sum, 0);
    const BitSum twos(low.carry, high.carry, ones.carry);
    return {ones.sum, twos.sum, twos.carry};
}

} // namespace

gridColumns::gridColumns(const game &grids)
    : length_((static_cast<std::size_t>(grids.Count()) + wordBits - 1) / wordBits),
      bits_(length_ * (lastNumber + 1)) {
    std::size_t place = 0;
    for (const gameComb &grid : grids) {
        if (std::popcount(maskOf(grid.numbers())) < gameComb::size) {
            apart_.push_back(grid);
            continue;
        }
        const std::uint64_t bit = std::uint64_t{1} << (place % wordBits);
        for (const std::int16_t n : grid.numbers())
            bits_[static_cast<std::size_t>(n) * length_ + place / wordBits] |= bit;
        ++place;
    }
}

/// The column of a number; the empty one for a number that no grid in columns can hold.
const std::uint64_t *gridColumns::column(std::int16_t number) const {
    const bool inColumns = number >= 1 && number <= lastNumber;
    return bits_.data() + (inColumns ? static_cast<std::size_t>(number) * length_ : 0);
}

RankCounts gridColumns::wins(const lotoComb &draw) const {
    RankCounts wins = winsInColumns(draw);
    if (apart_.empty())
        return wins;
    drawWeights weights(draw);
    weights.count(apart_.data(), apart_.size());
    const RankCounts more = weights.wins();
    for (std::size_t rank = 0; rank < wins.size(); ++rank)
        wins[rank] += more[rank];
    return wins;
}

RankCounts gridColumns::winsInColumns(const lotoComb &draw) const {
    std::array<const std::uint64_t *, lotoComb::size> columns{};
    std::uint64_t seen = 0;
    for (int i = 1; i <= lotoComb::size; ++i) {
        const std::uint64_t bit = numberBit(draw.num(i));
        const bool repeated = (seen & bit) != 0; // it matches a number of a grid only once
        columns[static_cast<std::size_t>(i - 1)] = column(repeated ? std::int16_t{0} : draw.num(i));
        seen |= bit;
    }
    const std::uint64_t *complementary = column(draw.compl_());
    RankCounts wins{};
    std::int64_t impossible = 0;
    for (std::size_t word = 0; word < length_; ++word) {
        const MatchBits matches = addedUp(columns, word);
        const std::uint64_t withCompl = complementary[word];
        for (unsigned matched = 1; matched <= 6; ++matched) {
            const std::uint64_t grids = matches.gridsWith(matched);
            const std::uint64_t both = grids & withCompl;
            wins[2 * matched - 1] += std::popcount(grids & ~withCompl);
            if (matched < 6)
                wins[2 * matched] += std::popcount(both);
            else
                impossible += std::popcount(both);
        }
    }
    if (impossible > 0)
        fail(Failure::subscriptOutOfRange);
    return wins;
}

} // namespace boulix
