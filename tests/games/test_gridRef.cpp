// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/gridRef.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace boulix {
namespace {

gameComb gridOf(int n) {
    return gameComb({static_cast<std::int16_t>(n), 2, 3, 4, 5, 6});
}

TEST(GridRefTest, AGridAndAReferenceToItCost18Bytes) {
    EXPECT_EQ(sizeof(gameComb) + sizeof(GridRef), 18U);
}

TEST(GridRefTest, AReferenceToNothingSaysSo) {
    EXPECT_FALSE(GridRef());
    EXPECT_TRUE(GridRef(gridOf(1)));
}

TEST(GridRefTest, ACopyRefersToTheSameGrid) {
    const GridRef one(gridOf(1));
    const GridRef other = one;
    other->num(1, 42);
    EXPECT_EQ(one->num(1), 42);
    EXPECT_TRUE(one == other);
}

TEST(GridRefTest, EqualGridsAreNotTheSameGrid) {
    EXPECT_FALSE(GridRef(gridOf(1)) == GridRef(gridOf(1)));
}

TEST(GridRefTest, AnAssignmentToItselfChangesNothing) {
    GridRef one(gridOf(7));
    const GridRef &same = one;
    one = same;
    EXPECT_EQ(one->num(1), 7);
}

TEST(GridRefTest, AMovedReferenceRefersToNothingAnyMore) {
    GridRef one(gridOf(3));
    const GridRef other = std::move(one);
    EXPECT_FALSE(one); // NOLINT(bugprone-use-after-move): this is what is looked at
    EXPECT_EQ(other->num(1), 3);
}

TEST(GridRefTest, TheLastReferenceGivesTheMemoryBack) {
    const std::size_t before = gridStore.chunkCount();
    std::vector<GridRef> grids;
    for (int i = 0; i < 600000; ++i)
        grids.emplace_back(gridOf(i % 100));
    EXPECT_GE(gridStore.chunkCount(), before + 4);
    std::vector<GridRef> shared = grids;
    grids.clear();
    EXPECT_GE(gridStore.chunkCount(), before + 4);
    EXPECT_EQ(shared.back()->num(1), 99);
    shared.clear();
    EXPECT_LE(gridStore.chunkCount(), before + 1);
}

TEST(GridRefTest, GridsMadeTogetherLieBehindOneAnotherAndAreEachReferredToOnce) {
    const std::size_t before = gridStore.chunkCount();
    std::vector<GridRef> grids;
    std::uint32_t left = 500000;
    while (left > 0) { // more than one chunk holds
        const GridStore::Stretch made = gridStore.make(left);
        ASSERT_GE(made.count, 1U);
        ASSERT_LE(made.count, left);
        for (std::uint32_t i = 0; i < made.count; ++i) {
            made.grids[i] = gridOf(static_cast<int>(left % 30000));
            grids.push_back(GridRef::adopt(made.first + i));
            ASSERT_EQ(&*grids.back(), made.grids + i);
            --left;
        }
    }
    EXPECT_GE(gridStore.chunkCount(), before + 3);
    for (std::size_t i = 0; i < grids.size(); ++i)
        ASSERT_EQ(grids[i]->num(1), static_cast<int>((500000 - i) % 30000));
    grids.clear();
    EXPECT_LE(gridStore.chunkCount(), before + 1);
}

TEST(GridRefTest, ManyGamesComingAndGoingNeverTakeEachOthersPlace) {
    // Plain values beside the references must always be equal to them.
    const std::size_t chunksBefore = gridStore.chunkCount();
    std::mt19937 random(7);
    std::vector<std::pair<GridRef, int>> kept;
    for (int step = 0; step < 300000; ++step) {
        const bool drop = !kept.empty() && random() % (kept.size() < 5000 ? 3 : 2) == 0;
        if (drop) {
            const std::size_t at = random() % kept.size();
            std::swap(kept[at], kept.back());
            kept.pop_back();
        } else {
            const int value = static_cast<int>(random() % 30000);
            kept.emplace_back(GridRef(gridOf(value)), value);
        }
        if (step % 50000 == 0)
            kept.clear();
    }
    for (const auto &[grid, value] : kept)
        EXPECT_EQ(grid->num(1), value);
    kept.clear();
    EXPECT_LE(gridStore.chunkCount(), chunksBefore + 1);
}

TEST(GridRefTest, ACopyOfAListRefersToTheSameGridsAndKeepsThem) {
    const std::size_t before = gridStore.chunkCount();
    std::vector<GridRef> grids;
    for (int i = 0; i < 400000; ++i)
        grids.emplace_back(gridOf(i % 100));
    std::shuffle(grids.begin(), grids.end(), std::mt19937(7)); // from chunk to chunk
    grids.push_back(grids.front());
    std::vector<GridRef> copy = GridRef::copyOf(grids);
    ASSERT_EQ(copy, grids);
    const int last = grids.back()->num(1);
    grids = {};
    EXPECT_GE(gridStore.chunkCount(), before + 2);
    EXPECT_EQ(copy.back()->num(1), last);
    copy = {};
    EXPECT_LE(gridStore.chunkCount(), before + 1) << "a count is too high";
}

TEST(GridRefTest, ACopyOfNothingIsNothing) {
    EXPECT_TRUE(GridRef::copyOf({}).empty());
}

} // namespace
} // namespace boulix
