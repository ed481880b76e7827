// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawIndex.h"

#include "core/numberMask.h"
#include "draws/drawsTest.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace boulix {
namespace {

using Numbers = std::array<int, 7>;

dbComb drawOf(const Numbers &numbers) {
    return {0, 1, combOf(numbers)};
}

/// Draws of seven different numbers.
std::vector<dbComb> madeDraws(int count) {
    std::mt19937 random(7);
    std::vector<dbComb> draws;
    Numbers numbers{};
    for (int i = 0; i < count; ++i) {
        std::uint64_t taken = 0;
        for (int &n : numbers) {
            do
                n = std::uniform_int_distribution<int>(1, 49)(random);
            while ((taken >> n & 1) != 0);
            taken |= std::uint64_t{1} << n;
        }
        draws.push_back(drawOf(numbers));
    }
    return draws;
}

std::vector<std::int32_t> found(const drawIndex &index, std::uint64_t chosen, bool withCompl,
                                std::int32_t first, std::int32_t last) {
    std::vector<std::int32_t> positions;
    forEachDraw(index.draws(first, last, chosen, withCompl),
                [&](std::int32_t i) { positions.push_back(i); });
    return positions;
}

/// The same by looking at each draw.
std::vector<std::int32_t> seen(const std::vector<dbComb> &draws, std::uint64_t chosen,
                               bool withCompl, std::int32_t first, std::int32_t last) {
    std::vector<std::int32_t> positions;
    for (std::int32_t i = first; i <= last; ++i) {
        const lotoComb &comb = draws.at(static_cast<std::size_t>(i - 1)).comb();
        bool all = true;
        forEachNumber(chosen, [&](std::int16_t n) { all = all && comb.isInside(n, withCompl); });
        if (all)
            positions.push_back(i);
    }
    return positions;
}

TEST(DrawIndex, FindsTheDrawsOfAnyStretchThatHoldTheChosenNumbers) {
    for (const int count : {1, 63, 64, 65, 200}) {
        const std::vector<dbComb> draws = madeDraws(count);
        const drawIndex index(draws);
        ASSERT_TRUE(index.isRegular());
        std::mt19937 random(11);
        for (int tries = 0; tries < 300; ++tries) {
            const int first = std::uniform_int_distribution<int>(1, count)(random);
            const int last = std::uniform_int_distribution<int>(first, count)(random);
            const bool withCompl = tries % 2 == 0;
            const lotoComb &comb = draws[static_cast<std::size_t>(first - 1)].comb();
            const std::uint64_t one = numberBit(comb.num(1));
            const std::uint64_t three = one | numberBit(comb.num(2)) | numberBit(comb.compl_());
            for (const std::uint64_t chosen : {one, three}) {
                const auto expected = seen(draws, chosen, withCompl, first, last);
                ASSERT_EQ(found(index, chosen, withCompl, first, last), expected)
                    << first << " to " << last << " of " << count;
            }
            const std::int16_t n = comb.num(3);
            ASSERT_EQ(
                index.count(index.draws(first, last, one, withCompl), n, withCompl),
                static_cast<int>(seen(draws, one | numberBit(n), withCompl, first, last).size()));
        }
    }
}

TEST(DrawIndex, ABaseWithAStrangeDrawIsNotRegular) {
    EXPECT_TRUE(drawIndex({}).isRegular());
    EXPECT_TRUE(drawIndex({drawOf({1, 2, 3, 4, 5, 49, 48})}).isRegular());
    const std::vector<Numbers> strange = {{0, 2, 3, 4, 5, 6, 7},  {1, 2, 3, 4, 5, 50, 7},
                                          {1, 2, 3, 4, 5, -6, 7}, {1, 2, 3, 4, 5, 6, 0},
                                          {1, 2, 3, 4, 5, 6, 50}, {1, 1, 3, 4, 5, 6, 7},
                                          {1, 2, 3, 4, 5, 6, 6}};
    for (const Numbers &numbers : strange) {
        std::vector<dbComb> draws = madeDraws(70);
        draws[66] = drawOf(numbers);
        EXPECT_FALSE(drawIndex(draws).isRegular()) << ::testing::PrintToString(numbers);
    }
}

/// How many draws of the base hold number 1.
std::int32_t ones() {
    const dbCombs &base = *gDbCombs;
    const drawIndex &index = base.index();
    return index.count(index.draws(1, base.Count(), 0, false), 1, false);
}

TEST_F(DrawsTest, TheIndexOfTheBaseFollowsEveryChange) {
    const DrawOf with = {37000, 1, {1, 2, 3, 4, 5, 6, 7}};
    const DrawOf without = {37001, 1, {11, 12, 13, 14, 15, 16, 17}};
    add(with);
    EXPECT_EQ(ones(), 1);
    add(without);
    add(with);
    EXPECT_EQ(ones(), 2);
    gDbCombs->Item(2).comb().num(1, 1);
    EXPECT_EQ(ones(), 3);
    gDbCombs->Remove(1);
    EXPECT_EQ(ones(), 2);
    desktop.answerNumbers(NumberScript().cancel());
    gDbCombs->modify(1);
    EXPECT_EQ(ones(), 2);
    gDbCombs->load();
    EXPECT_EQ(gDbCombs->Count(), 2);
    EXPECT_EQ(ones(), 2);
    gDbCombs->clear();
    EXPECT_TRUE(gDbCombs->index().isRegular());
    ASSERT_TRUE(importLines({"1;2;3;4;5;6;7;20030111;1", "1;12;13;14;15;16;17;20030112;1",
                             "21;22;23;24;25;26;27;20030113;1"}));
    EXPECT_EQ(ones(), 2);
}

} // namespace
} // namespace boulix
