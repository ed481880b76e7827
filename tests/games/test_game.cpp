// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/game.h"

#include "core/globals.h"
#include "gameTest.h"
#include "printing/frmPrintGridPreview.h"
#include "printing/modPrinter.h"
#include "printing/slipTest.h"

#include <numeric>
#include <random>
#include <vector>

namespace boulix {
namespace {

class GameSetTest : public GameTest {};

TEST_F(GameSetTest, AddWithoutAGridMakesOneOfZeros) {
    gameComb &grid = grids.Add();
    EXPECT_EQ(grids.Count(), 1);
    EXPECT_EQ(grid.numbers(), (Numbers{}));
    grid.num(1, 5);
    EXPECT_EQ(grids.Item(1).num(1), 5);
}

TEST_F(GameSetTest, AddStoresTheGivenGridItself) {
    const GridRef mine(gameComb({1, 2, 3, 4, 5, 6}));
    grids.Add(mine);
    mine->num(6, 49);
    EXPECT_EQ(grids.Item(1).num(6), 49);
}

TEST_F(GameSetTest, TheSameGridCanStandInTwoGames) {
    fill({{1, 2, 3, 4, 5, 6}});
    game other;
    other.Add(grids.shared(1));
    grids.Item(1).num(1, 7);
    EXPECT_EQ(other.Item(1).num(1), 7);
    grids.clear();
    EXPECT_EQ(other.Item(1).num(1), 7);
}

TEST_F(GameSetTest, GridsStayInTheOrderOfAdding) {
    fill({{9, 10, 11, 12, 13, 14}, {1, 2, 3, 4, 5, 6}});
    EXPECT_EQ(contents(), (Grids{{9, 10, 11, 12, 13, 14}, {1, 2, 3, 4, 5, 6}}));
}

TEST_F(GameSetTest, AWalkInStretchesMeetsEveryGridInOrder) {
    game others; // more grids than lie in one piece of memory
    for (std::int16_t i = 1; i <= 9000; ++i)
        others.Add(GridRef(gameComb({i, 2, 3, 4, 5, 6})));
    for (const std::int32_t i : {1, 2, 3, 9000, 4, 4, 5}) // one behind the other, apart, twice
        grids.Add(others.shared(i));
    for (std::int32_t i = 10; i <= 9000; ++i)
        grids.Add(others.shared(i));
    std::vector<std::int16_t> met;
    grids.forEachStretch([&met](const gameComb *stretch, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            met.push_back(stretch[i].num(1));
    });
    std::vector<std::int16_t> expected;
    for (const gameComb &grid : grids)
        expected.push_back(grid.num(1));
    EXPECT_EQ(met, expected);
}

TEST_F(GameSetTest, AStretchEndsWhereverAGridIsOutOfItsPlace) {
    game others;
    for (std::int16_t i = 1; i <= 200; ++i)
        others.Add(GridRef(gameComb({i, 2, 3, 4, 5, 6})));
    for (std::int32_t stray = 2; stray <= 200; ++stray) {
        grids.clear();
        for (std::int32_t i = 1; i <= 200; ++i)
            grids.Add(others.shared(i == stray ? 1 : i));
        std::vector<std::int16_t> met;
        grids.forEachStretch([&met](const gameComb *stretch, std::size_t count) {
            for (std::size_t i = 0; i < count; ++i)
                met.push_back(stretch[i].num(1));
        });
        std::vector<std::int16_t> expected(200);
        std::iota(expected.begin(), expected.end(), std::int16_t{1});
        expected[static_cast<std::size_t>(stray - 1)] = 1;
        EXPECT_EQ(met, expected) << stray;
    }
}

TEST_F(GameSetTest, AWalkInStretchesOfAnEmptyGameMeetsNothing) {
    grids.forEachStretch([](const gameComb *, std::size_t) { ADD_FAILURE(); });
}

TEST_F(GameSetTest, ABadPositionIsARunTimeFailure) {
    fill({{1, 2, 3, 4, 5, 6}});
    for (const int i : {0, 2, -1}) {
        EXPECT_EQ(failureNumber([&] { grids.Item(i); }), 9);
        EXPECT_EQ(failureNumber([&] { grids.Remove(i); }), 9);
    }
    EXPECT_EQ(grids.Count(), 1);
}

TEST_F(GameSetTest, KeysFollowTheirGrids) {
    grids.Add(GridRef(gameComb({1, 0, 0, 0, 0, 0})));
    grids.Add(GridRef(gameComb({2, 0, 0, 0, 0, 0})), "deux");
    grids.Add(GridRef(gameComb({3, 0, 0, 0, 0, 0})), "trois");
    grids.Remove(1);
    EXPECT_EQ(grids.Item("deux").num(1), 2);
    grids.Remove("deux");
    EXPECT_EQ(grids.Item("trois").num(1), 3);
    EXPECT_EQ(failureNumber([&] { grids.Item("deux"); }), 5);
    grids.clear();
    EXPECT_EQ(failureNumber([&] { grids.Item("trois"); }), 5);
}

TEST_F(GameSetTest, RemovingSeveralIsRemovingOneAfterTheOther) {
    std::mt19937 random(11);
    for (int turn = 0; turn < 300; ++turn) {
        Grids all;
        const int count = 1 + static_cast<int>(random() % 12);
        for (int i = 1; i <= count; ++i)
            all.push_back({static_cast<std::int16_t>(i), 0, 0, 0, 0, 0});
        std::vector<std::int64_t> positions;
        for (int i = 1; i <= count; ++i)
            if (random() % 3 == 0)
                positions.push_back(i);
        grids.clear();
        fill(all);
        game plain;
        for (int i = 1; i <= count; ++i)
            plain.Add(grids.shared(i), i % 4 == 0 ? std::to_string(i) : std::string());
        const int plainFailure = failureNumber([&] {
            for (const std::int64_t position : positions)
                plain.Remove(position);
        });
        EXPECT_EQ(failureNumber([&] { grids.Remove(positions); }), plainFailure);
        EXPECT_EQ(contents(), contentsOf(plain));
    }
}

TEST_F(GameSetTest, KeysFollowTheirGridsWhenSeveralAreRemoved) {
    grids.Add(GridRef(gameComb({1, 2, 3, 4, 5, 6})), "un");
    grids.Add(GridRef(gameComb({2, 3, 4, 5, 6, 7})), "deux");
    grids.Add(GridRef(gameComb({3, 4, 5, 6, 7, 8})), "trois");
    grids.Remove(
        std::vector<std::int64_t>{1, 2}); // the second position is the third grid's by then
    EXPECT_EQ(grids.Item("deux").num(1), 2);
    for (const char *gone : {"un", "trois"})
        EXPECT_EQ(failureNumber([&] { grids.Item(gone); }), 5) << gone;
}

TEST_F(GameSetTest, ClearEmptiesTheGame) {
    fill({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}});
    grids.clear();
    EXPECT_EQ(grids.Count(), 0);
    EXPECT_TRUE(grids.begin() == grids.end());
}

class GamePrintTest : public GameTest {};

TEST_F(GamePrintTest, TheListNumbersTheGridsUnderTheDate) {
    fill({{1, 2, 3, 4, 5, 6}, {7, 18, 29, 30, 41, 49}});
    grids.PrintGameList();
    const auto lines = printers.onlyDocument().lines();
    const std::vector<std::string> body(lines.end() - 4, lines.end());
    EXPECT_EQ(body, (std::vector<std::string>{"Jeu imprimé le 15/11/2026", "",
                                              "001)   01   02   03   04   05   06   ",
                                              "002)   07   18   29   30   41   49   "}));
    EXPECT_TRUE(printers.onlyDocument().ended);
}

TEST_F(GamePrintTest, WithoutAPrinterTheListIsNotPrinted) {
    printers.names.clear();
    desktop.answerNo();
    fill({{1, 2, 3, 4, 5, 6}});
    grids.PrintGameList();
    EXPECT_TRUE(printers.documents.empty());
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2301");
}

TEST_F(GamePrintTest, TheSlipsCarryTheGridsOfTheGame) {
    for (int i = 1; i <= 9; ++i)
        fill({{static_cast<std::int16_t>(i), 40, 40, 40, 40, 40}});
    printWindows.onGridPreview = [](frmPrintGridPreview &window) { window.clickToolbar(3); };
    grids.PrintGameGrid();
    EXPECT_EQ(printers.onlyDocument().pages, 2);
    const auto crosses = testing_support::crossesOf(printers.onlyDocument());
    ASSERT_EQ(crosses.size(), 9U * 6 + 2 * 2); // and two option marks a slip
    EXPECT_TRUE(testing_support::same(crosses[6], testing_support::plainBox(2, 2)));
}

TEST_F(GamePrintTest, TheGridsOnTheSlipsFollowTheDirectionAndTheOffsetsOfThePrinter) {
    fill({{12, 12, 12, 12, 12, 12}});
    printWindows.onGridPreview = [](frmPrintGridPreview &window) { window.clickToolbar(3); };
    modPrinter::offset_X = 3;
    modPrinter::offset_Y = 5;
    for (std::int32_t direction = 0; direction < 4; ++direction) {
        modPrinter::direction = direction;
        grids.PrintGameGrid();
        const auto crosses = testing_support::crossesOf(printers.documents.back());
        const auto expected =
            testing_support::plainTurned(testing_support::plainBox(1, 12), direction, 3, 5);
        EXPECT_TRUE(testing_support::same(crosses.at(0), expected)) << direction;
    }
}

TEST_F(GamePrintTest, TheCanvasRunUsesTheSlotsOfTheSheet) {
    fill({{12, 12, 12, 12, 12, 12}});
    printWindows.onGridPreview = [](frmPrintGridPreview &window) { window.clickToolbar(3); };
    grids.PrintGameGridCanvas();
    const auto crosses = testing_support::crossesOf(printers.onlyDocument());
    EXPECT_TRUE(testing_support::same(
        crosses.at(0), testing_support::plainTurned(testing_support::plainBox(1, 12), 2, 29, 47)));
}

TEST_F(GamePrintTest, ThePreviewShowsTheGridsOfItsPage) {
    for (int i = 1; i <= 9; ++i)
        fill({{static_cast<std::int16_t>(i), 40, 40, 40, 40, 40}});
    testing_support::RecordingPicture picture;
    grids.DisplayGrid(1, 9, 2, picture);
    const auto lines = picture.seen().ofKind(testing_support::Drawn::line);
    // The ninth grid's first number is 9: its cross begins in the last row of the first column.
    const bool found = std::any_of(lines.begin(), lines.end(), [](const auto &line) {
        const auto box = testing_support::plainBox(1, 9);
        return testing_support::same({line.x1, line.y1, line.x2, line.y2}, box);
    });
    EXPECT_TRUE(found);
}

} // namespace
} // namespace boulix
