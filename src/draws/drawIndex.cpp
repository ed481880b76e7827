// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawIndex.h"

#include "core/numberMask.h"

#include <algorithm>

namespace boulix {

namespace {

constexpr std::size_t rowsOfAKind = 50; // row 0 is not used

bool isRegularDraw(const dbComb &draw) {
    const std::uint64_t complementary = numberBit(draw.comb().compl_());
    return draw.comb().isWhole() && complementary != 0 && (draw.comb().mask() & complementary) == 0;
}

std::size_t wordOf(std::int32_t position) {
    return static_cast<std::size_t>(position - 1) / 64;
}

/// The bits of the word `at` that belong to the draws `first` to `last`.
std::uint64_t within(std::size_t at, std::int32_t first, std::int32_t last) {
    std::uint64_t bits = ~std::uint64_t{0};
    if (at == wordOf(first))
        bits <<= (first - 1) % 64;
    if (at == wordOf(last))
        bits &= ~std::uint64_t{0} >> (63 - (last - 1) % 64);
    return bits;
}

/// Where the row of number `n` begins, in rows.
std::size_t place(std::int16_t n, bool withCompl) {
    return (withCompl ? rowsOfAKind : 0) + static_cast<std::size_t>(n);
}

} // namespace

drawIndex::drawIndex(const std::vector<dbComb> &draws)
    : regular_(std::all_of(draws.begin(), draws.end(), isRegularDraw)),
      words_((draws.size() + 63) / 64) {
    if (!regular_)
        return;
    rows_.resize(2 * rowsOfAKind * words_);
    for (std::size_t i = 0; i < draws.size(); ++i) {
        const lotoComb &comb = draws[i].comb();
        const auto enter = [&](std::int16_t n, bool withCompl) {
            rows_[place(n, withCompl) * words_ + i / 64] |= std::uint64_t{1} << (i % 64);
        };
        for (int k = 1; k <= lotoComb::size; ++k) {
            enter(comb.num(k), false);
            enter(comb.num(k), true);
        }
        enter(comb.compl_(), true);
    }
}

DrawSet drawIndex::draws(std::int32_t first, std::int32_t last, std::uint64_t chosen,
                         bool withCompl) const {
    std::vector<const std::uint64_t *> rows;
    forEachNumber(chosen, [&](std::int16_t n) { rows.push_back(row(n, withCompl)); });
    DrawSet set;
    const std::size_t end = wordOf(last);
    for (std::size_t at = wordOf(first); at <= end; ++at) {
        std::uint64_t bits = within(at, first, last);
        for (const std::uint64_t *held : rows)
            bits &= held[at];
        if (bits != 0)
            set.push_back({at, bits});
    }
    return set;
}

std::int32_t drawIndex::count(const DrawSet &set, std::int16_t n, bool withCompl) const {
    const std::uint64_t *held = row(n, withCompl);
    int count = 0;
    for (const DrawWord &word : set)
        count += std::popcount(word.bits & held[word.at]);
    return count;
}

const std::uint64_t *drawIndex::row(std::int16_t n, bool withCompl) const {
    return rows_.data() + place(n, withCompl) * words_;
}

} // namespace boulix
