// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/systemOptimiser.h"

#include "games/coveringRecords.h"
#include "games/gameDef.h"
#include "games/modGame.h"
#include "support/boulixTest.h"

#include <algorithm>
#include <random>
#include <set>

namespace boulix {
namespace {

using Rows = std::vector<gameComb>;

Guarantee guarantee(int nFixed, int nWin, int nCond, int nSelect) {
    return {static_cast<std::int16_t>(nFixed), static_cast<std::int16_t>(nWin),
            static_cast<std::int16_t>(nCond), static_cast<std::int16_t>(nSelect)};
}

std::vector<gameComb::Numbers> numbers(const Rows &rows) {
    std::vector<gameComb::Numbers> all;
    for (const gameComb &row : rows)
        all.push_back(row.numbers());
    return all;
}

/// The guarantee to the letter: every draw is written down, and for each of them every row is
/// looked at, number by number.
bool literallyKeeps(const Rows &rows, const Guarantee &g) {
    std::vector<bool> chosen(static_cast<std::size_t>(g.nSelect), false);
    std::fill_n(chosen.begin(), g.nCond, true);
    do {
        std::set<int> draw;
        for (int n = 1; n <= g.nSelect; ++n)
            if (chosen[static_cast<std::size_t>(n - 1)])
                draw.insert(n);
        bool fixedDrawn = true;
        for (int n = 1; n <= g.nFixed; ++n)
            fixedDrawn = fixedDrawn && draw.count(n) == 1;
        const auto wins = [&](const gameComb &row) {
            return std::count_if(row.numbers().begin(), row.numbers().end(),
                                 [&](int n) { return draw.count(n) == 1; }) >= g.nWin;
        };
        if (fixedDrawn && std::none_of(rows.begin(), rows.end(), wins))
            return false;
    } while (std::prev_permutation(chosen.begin(), chosen.end()));
    return true;
}

class SystemOptimiserTest : public BoulixTest {
  protected:
    SystemOptimiserTest() { modGame::init(); }

