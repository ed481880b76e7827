// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/modStats.h"

#include "core/globals.h"
#include "core/numberMask.h"
#include "draws/dbCombs.h"
#include "stats/statStores.h"
#include "stats/stretch.h"

namespace boulix::modStats {

namespace {

void score(ByNumber &counts, const lotoComb &comb) {
    for (int i = 1; i <= lotoComb::size; ++i)
        ++counts[static_cast<std::size_t>(comb.num(i))];
}

/// Whether so few draws are in the set that it is quicker to look at each of them than at the 49
/// rows of the index.
bool isSparse(const DrawSet &set) {
    constexpr int fewInAWord = 4;
    std::size_t draws = 0;
    for (const DrawWord &word : set)
        draws += static_cast<std::size_t>(std::popcount(word.bits));
    return draws < fewInAWord * set.size();
}

/// The numbers of the draws of the set score; the first of `draws` stands at `first`.
void countOneByOne(ByNumber &counts, std::span<const dbComb> draws, std::int32_t first,
                   const DrawSet &set) {
    forEachDraw(set, [&](std::int32_t i) {
        score(counts, draws[static_cast<std::size_t>(i - first)].comb());
    });
}

/// The same from the rows of the index, with the complementary numbers where `withCompl`.
void countByRows(ByNumber &counts, const DrawSet &set, bool withCompl) {
    forEachNumber(allNumbers, [&](std::int16_t n) {
        counts[static_cast<std::size_t>(n)] = gDbCombs->index().count(set, n, withCompl);
    });
}

/// Type 1: every number of every draw scores.
void countAll(ByNumber &counts, std::span<const dbComb> draws, std::int16_t withCompl) {
    for (const dbComb &draw : draws) {
        checkNumbers(draw.comb(), withCompl);
        score(counts, draw.comb());
        if (withCompl == 1)
            ++counts[static_cast<std::size_t>(draw.comb().compl_())];
    }
}

/// Types 2 to 5: the six numbers of the draws that hold all the chosen ones score.
void countPartners(ByNumber &counts, std::span<const dbComb> draws, std::uint64_t chosen,
                   std::int16_t withCompl) {
    const int n = std::popcount(chosen);
    for (const dbComb &draw : draws) {
        if (matches(draw.comb(), chosen, withCompl) != n)
            continue;
        checkNumbers(draw.comb(), 0);
        score(counts, draw.comb());
    }
}

/// The stored sum where six or seven different numbers can have it, else the sum of the numbers:
/// imported draws have no sum before the next load.
std::int32_t sumWithout(const lotoComb &comb) {
    if (comb.sum() >= 21 && comb.sum() <= maxSum)
        return comb.sum();
    std::int32_t sum = 0;
    for (int i = 1; i <= lotoComb::size; ++i)
        sum += comb.num(i);
    return sum;
}

std::int32_t sumWith(const lotoComb &comb) {
    if (comb.sumtot() >= 28 && comb.sumtot() <= maxSumTot)
        return comb.sumtot();
    std::int32_t sum = comb.compl_();
    for (int i = 1; i <= lotoComb::size; ++i)
        sum += comb.num(i);
    return sum;
}

/// What `countPair` says, from the mask where it says everything.
int evenCount(const dbComb &draw, std::int16_t withCompl) {
    const lotoComb &comb = draw.comb();
    if (!comb.isWhole())
        return draw.countPair(withCompl);
    const int even = std::popcount(comb.mask() & evenNumbers);
    return even + (withCompl == 1 && comb.compl_() % 2 == 0);
}

} // namespace

void ComputeFrequency(std::int16_t type, std::uint64_t chosen, std::int16_t withCompl,
                      std::int32_t first, std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    ByNumber counts{};
    if (isIndexed(draws)) {
        const DrawSet held = gDbCombs->index().draws(first, last, chosen, withCompl == 1);
        if (type != 1 && isSparse(held))
            countOneByOne(counts, draws, first, held);
        else
            countByRows(counts, held, type == 1 && withCompl == 1);
    } else if (type == 1)
        countAll(counts, draws, withCompl);
    else
        countPartners(counts, draws, chosen, withCompl);
    forEachNumber(chosen, [&counts](std::int16_t p) { counts[static_cast<std::size_t>(p)] = 0; });
    storeByNumber(counts);
}

void ComputeSums(std::int16_t withCompl, std::int32_t first, std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    nStatResult = withCompl != 0 ? maxSumTot : maxSum;
    statResult.fill(nStatResult, 0);
    for (const dbComb &draw : draws) {
        const std::int32_t sum = withCompl != 0 ? sumWith(draw.comb()) : sumWithout(draw.comb());
        ++statResult(checkedIndex(sum, 1, nStatResult));
    }
}

void ComputeEvenCount(std::int16_t withCompl, std::int32_t first, std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    nStatResult = withCompl == 1 ? 8 : 7;
    statResult.fill(nStatResult, 0);
    for (const dbComb &draw : draws)
        ++statResult(evenCount(draw, withCompl) + 1);
}

} // namespace boulix::modStats
