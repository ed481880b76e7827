// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/coverSearch.h"

#include "core/modMaths.h"

#include <algorithm>
#include <bit>

namespace boulix {

namespace {

using Index = CoverSearch::Index;

Index binomial(Index n, Index k) {
    return static_cast<Index>(modMaths::cnkTable[k][n]);
}

} // namespace

CoverSearch::CoverSearch(Index nFixed, Index nWin, Index nSelect, std::int32_t puplets)
    : fixed_(nFixed), free_(nSelect - nFixed), size_(nWin - nFixed), extras_(6 - nWin),
      covered_(static_cast<Index>(puplets)) {
    for (Index i = 0; i < size_; ++i)
        puplet_[i] = i;
}

Index CoverSearch::code() const {
    Index code = 0;
    for (Index i = 0; i < size_; ++i)
        code += binomial(puplet_[i], i + 1);
    return code;
}

void CoverSearch::next() {
    Index i = size_;
    while (i > 0 && puplet_[i - 1] == free_ - size_ + i - 1)
        --i;
    if (i == 0)
        return;
    ++puplet_[i - 1];
    for (; i < size_; ++i)
        puplet_[i] = puplet_[i - 1] + 1;
}

gameComb CoverSearch::bestGrid() {
    if (extras_ > 0) {
        findOthers();
        countParts();
        gains_[0] = singles_;
        bestWorth_ = 0;
        extend(0, 0, 1); // 1: the p-uplet itself
    }
    gameComb::Numbers numbers{};
    auto at = numbers.begin();
    for (Index i = 0; i < fixed_; ++i)
        *at++ = static_cast<std::int16_t>(i + 1);
    for (Index i = 0; i < size_; ++i)
        *at++ = static_cast<std::int16_t>(puplet_[i] + fixed_ + 1);
    for (Index i = 0; i < extras_; ++i)
        *at++ = static_cast<std::int16_t>(others_[best_[i]] + fixed_ + 1);
    gameComb grid(numbers);
    grid.sort();
    return grid;
}

void CoverSearch::findOthers() {
    othersCount_ = 0;
    Index i = 0;
    for (Index n = 0; n < free_; ++n) {
        if (i < size_ && puplet_[i] == n)
            ++i;
        else
            others_[othersCount_++] = n;
    }
}

/// Counts the uncovered p-uplets that consist of one or two other ranks and of part of the
/// present p-uplet.
void CoverSearch::countParts() {
    singles_.fill(0);
    if (extras_ >= 2)
        for (Index e = 0; e < othersCount_; ++e)
            pairs_[e].fill(0);
    for (unsigned part = 0; part < (1U << size_); ++part)
        countPart(part);
    if (tripleCounts())
        fillTerms(0, 3);
}

/// The same for one part, the ranks of the present p-uplet whose bits are set in `part`.
void CoverSearch::countPart(unsigned part) {
    const Index missing = size_ - static_cast<Index>(std::popcount(part));
    if (missing == 1 && extras_ >= 1) {
        const Index base = fillTerms(part, 1);
        for (Index a = 0; a < othersCount_; ++a)
            singles_[a] = plusUncovered(singles_[a], base + terms_[0][a]);
    } else if (missing == 2 && extras_ >= 2) {
        const Index base = fillTerms(part, 2);
        for (Index a = 0; a < othersCount_; ++a)
            for (Index b = a + 1; b < othersCount_; ++b)
                pairs_[a][b] = plusUncovered(pairs_[a][b], base + terms_[0][a] + terms_[1][b]);
    }
}

/// Splits the code of a p-uplet made of `part` and of `inserted` other ranks into a sum: the
/// result, plus `terms_[q][e]` for the q-th inserted rank, the other rank at place `e`.
///
/// An inserted rank stands behind those of the part that are smaller, and a rank of the part
/// moves up by one position for each rank inserted before it. With `prefix[q][b]`, what the first
/// `b` ranks of the part are worth q positions further up, all of it falls into such a sum.
Index CoverSearch::fillTerms(unsigned part, Index inserted) {
    std::array<Index, 6> ranks{};
    Index count = 0;
    for (Index i = 0; i < size_; ++i)
        if ((part >> i & 1U) != 0)
            ranks[count++] = puplet_[i];
    std::array<std::array<Index, 7>, 4> prefix{};
    for (Index q = 0; q <= inserted; ++q)
        for (Index b = 0; b < count; ++b)
            prefix[q][b + 1] = prefix[q][b] + binomial(ranks[b], b + 1 + q);
    Index below = 0;
    for (Index e = 0; e < othersCount_; ++e) {
        while (below < count && ranks[below] < others_[e])
            ++below;
        for (Index q = 0; q < inserted; ++q)
            terms_[q][e] =
                binomial(others_[e], below + q + 1) + prefix[q][below] - prefix[q + 1][below];
    }
    return prefix[inserted][count];
}

/// Tries all other ranks from the place `first` on as the extra of number `depth` (from 0).
/// `worth` is the count of uncovered p-uplets without it.
void CoverSearch::extend(Index depth, Index first, int worth) {
    if (depth + 1 == extras_) {
        extendLast(first, worth);
        return;
    }
    const Counts &gains = gains_[depth];
    Counts &nextGains = gains_[depth + 1];
    for (Index e = first; e + extras_ - depth <= othersCount_; ++e) {
        chosen_[depth] = e;
        for (Index n = e + 1; n < othersCount_; ++n)
            nextGains[n] = static_cast<std::uint8_t>(gains[n] + pairs_[e][n]);
        extend(depth + 1, e + 1, worth + gains[e]);
    }
}

/// The last extra. Grids come in lexicographic order, and of equal ones the later one wins.
void CoverSearch::extendLast(Index first, int worth) {
    const Counts &gains = gains_[extras_ - 1];
    Index best = othersCount_;
    for (Index e = first; e < othersCount_; ++e) {
        int total = worth + gains[e];
        if (tripleCounts())
            total += uncovered(terms_[0][chosen_[0]] + terms_[1][chosen_[1]] + terms_[2][e]);
        if (total >= bestWorth_) {
            bestWorth_ = total;
            best = e;
        }
    }
    if (best == othersCount_)
        return;
    chosen_[extras_ - 1] = best;
    best_ = chosen_;
}

} // namespace boulix
