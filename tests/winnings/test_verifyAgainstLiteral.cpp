// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The quick check and the literal one, on real and on impossible grids and draws.

#include "checkTest.h"
#include "draws/dbCombs.h"
#include "support/locations.h"
#include "winnings/literalCheck.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

using bench_support::literalVerify;
using bench_support::literalVerifyGame;

class VerifyAgainstLiteral : public CheckTest {
  protected:
    std::mt19937 random{4242};

    std::int16_t between(int first, int last) {
        return static_cast<std::int16_t>(
            first + static_cast<int>(random() % static_cast<unsigned>(last - first + 1)));
    }
    void randomAmounts() {
        for (std::int16_t i = 0; i < rapport::size; ++i)
            gRapport->Value(i, static_cast<float>(random() % 100000) / 7);
    }
    /// Any six numbers of a range: unsorted, repeated, zeros, numbers that no lottery has.
    void addOddGrids(int count, int first, int last) {
        for (int i = 0; i < count; ++i) {
            gameComb::Numbers numbers{};
            for (std::int16_t &n : numbers)
                n = between(first, last);
            addGrid(numbers);
        }
    }
    void addOddDraws(int count, int first, int last) {
        for (int i = 0; i < count; ++i) {
            SevenNumbers numbers{};
            for (std::int16_t &n : numbers)
                n = between(first, last);
            addDraw(numbers);
        }
    }
    /// Both ways must give the same wins and the same money, or both must fail.
    void expectEqualOverTheBase() {
        gameResult expected;
        gameResult total;
        const int failure = failureNumber([&] { expected = literalVerifyGame(*gDbCombs, grids); });
        EXPECT_EQ(failureNumber([&] { total = verifyGame(); }), failure);
        if (failure == 0) {
            EXPECT_EQ(winsOf(total), winsOf(expected));
            EXPECT_EQ(pricesOf(total), pricesOf(expected));
        }
        for (const dbComb &draw : *gDbCombs)
            expectEqualAt(draw.comb());
    }
    void expectEqualAt(const lotoComb &draw) {
        gameResult expected;
        gameResult result;
        const int failure = failureNumber([&] { expected = literalVerify(grids, draw); });
        EXPECT_EQ(failureNumber([&] { result = grids.verify(draw); }), failure);
        if (failure == 0) {
            EXPECT_EQ(winsOf(result), winsOf(expected));
            EXPECT_EQ(pricesOf(result), pricesOf(expected));
        }
    }
};

TEST_F(VerifyAgainstLiteral, AgreesOnRealGridsAndDraws) {
    randomAmounts();
    addRandomDraws(60, random);
    for (const int count : {1, 63, 64, 65, 128, 300}) {
        grids.clear();
        addRandomGrids(count, random);
        expectEqualOverTheBase();
    }
}

TEST_F(VerifyAgainstLiteral, AgreesOnDrawsAndGridsOfFewNumbersWithHighRanks) {
    randomAmounts();
    addRandomDraws(60, random, 10);
    addRandomGrids(500, random, 10);
    expectEqualOverTheBase();
}

TEST_F(VerifyAgainstLiteral, AgreesOnGridsInOrderWhichShareTheirFirstNumbers) {
    randomAmounts();
    addRandomDraws(20, random, 12);
    addDraw({0, 1, 2, 3, 4, 5, 6});
    for (int zeros = 0; zeros < 5; ++zeros)
        addGrid({0, 0, 0, 0, 0, static_cast<std::int16_t>(zeros)});
    for (unsigned bits = 0; bits < 1U << 12; ++bits) {
        std::vector<std::int16_t> numbers;
        for (std::int16_t n = 1; n <= 12; ++n)
            if ((bits >> (12 - n) & 1U) != 0)
                numbers.push_back(n);
        if (numbers.size() == 6)
            addGrid({numbers[0], numbers[1], numbers[2], numbers[3], numbers[4], numbers[5]});
    }
    expectEqualOverTheBase();
}

TEST_F(VerifyAgainstLiteral, AgreesOnImpossibleGridsAmongRealOnes) {
    randomAmounts();
    addRandomDraws(40, random, 15);
    for (int round = 0; round < 20; ++round) {
        addRandomGrids(between(0, 100), random);
        addOddGrids(between(0, 20), -2, 52);
    }
    expectEqualOverTheBase();
}

TEST_F(VerifyAgainstLiteral, AgreesOnImpossibleDraws) {
    randomAmounts();
    for (int round = 0; round < 30; ++round) {
        gDbCombs->clear();
        grids.clear();
        addOddDraws(20, -1, between(2, 55));
        addRandomGrids(50, random, 12);
        addOddGrids(50, -1, between(2, 55));
        expectEqualOverTheBase();
    }
}

TEST_F(VerifyAgainstLiteral, AgreesOnAGameThatSharesGridsWithAnotherInAnyOrder) {
    randomAmounts();
    addRandomDraws(40, random);
    game others; // more than one stretch of memory
    for (int i = 0; i < 10000; ++i) {
        const SevenNumbers n = randomDraw(random);
        others.Add(GridRef(gameComb({n[0], n[1], n[2], n[3], n[4], n[5]})));
    }
    for (std::int32_t i = 1; i <= others.Count(); ++i)
        grids.Add(others.shared(random() % 4 == 0 ? others.Count() + 1 - i : i));
    expectEqualOverTheBase();
}

TEST_F(VerifyAgainstLiteral, FailsWhereTheLiteralCheckFails) {
    addRandomGrids(200, random, 8);
    addDraw({1, 2, 3, 4, 5, 6, 7});
    expectEqualOverTheBase();
    addDraw({1, 2, 3, 4, 5, 6, 1}); // a complementary that was drawn before
    EXPECT_EQ(failureNumber([&] { verifyGame(); }), 9);
    expectEqualOverTheBase();
}

TEST_F(VerifyAgainstLiteral, AgreesOnAGameOfFiveHundredGridsOverTheRealHistory) {
    const auto history = testing_support::operatorHistory();
    if (!history)
        GTEST_SKIP() << "the operator's history is not there";
    ASSERT_TRUE(importHistory(desktop, folder(), *history));
    ASSERT_EQ(gDbCombs->Count(), 4858);
    const std::array<float, 11> amounts = {0,     0,     0,      2.5F,     2.9F,      6.1F,
                                           32.4F, 65.2F, 987.6F, 24567.8F, 1234567.0F};
    for (std::int16_t i = 0; i < rapport::size; ++i)
        gRapport->Value(i, amounts[static_cast<std::size_t>(i)]);
    addRandomGrids(500, random);
    const gameResult total = verifyGame();
    const gameResult expected = literalVerifyGame(*gDbCombs, grids);
    EXPECT_EQ(winsOf(total), winsOf(expected));
    EXPECT_EQ(pricesOf(total), pricesOf(expected));
    EXPECT_GT(total.nWin(5), 30000); // one grid in some 57 matches three
}

} // namespace
} // namespace boulix