    static Rows calculated(const Guarantee &g) {
        gameDef def;
        EXPECT_TRUE(def.compute(g.nFixed, g.nWin, g.nSelect));
        return systemRows(def);
    }
    static Rows optimised(const Guarantee &g, std::int64_t work, std::uint64_t seed = 1) {
        SystemOptimiser search(g, {calculated(g)}, seed);
        search.run(work);
        EXPECT_EQ(search.size(), std::ssize(search.rows()));
        EXPECT_GE(search.size(), search.lowerBound());
        return search.rows();
    }
};

constexpr std::int64_t shortWork = 4'000'000;

/// Searches until there are so few rows, or for a long time; gives how many there are.
std::int64_t rowsWhenAsked(const Guarantee &g, const Rows &calculated, std::int64_t wanted) {
    SystemOptimiser search(g, {calculated}, 1);
    for (int i = 0; i < 500 && search.size() > wanted; ++i)
        search.run(shortWork);
    return search.size();
}

TEST_F(SystemOptimiserTest, AnyParametersGiveRowsThatKeepTheGuaranteeAndAreNotMoreThanCalculated) {
    std::mt19937 random(7);
    const auto between = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    for (int i = 0; i < 40; ++i) {
        const int nFixed = between(0, 5);
        const int nWin = between(nFixed + 1, 6);
        const Guarantee g = guarantee(nFixed, nWin, between(nWin, 6), between(7, 13));
        const Rows rows = optimised(g, 3'000'000, random());
        EXPECT_TRUE(literallyKeeps(rows, g))
            << g.nFixed << " " << g.nWin << " " << g.nCond << " " << g.nSelect;
        EXPECT_LE(rows.size(), calculated(g).size());
    }
}

TEST_F(SystemOptimiserTest, TheRowsAscendAndStandInOrderOnce) {
    const Rows rows = optimised(guarantee(1, 4, 4, 11), shortWork);
    for (const gameComb &row : rows) {
        EXPECT_EQ(row.num(1), 1);
        EXPECT_TRUE(std::is_sorted(row.numbers().begin(), row.numbers().end()));
    }
    const auto all = numbers(rows);
    EXPECT_TRUE(std::is_sorted(all.begin(), all.end()));
    EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end());
}

TEST_F(SystemOptimiserTest, ALittleWorkReachesTheRecordsOfSmallSystems) {
    for (const auto &[g, record] : {std::pair{guarantee(0, 3, 3, 12), 15},
                                    {guarantee(0, 4, 4, 10), 20},
                                    {guarantee(0, 4, 4, 12), 41},
                                    {guarantee(0, 5, 5, 10), 50},
                                    {guarantee(1, 4, 4, 10), 12},
                                    {guarantee(2, 5, 5, 12), 30}})
        EXPECT_EQ(rowsWhenAsked(g, calculated(g), record), record) << g.nWin << " " << g.nSelect;
}

TEST_F(SystemOptimiserTest, TwelveNumbersHaveTheSteinerSystem) {
    const Guarantee g = guarantee(0, 5, 5, 12);
    SystemOptimiser search(g, {calculated(g)}, 1);
    search.run(50 * shortWork);
    EXPECT_EQ(search.size(), 132);
    EXPECT_EQ(search.lowerBound(), 132);
    EXPECT_TRUE(search.finished());
    EXPECT_TRUE(literallyKeeps(search.rows(), g));
}

TEST_F(SystemOptimiserTest, TheSameSeedGivesTheSameRows) {
    const Guarantee g = guarantee(0, 4, 4, 13);
    EXPECT_EQ(numbers(optimised(g, shortWork, 3)), numbers(optimised(g, shortWork, 3)));
    EXPECT_NE(numbers(optimised(g, shortWork, 3)), numbers(optimised(g, shortWork, 4)));
}

TEST_F(SystemOptimiserTest, WorkInPiecesNeverLosesWhatWasFound) {
    const Guarantee g = guarantee(0, 4, 4, 12);
    SystemOptimiser search(g, {calculated(g)}, 1);
    std::int64_t last = search.size();
    for (int i = 0; i < 6; ++i) {
        search.run(shortWork / 2);
        EXPECT_LE(search.size(), last);
        last = search.size();
    }
    EXPECT_LT(search.size(), 56);
}

TEST_F(SystemOptimiserTest, AReachedBoundEndsTheSearch) {
    const Guarantee g = guarantee(0, 6, 6, 9);
    SystemOptimiser search(g, {calculated(g)}, 1);
    EXPECT_TRUE(search.finished());
    EXPECT_EQ(search.size(), 84);
    search.run(shortWork);
    EXPECT_EQ(numbers(search.rows()), numbers(calculated(g)));
}

TEST_F(SystemOptimiserTest, MoreDrawnNumbersNeedNoMoreRowsThanTheCovering) {
    for (const int nSelect : {8, 10, 12})
        for (const int nWin : {3, 4}) {
            const std::size_t covering =
                optimised(guarantee(0, nWin, nWin, nSelect), shortWork).size();
            for (int nCond = nWin + 1; nCond <= 6; ++nCond)
                EXPECT_LE(optimised(guarantee(0, nWin, nCond, nSelect), 2 * shortWork).size(),
                          covering)
                    << nWin << " " << nCond << " " << nSelect;
        }
}

TEST_F(SystemOptimiserTest, TheCarriedSystemsAreReachedFromTheCalculationAlone) {
    for (const auto &[g, carried] : {std::pair{guarantee(0, 3, 6, 17), 6},
                                     {guarantee(0, 5, 6, 10), 18},
                                     {guarantee(0, 4, 5, 12), 20},
                                     {guarantee(0, 5, 6, 12), 42}})
        EXPECT_LE(rowsWhenAsked(g, calculated(g), carried), carried) << g.nWin << " " << g.nSelect;
}

TEST_F(SystemOptimiserTest, TheSmallestKnownSystemThatKeepsTheGuaranteeIsTheBeginning) {
    const Guarantee g = guarantee(0, 3, 6, 27);
    const Rows carried = carriedSystems(g).at(0);
    const Rows tooFew(carried.begin(), carried.end() - 1);
    const SystemOptimiser search(g, {calculated(g), carried, tooFew}, 1);
    EXPECT_LE(search.size(), 91);
    EXPECT_TRUE(keepsGuarantee(search.rows(), g));
}

TEST_F(SystemOptimiserTest, TheCheckSeesWhatTheLetterSees) {
    std::mt19937 random(3);
    int kept = 0;
    for (int i = 0; i < 60; ++i) {
        const int nFixed = static_cast<int>(random() % 2);
        const int nWin = 2 + nFixed + static_cast<int>(random() % 2);
        const Guarantee g = guarantee(nFixed, nWin, nWin + static_cast<int>(random() % 2), 9);
        Rows rows = calculated(g);
        std::shuffle(rows.begin(), rows.end(), random);
        rows.resize(rows.size() - random() % 3);
        EXPECT_EQ(keepsGuarantee(rows, g), literallyKeeps(rows, g)) << i;
        kept += keepsGuarantee(rows, g) ? 1 : 0;
    }
    EXPECT_GT(kept, 10);
    EXPECT_LT(kept, 50);
}

TEST_F(SystemOptimiserTest, RowsThatAreNoneOfTheSystemDoNotPassTheCheck) {
    const Guarantee g = guarantee(1, 3, 3, 8);
    const Rows rows = calculated(g);
    ASSERT_TRUE(keepsGuarantee(rows, g));
    for (const gameComb::Numbers &bad : {gameComb::Numbers{1, 2, 3, 4, 5, 9},
                                         {2, 3, 4, 5, 6, 7},
                                         {1, 2, 2, 3, 4, 5},
                                         {1, 3, 2, 4, 5, 6},
                                         {0, 1, 2, 3, 4, 5}}) {
        Rows worse = rows;
        worse.emplace_back(bad);
        EXPECT_FALSE(keepsGuarantee(worse, g)) << bad[0] << " " << bad[5];
    }
}

TEST_F(SystemOptimiserTest, TheBoundsAreThoseOfTheTable) {
    const auto bound = [](int v, int k, int t) { return covering::lowerBound({v, k, t, t}); };
    EXPECT_EQ(bound(12, 6, 4), 36);
    EXPECT_EQ(bound(20, 6, 4), 344);
    EXPECT_EQ(bound(19, 4, 3), 257);
    EXPECT_EQ(bound(25, 6, 5), 9321);
    EXPECT_EQ(bound(49, 6, 6), 13983816);
    EXPECT_EQ(bound(2, 1, 1), 2);
    EXPECT_EQ(covering::knownRecord({12, 6, 4, 4}), 41);
    EXPECT_EQ(covering::knownRecord({25, 4, 3, 3}), 600);
    EXPECT_EQ(covering::knownRecord({26, 6, 4, 4}), std::nullopt);
    EXPECT_EQ(covering::knownRecord({12, 6, 4, 5}), std::nullopt);
    EXPECT_EQ(covering::knownRecord({12, 3, 2, 2}), std::nullopt);
}

} // namespace
} // namespace boulix
