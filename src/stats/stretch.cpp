// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/stretch.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/numberMask.h"
#include "draws/dbCombs.h"
#include "stats/statStores.h"

#include <algorithm>

namespace boulix::modStats {

namespace {

void checkNumber(std::int16_t n) {
    checkedIndex(n, 1, lastNumber);
}

} // namespace

std::span<const dbComb> stretch(std::int32_t first, std::int32_t last) {
    const dbCombs &base = *gDbCombs;
    if (first > last || base.Count() == 0)
        return {};
    const dbComb *oldest = &base.Item(first);
    return {oldest, &base.Item(last) + 1};
}

void checkNumbers(const lotoComb &comb, std::int16_t withCompl) {
    if (withCompl == 1)
        checkNumber(comb.compl_());
    if (comb.isWhole())
        return;
    for (int i = 1; i <= lotoComb::size; ++i)
        checkNumber(comb.num(i));
}

std::uint64_t presence(const lotoComb &comb, std::int16_t withCompl) {
    return comb.mask() | (withCompl == 1 ? numberBit(comb.compl_()) : 0);
}

int matches(const lotoComb &comb, std::uint64_t chosen, std::int16_t withCompl) {
    int m = std::popcount(comb.mask() & chosen);
    if (!comb.isWhole()) {
        m = 0;
        for (int i = 1; i <= lotoComb::size; ++i)
            m += (numberBit(comb.num(i)) & chosen) != 0;
    }
    if (withCompl == 1)
        m += (numberBit(comb.compl_()) & chosen) != 0;
    return m;
}

void storeByNumber(const ByNumber &values) {
    std::copy(values.begin() + 1, values.end(), statResult.begin());
}

} // namespace boulix::modStats
