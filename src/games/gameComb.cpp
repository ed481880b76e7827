// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gameComb.h"

#include "core/modMaths.h"
#include "core/numbers.h"

#include <algorithm>

namespace boulix {

std::int16_t gameComb::num(int i) const {
    return num_[static_cast<std::size_t>(checkedIndex(i, 1, size) - 1)];
}

void gameComb::num(int i, std::int16_t n) {
    num_[static_cast<std::size_t>(checkedIndex(i, 1, size) - 1)] = n;
}

void gameComb::sort() {
    std::sort(num_.begin(), num_.end());
}

namespace modMaths {

std::int32_t combRank(const gameComb &comb, std::int16_t k) {
    std::int32_t rank = 0;
    for (int i = 1; i <= k; ++i) {
        const auto n = checkedIndex(comb.num(i), 0, cnkMaxN);
        rank += cnkTable[static_cast<std::size_t>(i)][static_cast<std::size_t>(n)];
    }
    return rank;
}

gameComb combFromRank(std::int32_t rank, std::int16_t k) {
    gameComb comb;
    for (int p = k; p >= 2; --p) {
        const auto &row = cnkTable[static_cast<std::size_t>(checkedIndex(p, 1, cnkMaxK))];
        // The first entry above the rank; the entries ascend from n = p on.
        const auto above = std::upper_bound(row.begin() + p, row.end(), rank);
        const auto n = static_cast<std::int16_t>(above - row.begin() - 1);
        comb.num(p, n);
        rank -= row[static_cast<std::size_t>(n)];
    }
    comb.num(1, narrow16(rank));
    return comb;
}

} // namespace modMaths
} // namespace boulix
