// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

constexpr Date day1 = 37632; // 11 January 2003
constexpr Date day2 = 37636; // 15 January 2003
const DrawOf first = {day1, 1, {2, 3, 5, 7, 11, 13, 17}, 41, 58};
const DrawOf second = {day1, 2, {33, 32, 42, 16, 15, 49, 37}, 7, 8};
const DrawOf third = {day2, 1, {1, 4, 22, 30, 41, 49, 8}};
const std::vector<std::string> threeRows = {"11/01/2003 (1) 2 3 5 7 11 13 + 17 = 41 58",
                                            "11/01/2003 (2) 33 32 42 16 15 49 + 37 = 7 8",
                                            "15/01/2003 (1) 1 4 22 30 41 49 + 8 = 0 0"};

class DrawBase : public DrawsTest {
  protected:
    void addThree() {
        add(first);
        add(second);
        add(third);
    }
};

TEST_F(DrawBase, AddAppendsWhateverTheDateAndGivesTheDraw) {
    add(third);
    const dbComb &added = gDbCombs->Add(day1, 1, combOf(first.numbers), false, "");
    EXPECT_EQ(&added, &gDbCombs->Item(2));
    EXPECT_EQ(rows(), (std::vector<std::string>{"15/01/2003 (1) 1 4 22 30 41 49 + 8 = 0 0",
                                                "11/01/2003 (1) 2 3 5 7 11 13 + 17 = 0 0"}));
    EXPECT_FALSE(testing_support::fileExists(baseFile()));
}

TEST_F(DrawBase, AddTakesTheSameDrawTwice) {
    add(first);
    add(first);
    EXPECT_EQ(gDbCombs->Count(), 2);
}

TEST_F(DrawBase, AddSavesWhenAskedTo) {
    addThree();
    gDbCombs->Remove(3);
    gDbCombs->Add(third.day, 1, combOf(third.numbers), true, "");
    EXPECT_EQ(baseFileBytes(), drawsFile({first, second, third}));
}

TEST_F(DrawBase, ItemOutsideTheBaseFails) {
    EXPECT_EQ(failureNumber([] { gDbCombs->Item(1); }), 9);
    addThree();
    for (const std::int64_t index : {-1, 0, 4, 100000})
        EXPECT_EQ(failureNumber([&] { gDbCombs->Item(index); }), 9) << index;
    EXPECT_EQ(gDbCombs->Item(3).day(), day2);
}

TEST_F(DrawBase, IsWalkedInCollectionOrder) {
    addThree();
    EXPECT_EQ(gDbCombs->Count(), 3);
    EXPECT_EQ(rows(), threeRows);
}

TEST_F(DrawBase, SavesSumsAsTheyStandInMemoryAndZerosBetweenTheRecords) {
    addThree();
    gDbCombs->Add(day2, 2, {}, true, "");
    const std::string expected = drawsFile({first, second, third, {day2, 2, {}}});
    EXPECT_EQ(baseFileBytes(), expected);
    EXPECT_EQ(expected.size(), 4U * 128 + 28);
}

TEST_F(DrawBase, SaveReplacesWhateverWasThere) {
    writeBytes(baseFile(), std::string(5000, 'x'));
    gDbCombs->Add(first.day, 1, combOf(first.numbers), true, "");
    EXPECT_EQ(baseFileBytes(), drawsFile({{day1, 1, first.numbers}}));
}

TEST_F(DrawBase, SaveSetsBothDatesOfTheHeaderToToday) {
    writeBytes(baseFile(), drawsFile({first}, {.date = "01/02/2003"}));
    gDbCombs->load();
    platform.day = dateOf({2026, 12, 31});
    gDbCombs->Remove(1);
    EXPECT_EQ(baseFileBytes(), headBytes({.date = "31/12/2026"}));
}

TEST_F(DrawBase, RemoveTakesOneDrawOutAndSaves) {
    addThree();
    gDbCombs->Remove(2);
    EXPECT_EQ(rows(), (std::vector<std::string>{threeRows[0], threeRows[2]}));
    EXPECT_EQ(baseFileBytes(), drawsFile({first, third}));
}

TEST_F(DrawBase, RemoveOutsideTheBaseFailsAndSavesNothing) {
    addThree();
    for (const std::int64_t index : {-1, 0, 4})
        EXPECT_EQ(failureNumber([&] { gDbCombs->Remove(index); }), 9) << index;
    EXPECT_EQ(rows(), threeRows);
    EXPECT_FALSE(testing_support::fileExists(baseFile()));
}

TEST_F(DrawBase, RemovingTheOnlyDrawLeavesAnEightySixByteFile) {
    add(first);
    gDbCombs->Remove(1);
    EXPECT_EQ(gDbCombs->Count(), 0);
    EXPECT_EQ(baseFileBytes(), headBytes());
    EXPECT_EQ(baseFileBytes().size(), 86U);
}

TEST_F(DrawBase, ClearEmptiesTheMemoryOnly) {
    gDbCombs->Add(first.day, 1, combOf(first.numbers), true, "");
    const std::string before = baseFileBytes();
    gDbCombs->clear();
    EXPECT_EQ(gDbCombs->Count(), 0);
    EXPECT_EQ(baseFileBytes(), before);
}

TEST_F(DrawBase, AReferenceHeldAcrossASortIsToAPosition) {
    add(third);
    add(first);
    const dbComb &held = gDbCombs->Item(1);
    gDbCombs->sort();
    EXPECT_EQ(rowOf(held), threeRows[0]);
}

} // namespace
} // namespace boulix
