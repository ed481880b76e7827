// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chancesTest.h"

#include <numeric>

namespace boulix {
namespace {

class CasesByBestRank : public ChancesTest {
  protected:
    RankCases counted(int numbers) {
        return casesByBestRank(setsOf(numbers), watch).value_or(RankCases{});
    }
    RankCases plain(int numbers) {
        RankCases cases{};
        bench_support::forEachPlainCase(grids, numbers, [&](const bench_support::PlainCase &one) {
            ++cases[static_cast<std::size_t>(one.best)];
        });
        return cases;
    }
};

TEST_F(CasesByBestRank, AGridOfTheRealLotteryFollowsTheHypergeometricLaw) {
    addGrid({3, 14, 15, 26, 35, 49});
    // C(6, m) C(43, 6 - m) draws, times the complementary numbers outside the grid or inside it.
    const RankCases expected = {6'096'454ULL * 43,    6ULL * 962'598 * 38, 6ULL * 962'598 * 5,
                                15ULL * 123'410 * 39, 15ULL * 123'410 * 4, 20ULL * 12'341 * 40,
                                20ULL * 12'341 * 3,   15ULL * 903 * 41,    15ULL * 903 * 2,
                                6ULL * 43 * 42,       6ULL * 43 * 1,       43};
    EXPECT_EQ(counted(49), expected);
    EXPECT_EQ(std::accumulate(expected.begin(), expected.end(), std::uint64_t{0}), 601'304'088U);
    EXPECT_EQ(allCases(49), 601'304'088U);
    for (int rank = 1; rank <= 11; ++rank)
        EXPECT_EQ(casesOfOneGrid(49, rank), expected[static_cast<std::size_t>(rank)]) << rank;
}

TEST_F(CasesByBestRank, ThePlainEnumerationFindsTheSameInSmallLotteries) {
    for (int run = 0; run < 14; ++run) {
        grids.clear();
        const int numbers = 7 + run % 7;
        addRandomGrids(1 + static_cast<int>(random() % 12), random,
                       static_cast<std::int16_t>(numbers));
        EXPECT_EQ(counted(numbers), plain(numbers)) << numbers << " numbers, run " << run;
    }
}

TEST_F(CasesByBestRank, GridsOnFewOfTheNumbersLeaveCasesWithoutAWin) {
    addAllGrids(7);
    const RankCases cases = counted(15);
    EXPECT_EQ(cases, plain(15));
    EXPECT_EQ(cases[0], 28U * 9) << "draws among the eight other numbers";
}

TEST_F(CasesByBestRank, AnyDrawIsMatchedWholeByAllGrids) {
    addAllGrids(12);
    RankCases expected{};
    expected[11] = allCases(12);
    EXPECT_EQ(counted(12), expected);
}

TEST_F(CasesByBestRank, AGridPlayedTwiceAndNumbersOutOfOrderChangeNothing) {
    addGrid({1, 2, 3, 4, 5, 6});
    addGrid({2, 4, 6, 8, 10, 12});
    const RankCases once = counted(13);
    addGrid({12, 2, 10, 4, 8, 6});
    addGrid({6, 5, 4, 3, 2, 1});
    EXPECT_EQ(counted(13), once);
}

TEST_F(CasesByBestRank, TheUserCanCancelAtAnyStep) {
    addRandomGrids(5, random, 14);
    const GridSets sets = setsOf(14);
    int turns = 0;
    desktop.onEvents = [&] { ++turns; };
    EXPECT_TRUE(casesByBestRank(sets, watch));
    EXPECT_EQ(turns, 11 * 10 * 9 / 6) << "once for the three largest numbers, at least 2 below";
    for (const int last : {1, 50, turns}) {
        frmProgress cancelled;
        CountWatch stopped(cancelled);
        int seen = 0;
        desktop.onEvents = [&] {
            if (++seen == last)
                cancelled.clickCancel();
        };
        EXPECT_FALSE(casesByBestRank(sets, stopped));
        EXPECT_EQ(seen, last);
    }
}

} // namespace
} // namespace boulix
