// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the games and the base know about winning: three member functions of theirs.

#include "core/globals.h"
#include "core/numbers.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "winnings/drawWeights.h"
#include "winnings/gameResult.h"
#include "winnings/gameWin.h"
#include "winnings/gridColumns.h"
#include "winnings/money.h"
#include "winnings/rapport.h"

#include <utility>

namespace boulix {

namespace {

/// How often the bar is moved, in draws.
constexpr std::int64_t breath = 16;

/// The result of one draw: the counts, and the money that the prize table gives for them.
gameResult resultOf(const RankCounts &wins) {
    gameResult result;
    for (std::int16_t rank = 1; rank <= gameResult::ranks; ++rank) {
        const std::int32_t count = wins[static_cast<std::size_t>(rank)];
        const double amount = gRapport->Value(narrow16(rank - 1));
        result.nWin(rank, count);
        result.price(rank, toSingle(amount * count));
    }
    return result;
}

/// Each sum of money is rounded to its stored width at once, draw after draw.
void addTo(gameResult &total, const gameResult &result) {
    for (std::int16_t rank = 1; rank <= gameResult::ranks; ++rank) {
        total.nWin(rank, toInt32(static_cast<double>(total.nWin(rank)) + result.nWin(rank)));
        total.price(rank, addMoney(total.price(rank), result.price(rank)));
    }
}

/// Checks the draws in turn, hands each result to `take` and moves the bar. The bar shows itself
/// when the event queue runs; the game and the draws of a run are those at its start, whatever
/// the user does meanwhile.
template <class Take>
void checkAll(const game &grids, const std::vector<lotoComb> &draws, progressBar &bar, Take take) {
    const auto count = static_cast<std::int64_t>(draws.size());
    if (count == 0)
        return;
    bar.range(1, count);
    const gridColumns columns(grids);
    for (std::int64_t j = 1; j <= count; ++j) {
        take(j, resultOf(columns.wins(draws[static_cast<std::size_t>(j - 1)])));
        if (j % breath == 0) {
            bar.value = j;
            desktop().runEvents();
        }
    }
    bar.value = 1;
}

} // namespace

gameResult game::verify(const lotoComb &draw) const {
    drawWeights weights(draw);
    forEachStretch(
        [&weights](const gameComb *stretch, std::size_t count) { weights.count(stretch, count); });
    return resultOf(weights.wins());
}

gameResult game::verifyCombList(const std::vector<lotoComb> &draws, std::int16_t count,
                                progressBar &bar) const {
    const auto end =
        draws.begin() + checkedIndex(count, 0, static_cast<std::int64_t>(draws.size()));
    gameResult total;
    checkAll(*this, {draws.begin(), end}, bar,
             [&total](std::int64_t, const gameResult &result) { addTo(total, result); });
    return total;
}

gameResult dbCombs::VerifyGame(const game &grids, progressBar &bar,
                               std::vector<std::vector<gameWin>> &wins,
                               std::vector<std::int32_t> &winsCount) {
    std::vector<lotoComb> draws;
    draws.reserve(draws_.size());
    for (const dbComb &draw : draws_)
        draws.push_back(draw.comb());
    gameResult total;
    std::vector<std::vector<gameWin>> table(gameResult::ranks + 1, std::vector<gameWin>(1));
    std::vector<std::int32_t> inUse(gameResult::ranks + 1);
    checkAll(grids, draws, bar, [&](std::int64_t j, const gameResult &result) {
        addTo(total, result);
        for (std::int16_t rank = 1; rank <= gameResult::ranks; ++rank)
            if (result.nWin(rank) > 0) {
                const auto row = static_cast<std::size_t>(rank);
                table[row].emplace_back(static_cast<std::int32_t>(j), result.nWin(rank));
                ++inUse[row];
            }
    });
    wins = std::move(table);
    winsCount = std::move(inUse);
    return total;
}

} // namespace boulix
