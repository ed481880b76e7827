// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checkTest.h"
#include "winnings/plainChances.h"

#include <gtest/gtest.h>

namespace boulix::testing_support {

/// A game whose chances are counted, in a small lottery or in the real one.
class ChancesTest : public CheckTest {
  protected:
    GridSets setsOf(int numbers) {
        GridSets sets(numbers);
        EXPECT_TRUE(sets.fill(grids, watch));
        return sets;
    }
    /// Every combination of six of the numbers 1 to `last`.
    void addAllGrids(std::int16_t last) {
        gameComb::Numbers n = {1, 2, 3, 4, 5, 6};
        while (true) {
            addGrid(n);
            std::size_t at = n.size();
            while (at > 0 && n[at - 1] == last - 6 + static_cast<int>(at))
                --at;
            if (at == 0)
                return;
            ++n[at - 1];
            for (; at < n.size(); ++at)
                n[at] = static_cast<std::int16_t>(n[at - 1] + 1);
        }
    }

    frmProgress progress;
    CountWatch watch{progress};
    std::mt19937 random{2026};
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::ChancesTest;
} // namespace boulix
