// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/modComb.h"

#include "core/modMaths.h"
#include "games/modGame.h"

namespace boulix::modComb {

std::vector<std::int32_t> expand(const gameComb &grid, std::int16_t nFixed, std::int16_t nWin) {
    const auto fixed = static_cast<std::size_t>(nFixed);
    const auto size = static_cast<std::size_t>(nWin - nFixed);
    const auto count = static_cast<std::size_t>(modGame::subsetCount[fixed][size]);
    std::vector<std::int32_t> codes(count);
    for (std::size_t r = 0; r < count; ++r) {
        const gameComb &positions = modGame::subsetList[fixed][size][r + 1];
        for (std::size_t i = 1; i <= size; ++i) {
            const int rank = grid.num(positions.num(static_cast<int>(i))) - nFixed - 1;
            codes[r] += modMaths::cnkTable[i][static_cast<std::size_t>(rank)];
        }
    }
    return codes;
}

} // namespace boulix::modComb
