// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/numberMask.h"
#include "core/numbers.h"
#include "draws/dbComb.h"
#include "stats/statStores.h"

#include <array>
#include <bit>
#include <cstdint>
#include <span>

namespace boulix::modStats {

/// A value for each number; index 0 is not used.
using ByNumber = std::array<std::int32_t, 50>;

/// The draws `first` to `last` of the base; none when the stretch or the base is empty. A
/// stretch that reaches beyond the base fails with `Failure::subscriptOutOfRange`.
std::span<const dbComb> stretch(std::int32_t first, std::int32_t last);

/// Whether the index of the base tells all about these draws.
bool isIndexed(std::span<const dbComb> draws);

/// A draw whose numbers, with the complementary one where `withCompl` is 1, do not all lie in 1
/// to 49 fails with `Failure::subscriptOutOfRange`.
inline void checkNumbers(const lotoComb &comb, std::int16_t withCompl) {
    if (withCompl == 1)
        checkedIndex(comb.compl_(), 1, lastNumber);
    if (comb.isWhole())
        return;
    for (int i = 1; i <= lotoComb::size; ++i)
        checkedIndex(comb.num(i), 1, lastNumber);
}

/// The numbers of a draw as a mask, with the complementary one where `withCompl` is 1.
inline std::uint64_t presence(const lotoComb &comb, std::int16_t withCompl) {
    return comb.mask() | (withCompl == 1 ? numberBit(comb.compl_()) : 0);
}

/// How many of the numbers of the mask `chosen` the draw holds. The complementary number, where
/// `withCompl` is 1, counts once more if it stands among the six, too.
inline int matches(const lotoComb &comb, std::uint64_t chosen, std::int16_t withCompl) {
    int m = 0;
    if (comb.isWhole())
        m = std::popcount(comb.mask() & chosen);
    else
        for (int i = 1; i <= lotoComb::size; ++i)
            m += (numberBit(comb.num(i)) & chosen) != 0;
    if (withCompl == 1)
        m += (numberBit(comb.compl_()) & chosen) != 0;
    return m;
}

/// Writes the values 1 to 49 into `statResult`.
void storeByNumber(const ByNumber &values);

} // namespace boulix::modStats
