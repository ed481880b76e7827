// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chancesTest.h"
#include "core/modMaths.h"
#include "core/numberMask.h"
#include "games/modGame.h"
#include "winnings/guarantees.h"

#include <algorithm>
#include <bit>

namespace boulix {

static bool operator==(const GuaranteeRow &a, const GuaranteeRow &b) {
    return a.drawn == b.drawn && a.least == b.least && a.most == b.most && a.sum == b.sum &&
           a.cases == b.cases;
}

namespace {

class Guarantees : public ChancesTest {
  protected:
    /// The table by looking at every set of drawn numbers and every grid.
    std::vector<GuaranteeRow> plain() {
        std::uint64_t numbers = 0;
        for (const gameComb &grid : grids)
            numbers |= maskOf(grid.numbers());
        std::vector<GuaranteeRow> rows;
        for (int drawn = 1; drawn <= 6; ++drawn)
            rows.push_back({drawn, 6, 0, 0, 0});
        // The subsets of the numbers, from all of them down to none.
        for (std::uint64_t set = numbers; set != 0; set = (set - 1) & numbers) {
            const int drawn = std::popcount(set);
            if (drawn > 6)
                continue;
            int best = 0;
            for (const gameComb &grid : grids)
                best = std::max(best, std::popcount(maskOf(grid.numbers()) & set));
            GuaranteeRow &row = rows[static_cast<std::size_t>(drawn - 1)];
            row.least = std::min(row.least, best);
            row.most = std::max(row.most, best);
            row.sum += static_cast<std::uint64_t>(best);
            ++row.cases;
        }
        return rows;
    }
};

TEST_F(Guarantees, OfOneGridAreItsOwnNumbers) {
    addGrid({49, 1, 7, 30, 22, 8});
    const std::vector<GuaranteeRow> expected = {{1, 1, 1, 6, 6},   {2, 2, 2, 30, 15},
                                                {3, 3, 3, 60, 20}, {4, 4, 4, 60, 15},
                                                {5, 5, 5, 30, 6},  {6, 6, 6, 6, 1}};
    EXPECT_EQ(guaranteesOf(grids), expected);
    EXPECT_EQ(numbersInPlay(grids), 6);
}

TEST_F(Guarantees, OfTwoGridsByHand) {
    addGrid({1, 2, 3, 4, 5, 6});
    addGrid({4, 5, 6, 7, 8, 9});
    const std::vector<GuaranteeRow> rows = guaranteesOf(grids);
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_EQ(rows[1], (GuaranteeRow{2, 1, 2, 2 * 27 + 9, 36})) << "one of 1, 2, 3, one of 7, 8, 9";
    EXPECT_EQ(rows[5].least, 3) << "1, 2, 3, 7, 8, 9";
    EXPECT_EQ(rows[5].most, 6);
    EXPECT_EQ(numbersInPlay(grids), 9);
}

TEST_F(Guarantees, ThePlainSearchFindsTheSame) {
    for (int run = 0; run < 20; ++run) {
        grids.clear();
        addRandomGrids(1 + static_cast<int>(random() % 20), random,
                       static_cast<std::int16_t>(7 + run % 8));
        EXPECT_EQ(guaranteesOf(grids), plain()) << "run " << run;
    }
}

/// The rows of the carried systems are what players know; not all of them keep their word.
TEST_F(Guarantees, OfTheCarriedSystemsAreFoundByThePlainSearchToo) {
    modGame::init();
    int checked = 0;
    for (const gameDef &system : modGame::reducedGames) {
        if (system.nComb() == 0 || system.nSelect() > mostGuaranteeNumbers)
            continue;
        grids.clear();
        for (std::int32_t row = 1; row <= system.nComb(); ++row)
            grids.Add(system.sharedRow(row));
        if (numbersInPlay(grids) != system.nSelect())
            continue;
        const std::vector<GuaranteeRow> rows = guaranteesOf(grids);
        EXPECT_EQ(rows, plain()) << system.label();
        if (system.label() == "5 numéros gagnants si 6 sur 10 en 18 grilles") {
            EXPECT_EQ(rows.at(5).least, 5);
        }
        ++checked;
    }
    EXPECT_GE(checked, 3);
}

TEST_F(Guarantees, AreNotToldBeyondTwentyNumbersNorWithoutGrids) {
    EXPECT_TRUE(guaranteesOf(grids).empty());
    EXPECT_EQ(numbersInPlay(grids), 0);
    addGrid({1, 2, 3, 4, 5, 6});
    addGrid({11, 12, 13, 14, 15, 16});
    addGrid({21, 22, 23, 24, 25, 26});
    addGrid({1, 11, 21, 2, 40, 49});
    EXPECT_EQ(numbersInPlay(grids), 20);
    EXPECT_EQ(guaranteesOf(grids).size(), 6U);
    EXPECT_EQ(guaranteesOf(grids)[5].cases, 38'760U);
    addGrid({1, 2, 3, 4, 5, 41});
    EXPECT_TRUE(guaranteesOf(grids).empty());
}

} // namespace
} // namespace boulix
