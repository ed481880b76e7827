// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/lotoComb.h"

#include <array>
#include <gtest/gtest.h>
#include <random>
#include <utility>

namespace boulix {
namespace {

using Numbers = std::array<std::int16_t, 6>;

lotoComb combOf(const Numbers &numbers, std::int16_t complementary) {
    lotoComb comb;
    for (int i = 1; i <= lotoComb::size; ++i)
        comb.num(i, numbers[static_cast<std::size_t>(i - 1)]);
    comb.compl_(complementary);
    return comb;
}

Numbers numbersOf(const lotoComb &comb) {
    Numbers numbers{};
    for (int i = 1; i <= lotoComb::size; ++i)
        numbers[static_cast<std::size_t>(i - 1)] = comb.num(i);
    return numbers;
}

TEST(LotoComb, IsAllZerosWhenNew) {
    const lotoComb comb;
    EXPECT_EQ(numbersOf(comb), (Numbers{}));
    EXPECT_EQ(comb.compl_(), 0);
    EXPECT_EQ(comb.sum(), 0);
    EXPECT_EQ(comb.sumtot(), 0);
}

TEST(LotoComb, KeepsNumbersInTheOrderGiven) {
    EXPECT_EQ(numbersOf(combOf({33, 32, 42, 16, 15, 49}, 37)), (Numbers{33, 32, 42, 16, 15, 49}));
}

TEST(LotoComb, IgnoresAWriteOutsideItsSixPlaces) {
    lotoComb comb = combOf({1, 2, 3, 4, 5, 6}, 7);
    for (const int place : {-1, 0, 7, 100})
        comb.num(place, 40);
    EXPECT_EQ(numbersOf(comb), (Numbers{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(comb.compl_(), 7);
}

TEST(LotoComb, ReadsZeroOutsideItsSixPlaces) {
    const lotoComb comb = combOf({1, 2, 3, 4, 5, 6}, 7);
    for (const int place : {-1, 0, 7, 100})
        EXPECT_EQ(comb.num(place), 0) << place;
}

TEST(LotoComb, StoresSumsAsTheyAreWritten) {
    lotoComb comb = combOf({1, 2, 3, 4, 5, 6}, 7);
    comb.sum(1000);
    comb.sumtot(-3);
    comb.num(1, 20);
    comb.compl_(30);
    EXPECT_EQ(comb.sum(), 1000);
    EXPECT_EQ(comb.sumtot(), -3);
}

TEST(LotoComb, SortOrdersTheSixNumbersAndLeavesTheRest) {
    lotoComb comb = combOf({33, 32, 42, 16, 15, 49}, 1);
    comb.sum(5);
    comb.sumtot(6);
    comb.sort();
    EXPECT_EQ(numbersOf(comb), (Numbers{15, 16, 32, 33, 42, 49}));
    EXPECT_EQ(comb.compl_(), 1);
    EXPECT_EQ(comb.sum(), 5);
    EXPECT_EQ(comb.sumtot(), 6);
}

/// Six passes over the neighbours, each swapped when the left one is greater.
Numbers exchangeSorted(Numbers numbers) {
    for (int pass = 1; pass <= 6; ++pass)
        for (std::size_t i = 0; i < 5; ++i)
            if (numbers[i] > numbers[i + 1])
                std::swap(numbers[i], numbers[i + 1]);
    return numbers;
}

TEST(LotoComb, SortAgreesWithAnExchangeOfNeighbours) {
    std::mt19937 random(49);
    std::uniform_int_distribution<int> number(-3, 9); // narrow, so that equal numbers occur
    for (int round = 0; round < 2000; ++round) {
        Numbers numbers{};
        for (std::int16_t &n : numbers)
            n = static_cast<std::int16_t>(number(random));
        lotoComb comb = combOf(numbers, 0);
        comb.sort();
        ASSERT_EQ(numbersOf(comb), exchangeSorted(numbers));
        ASSERT_EQ(comb.mask(), combOf(numbers, 0).mask());
    }
}

TEST(LotoComb, FindsTheComplementaryInsideOnlyWhenAsked) {
    const lotoComb comb = combOf({2, 4, 6, 8, 10, 12}, 14);
    EXPECT_FALSE(comb.isInside(14, false));
    EXPECT_TRUE(comb.isInside(14, true));
}

TEST(LotoComb, FindsEachOfTheSixNumbersInside) {
    const lotoComb comb = combOf({2, 4, 6, 8, 10, 12}, 14);
    for (std::int16_t n = 0; n <= 49; ++n) {
        const bool drawn = n >= 2 && n <= 12 && n % 2 == 0;
        EXPECT_EQ(comb.isInside(n, false), drawn) << n;
        EXPECT_EQ(comb.isInside(n, true), drawn || n == 14) << n;
    }
}

TEST(LotoComb, CopyIsIndependent) {
    lotoComb original = combOf({1, 2, 3, 4, 5, 6}, 7);
    original.sum(21);
    original.sumtot(28);
    lotoComb copy = original.copy();
    EXPECT_EQ(numbersOf(copy), (Numbers{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(copy.compl_(), 7);
    EXPECT_EQ(copy.sum(), 21);
    EXPECT_EQ(copy.sumtot(), 28);
    copy.num(1, 49);
    copy.compl_(48);
    EXPECT_EQ(original.num(1), 1);
    EXPECT_EQ(original.compl_(), 7);
}

} // namespace
} // namespace boulix
