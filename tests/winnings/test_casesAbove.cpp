// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chancesTest.h"

#include <algorithm>

namespace boulix {
namespace {

class CasesAbove : public ChancesTest {
  protected:
    std::uint64_t counted(int numbers, std::int64_t amount) {
        return casesAbove(setsOf(numbers), prizes, amount, watch).value_or(~std::uint64_t{0});
    }
    /// What the game wins in each case, ascending.
    std::vector<std::int64_t> plainWins(int numbers) {
        std::vector<std::int64_t> won;
        bench_support::forEachPlainCase(grids, numbers, [&](const bench_support::PlainCase &one) {
            won.push_back(bench_support::plainWin(one, prizes));
        });
        std::sort(won.begin(), won.end());
        return won;
    }
    static std::uint64_t above(const std::vector<std::int64_t> &won, std::int64_t amount) {
        return static_cast<std::uint64_t>(won.end() -
                                          std::upper_bound(won.begin(), won.end(), amount));
    }
    /// Compares with the plain enumeration at amounts that are won, around them, and beyond all.
    void compare(int numbers) {
        const std::vector<std::int64_t> won = plainWins(numbers);
        std::vector<std::int64_t> amounts = {won.front() - 1, won.back(), -1, 0};
        for (int i = 0; i < 6; ++i) {
            const std::int64_t one = won[random() % won.size()];
            amounts.insert(amounts.end(), {one - 1, one});
        }
        for (const std::int64_t amount : amounts)
            EXPECT_EQ(counted(numbers, amount), above(won, amount))
                << numbers << " numbers, " << grids.Count() << " grids, more than " << amount;
    }

    RankAmounts prizes{0, 1, 2, 10, 21, 43, 80, 300, 999, 5'000, 20'000, 1'000'000};
};

TEST_F(CasesAbove, ThePlainEnumerationFindsTheSameInSmallLotteries) {
    for (int run = 0; run < 12; ++run) {
        grids.clear();
        const int numbers = 7 + run % 6;
        addRandomGrids(1 + static_cast<int>(random() % 40), random,
                       static_cast<std::int16_t>(numbers));
        compare(numbers);
    }
}

TEST_F(CasesAbove, AnyPrizesWillDo) {
    for (int run = 0; run < 12; ++run) {
        grids.clear();
        addRandomGrids(1 + static_cast<int>(random() % 15), random, 11);
        for (std::int64_t &prize : prizes)
            prize = random() % 3 == 0 ? 0 : static_cast<std::int64_t>(random() % 2000) - 500;
        compare(11);
    }
}

TEST_F(CasesAbove, TheLargestAmountsAllowedAreAddedExactly) {
    addRandomGrids(7, random, 11);
    const std::int64_t most = ((std::int64_t{1} << 62) - 1) / grids.Count();
    for (std::size_t rank = 1; rank < prizes.size(); ++rank)
        prizes[rank] = rank % 2 == 0 ? most : most - static_cast<std::int64_t>(rank);
    compare(11);
    for (std::int64_t &prize : prizes)
        prize = -prize;
    compare(11);
}

TEST_F(CasesAbove, GridsPlayedManyTimesAreAllPaid) {
    for (int i = 0; i < 9; ++i)
        addGrid({6, 3, 1, 5, 2, 4});
    addGrid({1, 2, 3, 4, 5, 7});
    addGrid({8, 9, 10, 11, 12, 13});
    compare(13);
}

TEST_F(CasesAbove, WithAllGridsEveryCaseWinsTheSame) {
    addAllGrids(12);
    std::int64_t win = 0;
    for (int rank = 1; rank <= 11; ++rank)
        win += static_cast<std::int64_t>(casesOfOneGrid(12, rank)) / 6 *
               prizes[static_cast<std::size_t>(rank)]; // 6 complementary numbers of each draw
    EXPECT_EQ(counted(12, win - 1), allCases(12));
    EXPECT_EQ(counted(12, win), 0U);
}

TEST_F(CasesAbove, AGridOfTheRealLotteryIsPaidByTheHypergeometricLaw) {
    addGrid({1, 12, 23, 34, 45, 49});
    std::uint64_t cases = 0;
    for (int rank = 11; rank >= 5; --rank)
        cases += casesOfOneGrid(49, rank);
    EXPECT_EQ(counted(49, 42), cases) << "three numbers win 43";
}

/// 2,000 random cases of the real lottery, each checked grid by grid, estimate the count.
TEST_F(CasesAbove, AGameOfTheRealLotteryComesNearToItsSample) {
    addRandomGrids(300, random);
    constexpr int sample = 2000;
    constexpr std::int64_t amount = 850;
    int above = 0;
    for (int i = 0; i < sample; ++i) {
        const SevenNumbers n = randomDraw(random);
        const std::array<int, 6> draw = {n[0], n[1], n[2], n[3], n[4], n[5]};
        if (bench_support::plainWin(bench_support::plainCase(grids, draw, n[6]), prizes) > amount)
            ++above;
    }
    const double part = static_cast<double>(counted(49, amount)) / 601'304'088;
    const double found = static_cast<double>(above) / sample;
    EXPECT_GT(found, 0.1);
    EXPECT_LT(found, 0.9);
    EXPECT_NEAR(part, found, 0.05) << "more than four standard deviations";
}

TEST_F(CasesAbove, TheUserCanCancelAtAnyStep) {
    addRandomGrids(5, random, 14);
    const GridSets sets = setsOf(14);
    int turns = 0;
    desktop.onEvents = [&] { ++turns; };
    EXPECT_TRUE(casesAbove(sets, prizes, 0, watch));
    EXPECT_EQ(turns, 10 * 9 * 8 / 6) << "once for the three largest numbers, at least 3 below";
    for (const int last : {1, 50, turns}) {
        frmProgress cancelled;
        CountWatch stopped(cancelled);
        int seen = 0;
        desktop.onEvents = [&] {
            if (++seen == last)
                cancelled.clickCancel();
        };
        EXPECT_FALSE(casesAbove(sets, prizes, 0, stopped));
        EXPECT_EQ(seen, last);
    }
}

} // namespace
} // namespace boulix
