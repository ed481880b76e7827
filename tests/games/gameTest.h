// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/game.h"
#include "sill/selector.h"
#include "support/boulixTest.h"

#include <vector>

namespace boulix::testing_support {

/// A game, and what is in it as plain values.
class GameTest : public BoulixTest {
  protected:
    using Numbers = gameComb::Numbers;
    using Grids = std::vector<Numbers>;

    void fill(const Grids &numbers) {
        for (const Numbers &six : numbers) {
            gameComb grid(six);
            grid.sum(grid.total());
            grids.Add(GridRef(grid));
        }
    }
    static Grids contentsOf(const game &g) {
        Grids all;
        for (const gameComb &grid : g)
            all.push_back(grid.numbers());
        return all;
    }
    Grids contents() const { return contentsOf(grids); }

    /// A selection as the user left it, in the order of marking.
    selector selection(const std::vector<std::int16_t> &numbers) {
        selector sel;
        sel.setSelect(49, 0);
        desktop.answerNumbers(NumberScript().click(numbers).ok());
        sel.selectNbr();
        return sel;
    }
    selector firstNumbers(int count) {
        std::vector<std::int16_t> numbers;
        for (int n = 1; n <= count; ++n)
            numbers.push_back(static_cast<std::int16_t>(n));
        return selection(numbers);
    }

    game grids;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::GameTest;
} // namespace boulix
