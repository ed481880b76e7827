// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the search for small systems is put together of.

#include "games/coveringReduction.h"
#include "games/finiteField.h"
#include "games/setCoverSearch.h"

#include <bit>
#include <gtest/gtest.h>
#include <set>

namespace boulix {
namespace {

using namespace covering;

TEST(CoveringDesignTest, SubsetsComeInTheOrderOfTheirRanks) {
    for (int size = 1; size <= 6; ++size) {
        std::uint32_t rank = 0;
        for (PointSet set = firstSubset(size); set < PointSet{1} << 11; set = nextSubset(set)) {
            EXPECT_EQ(std::popcount(set), size);
            EXPECT_EQ(rankOf(set), rank++);
        }
        EXPECT_EQ(rank, binomial(11, size));
    }
    EXPECT_EQ(binomial(49, 6), 13983816);
    EXPECT_EQ(binomial(5, 6), 0);
    EXPECT_EQ(binomial(5, -1), 0);
}

TEST(CoveringDesignTest, TheSubsetsOfASetAreAllOfThemOnce) {
    const PointSet set = 0b1011010010;
    for (int size = 0; size <= 5; ++size) {
        std::set<PointSet> seen;
        for (const PointSet subset : subsetsOf(set, size)) {
            EXPECT_EQ(subset & ~set, 0U);
            EXPECT_EQ(std::popcount(subset), size);
            seen.insert(subset);
        }
        EXPECT_EQ(std::ssize(seen), binomial(5, size));
    }
}

TEST(FiniteFieldTest, EveryFieldUpTo49ObeysItsLaws) {
    for (int q = 2; q <= 49; ++q) {
        const bool primePower = std::set<int>{2,  3,  4,  5,  7,  8,  9,  11, 13, 16, 17, 19,
                                              23, 25, 27, 29, 31, 32, 37, 41, 43, 47, 49}
                                    .count(q) == 1;
        ASSERT_EQ(FiniteField::exists(q), primePower) << q;
        if (!primePower)
            continue;
        const FiniteField field(q);
        for (int a = 0; a < q; ++a) {
            EXPECT_EQ(field.add(a, field.negative(a)), 0);
            EXPECT_EQ(field.multiply(a, 1), a);
            EXPECT_EQ(field.power(a, q), a);
            for (int b = 0; b < q; ++b) {
                EXPECT_EQ(field.multiply(a, b), field.multiply(b, a));
                const int c = (a * 7 + b * 3 + 1) % q;
                ASSERT_EQ(field.multiply(a, field.add(b, c)),
                          field.add(field.multiply(a, b), field.multiply(a, c)))
                    << q;
            }
        }
    }
    EXPECT_FALSE(FiniteField::exists(1));
    EXPECT_FALSE(FiniteField::exists(0));
}

TEST(PointGroupTest, EveryGeneratorIsAPermutationOfThePoints) {
    for (int points = 2; points <= 49; ++points)
        for (const PointGroup &group : symmetryGroups(points))
            for (const Permutation &p : group) {
                std::set<int> images;
                for (int i = 0; i < points; ++i)
                    images.insert(p[static_cast<std::size_t>(i)]);
                ASSERT_EQ(std::ssize(images), points);
                ASSERT_LT(*images.rbegin(), points);
            }
}

TEST(PointGroupTest, TheProjectiveGroupsOfTwentyFourPointsHoldTheOneOfTheSteinerSystem) {
    // 759 octads: the group of the projective line over 23 elements has 6072.
    std::size_t longest = 0;
    for (const PointGroup &group : symmetryGroups(24)) {
        const std::size_t length = orbitOf(0b1011101, group, 100'000).size();
        if (length <= 6072)
            longest = std::max(longest, length);
    }
    EXPECT_EQ(longest, 6072U);
}

TEST(OrbitNumberingTest, SetsHaveTheSameNumberWhenTheGroupTakesOneToTheOther) {
    const PointGroup group = symmetryGroups(9).back();
    OrbitNumbering numbering(9, 3, group);
    while (!numbering.complete())
        EXPECT_GT(numbering.run(10), 0);
    std::size_t sets = 0;
    for (const OrbitNumbering::Orbit &orbit : numbering.orbits()) {
        const auto members = orbitOf(orbit.first, group, 1000);
        EXPECT_EQ(members.size(), orbit.size);
        for (const PointSet member : members)
            EXPECT_EQ(numbering.of(member), numbering.of(orbit.first));
        sets += members.size();
    }
    EXPECT_EQ(std::int64_t(sets), binomial(9, 3));
}

TEST(SetCoverTest, AColumnCoversARowWhenItsBlocksCoverTheOrbit) {
    const CoveringDesign design{8, 4, 2, 3};
    for (const PointGroup &group : symmetryGroups(8)) {
        SetCover problem(design, group, 1000);
        while (!problem.built())
            problem.build(50);
        OrbitNumbering sets(8, 3, group);
        sets.run(1'000'000);
        for (SetCover::Index column = 0; column < problem.columns(); ++column) {
            std::set<SetCover::Index> covered;
            const auto blocks = orbitOf(problem.representative(column), group, 1000);
            EXPECT_EQ(blocks.size(), problem.cost(column));
            for (const PointSet block : blocks) {
                EXPECT_EQ(problem.columnOf(block), column);
                for (PointSet s = firstSubset(3); s < 256; s = nextSubset(s))
                    if (std::popcount(s & block) >= 2)
                        covered.insert(sets.of(s));
            }
            const auto rows = problem.rowsOf(column);
            EXPECT_EQ(covered, std::set<SetCover::Index>(rows.begin(), rows.end()));
            for (const SetCover::Index row : rows) {
                const auto columns = problem.columnsOf(row);
                EXPECT_EQ(std::count(columns.begin(), columns.end(), column), 1);
            }
        }
    }
}

TEST(SetCoverTest, DearColumnsAreLeftOut) {
    const PointGroup group = symmetryGroups(9).front();
    SetCover problem({9, 4, 2, 2}, group, 5);
    while (!problem.built())
        problem.build(1000);
    for (SetCover::Index column = 0; column < problem.columns(); ++column)
        EXPECT_LE(problem.cost(column), 5U);
    bool left = false;
    for (PointSet block = firstSubset(4); block < 512; block = nextSubset(block))
        left = left || problem.columnOf(block) == problem.columns();
    EXPECT_TRUE(left);
}

TEST(SetCoverSearchTest, WhatItCallsACoverCoversEveryRowAtTheCostItTells) {
    SearchRandom random(5);
    for (const PointGroup &group : symmetryGroups(10)) {
        SetCover problem({10, 5, 3, 3}, group, 1000);
        while (!problem.built())
            problem.build(1'000'000);
        SetCoverSearch search(problem, random);
        search.start({});
        search.run(50'000, 0);
        std::set<SetCover::Index> covered;
        std::int64_t cost = 0;
        for (const SetCover::Index column : search.best()) {
            cost += problem.cost(column);
            covered.insert(problem.rowsOf(column).begin(), problem.rowsOf(column).end());
        }
        EXPECT_EQ(cost, search.bestCost());
        EXPECT_EQ(covered.size(), problem.rows());
    }
}

TEST(CoveringReductionTest, OnlyBlocksWithoutWhichNothingIsLostGo) {
    const CoveringDesign design{6, 3, 2, 2};
    Blocks blocks{0b000111, 0b000111, 0b111000, 0b001011};
    removeRedundant(design, blocks);
    EXPECT_EQ(blocks, (Blocks{0b000111, 0b111000, 0b001011}));
}

} // namespace
} // namespace boulix
