// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/literalCheck.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "winnings/rapport.h"

namespace boulix::bench_support {

namespace {

int matchedNumbers(const gameComb &grid, const lotoComb &draw) {
    int matched = 0;
    for (int i = 1; i <= 6; ++i)
        for (int j = 1; j <= 6; ++j)
            if (grid.num(i) == draw.num(j)) {
                ++matched;
                break;
            }
    return matched;
}

int complementaryMatched(const gameComb &grid, const lotoComb &draw) {
    for (int i = 1; i <= 6; ++i)
        if (grid.num(i) == draw.compl_())
            return 1;
    return 0;
}

} // namespace

gameResult literalVerify(const game &grids, const lotoComb &draw) {
    gameResult result;
    for (const gameComb &grid : grids) {
        const int matched = matchedNumbers(grid, draw);
        const int rank = (matched - 1) * 2 + 1 + complementaryMatched(grid, draw);
        if (rank > 0) {
            const auto place = static_cast<std::int16_t>(rank);
            result.nWin(place, result.nWin(place) + 1);
        }
    }
    for (std::int16_t i = 0; i <= 10; ++i) {
        const auto rank = static_cast<std::int16_t>(i + 1);
        const double amount = gRapport->Value(i);
        result.price(rank, static_cast<float>(amount * result.nWin(rank)));
    }
    return result;
}

gameResult literalVerifyGame(const dbCombs &draws, const game &grids) {
    gameResult total;
    for (const dbComb &draw : draws) {
        const gameResult result = literalVerify(grids, draw.comb());
        for (std::int16_t rank = 1; rank <= 11; ++rank) {
            total.nWin(rank, total.nWin(rank) + result.nWin(rank));
            const double sum = static_cast<double>(total.price(rank)) + result.price(rank);
            total.price(rank, static_cast<float>(sum));
        }
    }
    return total;
}

} // namespace boulix::bench_support
