// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gameComb.h"

#include "core/modMaths.h"
#include "core/text.h"
#include "printing/slip.h"

#include <algorithm>

namespace boulix {

void gameComb::fromString(const std::string &text) {
    sum_ = 0;
    int p = 1;
    std::string rest = text;
    for (auto bar = rest.find('/'); bar != std::string::npos; bar = rest.find('/')) {
        num(p, toInt16(wholeNumberText(rest.substr(0, bar))));
        rest = trimmed(rest.substr(bar + 1));
        sum_ = narrow16(sum_ + num(p));
        ++p;
    }
    if (p > size)
        return;
    num(size, toInt16(wholeNumberText(rest)));
    sum_ = narrow16(sum_ + num(p));
}

void gameComb::sort() {
    std::sort(num_.begin(), num_.end());
}

void gameComb::Draw(std::int16_t gridNumber, Canvas &canvas, std::int16_t mode,
                    std::int32_t slipFrame) const {
    slip::drawGrid(canvas, num_, gridNumber, {mode, slipFrame});
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
