// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/numberBoard.h"

#include "support/boulixTest.h"
#include "support/numberScript.h"

#include <algorithm>
#include <random>
#include <vector>

namespace boulix {
namespace {

using testing_support::markedNumbers;
using Numbers = std::vector<std::int16_t>;

TEST(NumberBoards, KeepTheOrderOfMarking) {
    NumberBoard board;
    for (const std::int16_t n : Numbers{7, 49, 1, 30})
        board.selectNumber(n);
    EXPECT_EQ(markedNumbers(board), (Numbers{7, 49, 1, 30}));
    EXPECT_TRUE(board.click(49)); // unmarked
    EXPECT_TRUE(board.click(49)); // and marked again, now the last
    EXPECT_EQ(markedNumbers(board), (Numbers{7, 1, 30, 49}));
}

TEST(NumberBoards, MarkANumberOnceAndOnlyFrom1To49) {
    NumberBoard board;
    for (const std::int16_t n : Numbers{5, 5, 0, -1, 50, 49})
        board.selectNumber(n);
    EXPECT_EQ(markedNumbers(board), (Numbers{5, 49}));
}

TEST(NumberBoards, HaveNoNumberOutsideTheCount) {
    NumberBoard board;
    board.selectNumber(5);
    EXPECT_EQ(board.selectedNumber(1), 5);
    EXPECT_EQ(failureNumber([&board] { board.selectedNumber(0); }), 9);
    EXPECT_EQ(failureNumber([&board] { board.selectedNumber(2); }), 9);
}

TEST(NumberBoards, RefuseAClickBeyondTheLimitAndTakeOneThatUnmarks) {
    NumberBoard board;
    board.maxSelected(2);
    EXPECT_TRUE(board.click(1));
    EXPECT_TRUE(board.click(2));
    EXPECT_FALSE(board.click(3));
    EXPECT_EQ(markedNumbers(board), (Numbers{1, 2}));
    EXPECT_TRUE(board.click(1));
    EXPECT_TRUE(board.click(3));
    EXPECT_EQ(markedNumbers(board), (Numbers{2, 3}));
}

TEST(NumberBoards, WithoutALimitTakeAll49) {
    NumberBoard board;
    for (std::int16_t n = 1; n <= 49; ++n)
        EXPECT_TRUE(board.click(n));
    EXPECT_EQ(board.selectedCount(), 49);
    EXPECT_FALSE(board.click(50));
    EXPECT_FALSE(board.click(0));
}

TEST(NumberBoards, ThatAreClosedTakeNoClickButTheProgramsMarks) {
    NumberBoard board;
    board.editable(false);
    EXPECT_FALSE(board.click(1));
    board.selectNumber(2);
    EXPECT_EQ(markedNumbers(board), (Numbers{2}));
}

TEST(NumberBoards, TellTheComplementaryApartAndCountItLast) {
    NumberBoard board;
    for (const std::int16_t n : Numbers{1, 2, 3, 4, 5, 6})
        board.selectNumber(n);
    board.selectComplementary(7);
    EXPECT_EQ(board.selectedCount(), 7);
    EXPECT_EQ(board.selectedNumber(7), 7);
    EXPECT_TRUE(board.isComplementary(7));
    EXPECT_FALSE(board.isComplementary(6));
    EXPECT_FALSE(board.isComplementary(0));
    board.click(7);
    EXPECT_FALSE(board.isComplementary(7));
    board.click(7); // the user marks plain numbers
    EXPECT_FALSE(board.isComplementary(7));
    board.selectComplementary(8);
    board.clearSelection();
    EXPECT_FALSE(board.isComplementary(8));
    board.selectComplementary(50);
    EXPECT_FALSE(board.isComplementary(50));
}

TEST(NumberBoards, RaiseSelectionChangedForTheUsersClicksOnly) {
    NumberBoard board;
    int raised = 0;
    int repainted = 0;
    board.selectionChanged = [&raised] { ++raised; };
    board.repaint = [&repainted] { ++repainted; };
    board.maxSelected(1);
    board.selectNumber(1);
    board.clearSelection();
    board.toggle(3);
    board.toggle(3);
    board.selectComplementary(4);
    board.clearSelection();
    EXPECT_EQ(raised, 0);
    EXPECT_GE(repainted, 6);
    board.click(1);
    board.click(2); // refused
    board.click(1);
    EXPECT_EQ(raised, 2);
}

TEST(NumberBoards, HaveSeenTheMarkWhenTheEventIsRaised) {
    NumberBoard board;
    std::int16_t count = -1;
    board.selectionChanged = [&] { count = board.selectedCount(); };
    board.click(9);
    EXPECT_EQ(count, 1);
    board.click(9);
    EXPECT_EQ(count, 0);
}

TEST(NumberBoards, FollowAPlainListUnderAnyClicks) {
    std::mt19937 random(21);
    std::uniform_int_distribution<int> numbers(-1, 51);
    NumberBoard board;
    board.maxSelected(10);
    Numbers expected;
    for (int i = 0; i < 20'000; ++i) {
        const auto n = static_cast<std::int16_t>(numbers(random));
        const auto at = std::find(expected.begin(), expected.end(), n);
        const bool marked = at != expected.end();
        const bool taken = n >= 1 && n <= 49 && (marked || expected.size() < 10);
        if (marked)
            expected.erase(at);
        else if (taken)
            expected.push_back(n);
        ASSERT_EQ(board.click(n), taken);
        ASSERT_EQ(markedNumbers(board), expected);
    }
}

} // namespace
} // namespace boulix
