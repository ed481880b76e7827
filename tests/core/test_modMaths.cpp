// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modMaths.h"

#include "games/gameComb.h"
#include "support/boulixTest.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace boulix {
namespace {

using modMaths::Cnk;
using modMaths::cnkTable;
using modMaths::combFromRank;
using modMaths::combRank;
using Numbers = std::vector<std::int16_t>;

/// Pascal's triangle, which knows nothing of products and factorials.
std::vector<std::vector<std::int64_t>> pascal(std::size_t rows) {
    std::vector<std::vector<std::int64_t>> triangle(rows);
    for (std::size_t n = 0; n < rows; ++n) {
        triangle[n].assign(rows, 0);
        triangle[n][0] = 1;
        for (std::size_t k = 1; n > 0 && k <= n; ++k)
            triangle[n][k] = triangle[n - 1][k - 1] + triangle[n - 1][k];
    }
    return triangle;
}

gameComb combOf(const Numbers &numbers) {
    gameComb comb;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        comb.num(static_cast<int>(i) + 1, numbers[i]);
    return comb;
}

Numbers numbersOf(const gameComb &comb, int k = 6) {
    Numbers numbers;
    for (int i = 1; i <= k; ++i)
        numbers.push_back(comb.num(i));
    return numbers;
}

TEST(Cnk, AgreesWithPascalsTriangle) {
    const auto triangle = pascal(50);
    for (std::int16_t n = 0; n <= 49; ++n)
        for (std::int16_t k = 0; k <= 6; ++k)
            EXPECT_EQ(Cnk(n, k), triangle[static_cast<std::size_t>(n)][static_cast<std::size_t>(k)])
                << n << " over " << k;
}

TEST(Cnk, HasItsWellKnownValues) {
    EXPECT_EQ(Cnk(49, 6), 13'983'816);
    EXPECT_EQ(Cnk(5, 0), 1);
    EXPECT_EQ(Cnk(6, 6), 1);
    EXPECT_EQ(Cnk(12, 12), 1);
    EXPECT_EQ(Cnk(3, 5), 0); // a factor is zero
    EXPECT_EQ(Cnk(-2, 3), -4);
    EXPECT_EQ(Cnk(0, -1), 1);
}

TEST(Cnk, BeyondItsRangeIsAnOverflow) {
    EXPECT_EQ(failureNumber([] { Cnk(20, 13); }), 6); // the factorial
    EXPECT_EQ(failureNumber([] { Cnk(49, 12); }), 6); // the product
    EXPECT_EQ(failureNumber([] { Cnk(32767, 32767); }), 6);
    EXPECT_EQ(failureNumber([] { Cnk(3000, 4); }), 6); // the result: 3.4 * 10^12
    EXPECT_EQ(failureNumber([] { Cnk(300, 4); }), 0);
}

TEST(Factorial, IsOneBelowOneAndOverflowsAbove12) {
    EXPECT_EQ(modMaths::factorial(0), 1);
    EXPECT_EQ(modMaths::factorial(-5), 1);
    EXPECT_EQ(modMaths::factorial(1), 1);
    EXPECT_EQ(modMaths::factorial(6), 720);
    EXPECT_EQ(modMaths::factorial(12), 479'001'600);
    EXPECT_EQ(failureNumber([] { modMaths::factorial(13); }), 6);
    EXPECT_EQ(failureNumber([] { modMaths::factorial(32767); }), 6);
}

TEST(MinAndMax, GiveTheFirstOfTwoEqualValues) {
    struct Value {
        int key;
        int which;
        bool operator<(const Value &other) const { return key < other.key; }
        bool operator>(const Value &other) const { return key > other.key; }
    };
    EXPECT_EQ(modMaths::maxOf(0, 0), 0);
    EXPECT_EQ(modMaths::maxOf(Value{0, 1}, Value{0, 2}).which, 1);
    EXPECT_EQ(modMaths::minOf(Value{0, 1}, Value{0, 2}).which, 1);
    EXPECT_EQ(modMaths::maxOf(1, 2), 2);
    EXPECT_EQ(modMaths::maxOf(2, 1), 2);
    EXPECT_EQ(modMaths::minOf(1, 2), 1);
    EXPECT_EQ(modMaths::minOf(2, 1), 1);
}

using CnkTable = FreshProgramTest;

TEST_F(CnkTable, IsEmptyAtFirstAndThenHoldsEveryBinomial) {
    EXPECT_EQ(cnkTable[6][49], 0);
    modMaths::precomputeCnk();
    const auto triangle = pascal(50);
    for (std::size_t k = 1; k <= 6; ++k)
        for (std::size_t n = 0; n <= 49; ++n)
            EXPECT_EQ(cnkTable[k][n], triangle[n][k]) << n << " over " << k;
    EXPECT_EQ(cnkTable[6][5], 0);
    EXPECT_EQ(cnkTable[1][49], 49);
    EXPECT_EQ(cnkTable[6][49], 13'983'816);
}

/// The rank as it is told, one step after the other.
gameComb combFromRankByCounting(std::int32_t rank, std::int16_t k) {
    gameComb comb;
    for (int p = k; p >= 2; --p) {
        int c = p;
        while (c < 50 && cnkTable[static_cast<std::size_t>(p)][static_cast<std::size_t>(c)] <= rank)
            ++c;
        comb.num(p, static_cast<std::int16_t>(c - 1));
        rank -= cnkTable[static_cast<std::size_t>(p)][static_cast<std::size_t>(c - 1)];
    }
    comb.num(1, static_cast<std::int16_t>(rank));
    return comb;
}

class Ranks : public BoulixTest, public ::testing::WithParamInterface<std::int16_t> {};

TEST_P(Ranks, CountTheCombinationsOfSmallSizesOneByOne) {
    const std::int16_t k = GetParam();
    const std::int32_t count = Cnk(50, k);
    Numbers numbers(static_cast<std::size_t>(k));
    std::iota(numbers.begin(), numbers.end(), std::int16_t{0});
    for (std::int32_t rank = 0; rank < count; ++rank) {
        ASSERT_EQ(combRank(combOf(numbers), k), rank);
        ASSERT_EQ(numbersOf(combFromRank(rank, k), k), numbers);
        // The next one in the order that looks at the last number first.
        std::size_t i = 0;
        while (i + 1 < numbers.size() && numbers[i] + 1 == numbers[i + 1]) {
            numbers[i] = static_cast<std::int16_t>(i);
            ++i;
        }
        ++numbers[i];
    }
}

INSTANTIATE_TEST_SUITE_P(, Ranks, ::testing::Values(1, 2, 3, 4));

using RanksOfSix = BoulixTest;

TEST_F(RanksOfSix, AreTurnedBackForEveryAscendingCombination) {
    std::mt19937 random(42);
    Numbers all(50);
    std::iota(all.begin(), all.end(), std::int16_t{0});
    for (int i = 0; i < 100'000; ++i) {
        Numbers numbers;
        std::sample(all.begin(), all.end(), std::back_inserter(numbers), 6, random);
        const std::int32_t rank = combRank(combOf(numbers), 6);
        ASSERT_EQ(numbersOf(combFromRank(rank, 6)), numbers) << rank;
    }
}

TEST_F(RanksOfSix, AgreeWithTheCountingOfSteps) {
    std::mt19937 random(43);
    std::uniform_int_distribution<std::int32_t> ranks(0, 15'890'699); // C(50, 6) - 1
    for (int i = 0; i < 100'000; ++i) {
        const std::int32_t rank = ranks(random);
        ASSERT_EQ(numbersOf(combFromRank(rank, 6)), numbersOf(combFromRankByCounting(rank, 6)));
        ASSERT_EQ(combRank(combFromRank(rank, 6), 6), rank);
    }
}

TEST_F(RanksOfSix, GoFromTheFirstToTheLastCombination) {
    EXPECT_EQ(combRank(combOf({0, 1, 2, 3, 4, 5}), 6), 0);
    EXPECT_EQ(combRank(combOf({44, 45, 46, 47, 48, 49}), 6), 15'890'699);
    EXPECT_EQ(numbersOf(combFromRank(0, 6)), (Numbers{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(numbersOf(combFromRank(15'890'699, 6)), (Numbers{44, 45, 46, 47, 48, 49}));
}

TEST_F(RanksOfSix, OutsideTheCombinationsFollowTheCountingOfSteps) {
    for (const std::int32_t rank : {-1, -1000, 15'890'700, 15'920'000})
        EXPECT_EQ(numbersOf(combFromRank(rank, 6)), numbersOf(combFromRankByCounting(rank, 6)));
    EXPECT_EQ(failureNumber([] { combFromRank(2'000'000'000, 6); }), 6);
}

TEST_F(RanksOfSix, BelowTwoPositionsTheRankIsTheNumber) {
    EXPECT_EQ(numbersOf(combFromRank(17, 1)), (Numbers{17, 0, 0, 0, 0, 0}));
    EXPECT_EQ(numbersOf(combFromRank(17, 0)), (Numbers{17, 0, 0, 0, 0, 0}));
    EXPECT_EQ(failureNumber([] { combFromRank(32'768, 1); }), 6);
    EXPECT_EQ(combRank(combOf({17, 3, 3, 3, 3, 3}), 1), 17);
    EXPECT_EQ(combRank(combOf({17}), 0), 0);
}

TEST_F(RanksOfSix, ANumberOrAPositionOutsideTheTableIsABoundsFailure) {
    EXPECT_EQ(failureNumber([] { combRank(combOf({1, 2, 3, 4, 5, 50}), 6); }), 9);
    EXPECT_EQ(failureNumber([] { combRank(combOf({-1, 2, 3, 4, 5, 6}), 6); }), 9);
    EXPECT_EQ(failureNumber([] { combRank(combOf({-1, 2, 3, 4, 5, 50}), 0); }), 0);
    EXPECT_EQ(failureNumber([] { combRank(combOf({0, 1, 2, 3, 4, 5}), 7); }), 9);
    EXPECT_EQ(failureNumber([] { combFromRank(0, 7); }), 9);
}

TEST(SortIndex, OfThreeOneTwoIsTwoThreeOne) {
    std::vector<std::int32_t> index(4);
    modMaths::sortIndex({0, 3, 1, 2}, index, 3);
    EXPECT_EQ(index, (std::vector<std::int32_t>{0, 2, 3, 1}));
}

/// The exchange of neighbours, on entries 1 to n.
template <class Value, class Greater>
void bubbleSort(std::vector<Value> &values, std::size_t n, Greater greater) {
    for (std::size_t j = 1; j <= n; ++j)
        for (std::size_t i = 1; i + j <= n; ++i)
            if (greater(values[i], values[i + 1]))
                std::swap(values[i], values[i + 1]);
}

TEST(SortIndex, AgreesWithTheExchangeOfNeighbours) {
    std::mt19937 random(1);
    for (std::size_t n = 0; n <= 60; ++n) {
        std::uniform_int_distribution<std::int32_t> values(-9, 9); // few, so that many are equal
        std::vector<std::int32_t> keys(n + 3);
        for (auto &key : keys)
            key = values(random);
        std::vector<std::int32_t> index(n + 3, -1);
        auto expected = index;
        std::iota(expected.begin() + 1, expected.begin() + 1 + static_cast<std::ptrdiff_t>(n), 1);
        bubbleSort(expected, n, [&keys](std::int32_t a, std::int32_t b) {
            return keys[static_cast<std::size_t>(a)] > keys[static_cast<std::size_t>(b)];
        });
        const auto before = keys;
        modMaths::sortIndex(keys, index, static_cast<std::int32_t>(n));
        ASSERT_EQ(index, expected) << n;
        ASSERT_EQ(keys, before);
    }
}

TEST(SortIntegers, AgreesWithTheExchangeOfNeighboursAndTouchesNothingElse) {
    std::mt19937 random(2);
    std::uniform_int_distribution<int> numbers(-100, 100);
    for (std::size_t n = 0; n <= 60; ++n) {
        std::vector<std::int16_t> values(n + 3);
        for (auto &value : values)
            value = static_cast<std::int16_t>(numbers(random));
        auto expected = values;
        bubbleSort(expected, n, [](std::int16_t a, std::int16_t b) { return a > b; });
        modMaths::sortIntegers(values, static_cast<std::int32_t>(n));
        ASSERT_EQ(values, expected) << n;
    }
}

TEST(Sorts, OfNothingDoNothingAndBeyondTheArrayFail) {
    std::vector<std::int32_t> keys(4);
    std::vector<std::int32_t> index;
    std::vector<std::int16_t> values;
    EXPECT_EQ(failureNumber([&] { modMaths::sortIndex(keys, index, 0); }), 0);
    EXPECT_EQ(failureNumber([&] { modMaths::sortIntegers(values, -1); }), 0);
    EXPECT_EQ(failureNumber([&] { modMaths::sortIndex(keys, index, 1); }), 9);
    index.resize(10);
    EXPECT_EQ(failureNumber([&] { modMaths::sortIndex(keys, index, 4); }), 9);
    EXPECT_EQ(failureNumber([&] { modMaths::sortIntegers(values, 1); }), 9);
}

} // namespace
} // namespace boulix
