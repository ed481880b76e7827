// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "paperTest.h"
#include "printing/slipTest.h"

#include "games/game.h"
#include "printing/frmPrintGridPreview.h"
#include "printing/modPrinter.h"

#include <random>

namespace boulix {
namespace {

using namespace testing_support;

constexpr double allowed = 0.05; // millimetres

/// Fed from the right, the end of the slip lies 40 mm above the sheet: users of that direction
/// shift it down.
constexpr float shiftFromTheRight = 40;

/// Six numbers of each grid: all numbers come up, on all positions of a slip.
gameComb::Numbers numbersOf(int grid) {
    gameComb::Numbers numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] =
            static_cast<std::int16_t>((static_cast<std::size_t>(grid) * 11 + i * 8) % 49 + 1);
    return numbers;
}

game gameOf(int count) {
    game grids;
    for (int i = 1; i <= count; ++i)
        grids.Add() = gameComb(numbersOf(i));
    return grids;
}

/// The crosses that a slip with the grids `first` to `last` and these marks must show.
std::vector<Cross> expectedSlip(int first, int last, std::vector<Cross> marks) {
    std::vector<Cross> crosses;
    for (int grid = first; grid <= last; ++grid)
        for (const int number : numbersOf(grid))
            crosses.push_back(plainBox(grid - first + 1, number));
    crosses.insert(crosses.end(), marks.begin(), marks.end());
    return crosses;
}

std::vector<Cross> turned(std::vector<Cross> crosses, int direction, double dx, double dy) {
    for (Cross &cross : crosses)
        cross = plainTurned(cross, direction, dx, dy);
    return crosses;
}

const std::vector<Cross> bothDrawsJokerFiveWeeks = {
    {55.5, 70, 58.3, 61}, {99, 69, 101.8, 82}, {148, 71, 150.8, 75}};

class SlipOnPaperTest : public PaperTest {
  protected:
    void confirmWithAllOptions() {
        printWindows.onGridPreview = [](frmPrintGridPreview &window) {
            window.clickWedAndSat(true);
            window.clickPlayJoker(true);
            window.clickAbon(true);
            window.clickWeek(3);
            window.clickToolbar(3);
        };
    }
    /// Compares the lines of a page with the two diagonals of each cross.
    static void expectOnPage(const PrintedPages &pages, int page,
                             const std::vector<Cross> &crosses) {
        const auto paths = pages.paths(page);
        ASSERT_EQ(paths.size(), 2 * crosses.size()) << "page " << page;
        for (std::size_t i = 0; i < crosses.size(); ++i) {
            const Cross &c = crosses[i];
            expectLine(paths[2 * i], c.x1, c.y1, c.x2, c.y2);
            expectLine(paths[2 * i + 1], c.x2, c.y1, c.x1, c.y2);
        }
    }
    static void expectLine(const PrintedPath &path, double x1, double y1, double x2, double y2) {
        ASSERT_EQ(path.points.size(), 2U);
        EXPECT_NEAR(path.points[0].x, x1, allowed);
        EXPECT_NEAR(path.points[0].y, y1, allowed);
        EXPECT_NEAR(path.points[1].x, x2, allowed);
        EXPECT_NEAR(path.points[1].y, y2, allowed);
        EXPECT_NEAR(path.width, 4 * 25.4 / 300, 0.001) << "four dots of 1/300 inch";
    }
};

TEST_F(SlipOnPaperTest, EveryCrossLiesInItsBoxInAllFourDirections) {
    confirmWithAllOptions();
    for (const char *queue : bothQueues)
        for (int direction = 0; direction < 4; ++direction) {
            SCOPED_TRACE(std::string(queue) + ", direction " + std::to_string(direction));
            modPrinter::currentPrinter(queue);
            modPrinter::direction = direction;
            modPrinter::offset_Y = direction == 1 ? shiftFromTheRight : 0.0F;
            gameOf(8).PrintGameGrid();
            const auto pages = lastPrinted(queue);
            ASSERT_EQ(pages.count(), 1);
            expectOnPage(pages, 1,
                         turned(expectedSlip(1, 8, bothDrawsJokerFiveWeeks), direction, 0,
                                modPrinter::offset_Y));
        }
}

TEST_F(SlipOnPaperTest, TheOffsetsShiftEveryCross) {
    confirmWithAllOptions();
    modPrinter::currentPrinter("Salon");
    std::mt19937 random(9);
    std::uniform_int_distribution<int> hundredth(0, 2000);
    for (int direction = 0; direction < 4; ++direction) {
        SCOPED_TRACE(direction);
        modPrinter::direction = direction;
        modPrinter::offset_X = static_cast<float>(hundredth(random)) / 100;
        modPrinter::offset_Y =
            static_cast<float>(hundredth(random)) / 100 + (direction == 1 ? shiftFromTheRight : 0);
        gameOf(3).PrintGameGrid();
        expectOnPage(lastPrinted("Salon"), 1,
                     turned(expectedSlip(1, 3, bothDrawsJokerFiveWeeks), direction,
                            modPrinter::offset_X, modPrinter::offset_Y));
    }
}

TEST_F(SlipOnPaperTest, NineGridsTakeTwoSlipsWithTheMarksOnBoth) {
    confirmWithAllOptions();
    modPrinter::currentPrinter("Bureau");
    gameOf(9).PrintGameGrid();
    const auto pages = lastPrinted("Bureau");
    ASSERT_EQ(pages.count(), 2);
    expectOnPage(pages, 1, expectedSlip(1, 8, bothDrawsJokerFiveWeeks));
    expectOnPage(pages, 2, expectedSlip(9, 9, bothDrawsJokerFiveWeeks));
}

TEST_F(SlipOnPaperTest, ACanvasSheetTakesASlipInEachSlot) {
    confirmWithAllOptions();
    modPrinter::direction = 1;
    modPrinter::offset_Y = 30;
    for (const char *queue : bothQueues) {
        SCOPED_TRACE(queue);
        modPrinter::currentPrinter(queue);
        gameOf(20).PrintGameGridCanvas();
        const auto pages = lastPrinted(queue);
        ASSERT_EQ(pages.count(), 2);
        auto sheet = turned(expectedSlip(1, 8, bothDrawsJokerFiveWeeks), 2, 29, 47);
        const auto lower = turned(expectedSlip(9, 16, bothDrawsJokerFiveWeeks), 2, 29, 177);
        sheet.insert(sheet.end(), lower.begin(), lower.end());
        expectOnPage(pages, 1, sheet);
        expectOnPage(pages, 2, turned(expectedSlip(17, 20, bothDrawsJokerFiveWeeks), 2, 29, 47));
    }
}

TEST_F(SlipOnPaperTest, TheCanvasShowsWhereToLayTheSlips) {
    for (const char *queue : bothQueues) {
        SCOPED_TRACE(queue);
        modPrinter::currentPrinter(queue);
        modPrinter::printCanvas();
        const auto pages = lastPrinted(queue);
        ASSERT_EQ(pages.count(), 1);
        const auto boxes = pages.paths(1);
        ASSERT_EQ(boxes.size(), 2U);
        const double tops[] = {20, 150};
        for (std::size_t i = 0; i < 2; ++i) {
            const PrintedPath::Point corners[] = {{25, tops[i]},
                                                  {185, tops[i]},
                                                  {185, tops[i] + 120},
                                                  {25, tops[i] + 120},
                                                  {25, tops[i]}};
            ASSERT_EQ(boxes[i].points.size(), 5U);
            for (std::size_t corner = 0; corner < 5; ++corner) {
                EXPECT_NEAR(boxes[i].points[corner].x, corners[corner].x, allowed);
                EXPECT_NEAR(boxes[i].points[corner].y, corners[corner].y, allowed);
            }
            EXPECT_NEAR(boxes[i].width, 2 * 25.4 / 300, 0.001);
        }
        ASSERT_EQ(pages.lines().size(), 2U);
        ASSERT_EQ(pages.words().size(), 10U);
        for (std::size_t i = 0; i < 2; ++i) {
            EXPECT_EQ(pages.lines()[i].text, "Haut de la grille ici");
            const auto &first = pages.words()[5 * i];
            const auto &last = pages.words()[5 * i + 4];
            EXPECT_NEAR((first.left + last.right) / 2, 105, 0.2);
            EXPECT_NEAR(first.top, tops[i] + 2 * (first.bottom - first.top), 1.5);
        }
    }
}

} // namespace
} // namespace boulix
