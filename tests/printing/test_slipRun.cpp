// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/slipRun.h"

#include "printing/frmPrintGridPreview.h"
#include "printing/modPrinter.h"
#include "slipTest.h"

namespace boulix {
namespace {

using namespace testing_support;
using slipRun::Choice;
using slipRun::Sheets;

/// A grid of a game, as it was asked for.
struct Asked {
    std::int32_t grid;
    int position;
    int mode;
    std::int32_t direction;
    bool operator==(const Asked &) const = default;
};

void PrintTo(const Asked &asked, std::ostream *stream) {
    *stream << "grid " << asked.grid << " at " << asked.position << ", mode " << asked.mode
            << ", direction " << asked.direction;
}

class SlipRunTest : public BoulixTest {
  protected:
    /// Strikes number 1 six times for each grid, and writes down what was asked for.
    slipRun::GridDrawer drawer() {
        return [this](std::int32_t grid, std::int16_t position, Canvas &target,
                      slip::Placement placement) {
            asked.push_back({grid, position, placement.mode, placement.direction});
            slip::drawGrid(target, {1, 1, 1, 1, 1, 1}, position, placement);
        };
    }
    const PrintedDocument &print(const Choice &choice, Sheets sheets) {
        const auto paper = printers.openDocument("Bureau", "essai", Sides::one);
        slipRun::printSlips(*paper, choice, sheets, drawer());
        return printers.documents.back();
    }
    /// The crosses of a page that do not belong to a grid.
    static std::vector<Cross> marksOf(const PrintedDocument &document, int page,
                                      std::size_t grids) {
        Recording onPage;
        for (const Drawn &item : document.drawn)
            if (item.page == page)
                onPage.drawn.push_back(item);
        auto crosses = crossesOf(onPage);
        crosses.erase(crosses.begin(), crosses.begin() + static_cast<std::ptrdiff_t>(6 * grids));
        return crosses;
    }
    /// Presses the print button of the preview at once.
    void confirmPreview() {
        printWindows.onGridPreview = [](frmPrintGridPreview &window) { window.clickToolbar(3); };
    }

    std::vector<Asked> asked;
};

TEST_F(SlipRunTest, CountsSlipsOfEightGrids) {
    EXPECT_EQ(slipRun::slipCount(1, 1), 1);
    EXPECT_EQ(slipRun::slipCount(1, 8), 1);
    EXPECT_EQ(slipRun::slipCount(1, 9), 2);
    EXPECT_EQ(slipRun::slipCount(5, 12), 1);
    EXPECT_EQ(slipRun::slipCount(5, 13), 2);
    EXPECT_EQ(slipRun::slipCount(1, 13983816), 1747977);
}

TEST_F(SlipRunTest, NineGridsWithOptionsMakeTwoSlipsWithTheMarksOnBoth) {
    const auto &document = print({1, 9, true, true, 3}, Sheets::slips);
    EXPECT_EQ(document.pages, 2);
    EXPECT_TRUE(document.ended);
    const std::vector<Cross> marks = {
        {55.5, 70, 58.3, 61}, {99, 69, 101.8, 82}, {148, 65, 150.8, 69}};
    expectCrosses(marksOf(document, 1, 8), marks);
    expectCrosses(marksOf(document, 2, 1), marks);
    ASSERT_EQ(asked.size(), 9U);
    EXPECT_EQ(asked[7], (Asked{8, 8, 0, 2}));
    EXPECT_EQ(asked[8], (Asked{9, 1, 0, 2}));
}

TEST_F(SlipRunTest, WithoutOptionsTheMarksOfTheFirstChoicesAreStruck) {
    const auto &document = print({1, 1, false, false, 0}, Sheets::slips);
    expectCrosses(marksOf(document, 1, 1), {{55.5, 57, 58.3, 61}, {99, 78, 101.8, 82}});
}

TEST_F(SlipRunTest, ARangeBeginsWithItsFirstGridOnTheFirstPosition) {
    print({5, 14, false, false, 0}, Sheets::slips);
    ASSERT_EQ(asked.size(), 10U);
    EXPECT_EQ(asked.front(), (Asked{5, 1, 0, 2}));
    EXPECT_EQ(asked[8], (Asked{13, 1, 0, 2}));
    EXPECT_EQ(asked.back(), (Asked{14, 2, 0, 2}));
}

TEST_F(SlipRunTest, RealSlipsFollowTheDirectionAndTheOffsets) {
    modPrinter::offset_X = 1;
    modPrinter::offset_Y = 2;
    for (std::int32_t direction = 0; direction < 4; ++direction) {
        modPrinter::direction = direction;
        const auto &document = print({1, 1, true, false, 4}, Sheets::slips);
        std::vector<Cross> expected(6, plainTurned(plainBox(1, 1), direction, 1, 2));
        expected.push_back(plainTurned({55.5, 70, 58.3, 61}, direction, 1, 2));
        expected.push_back(plainTurned({99, 78, 101.8, 82}, direction, 1, 2));
        expected.push_back(plainTurned({148, 71, 150.8, 75}, direction, 1, 2));
        expectCrosses(crossesOf(document), expected);
    }
}

TEST_F(SlipRunTest, TheCanvasTakesTwoSlipsASheetWhateverTheDirection) {
    modPrinter::direction = 3;
    modPrinter::offset_X = 50;
    const auto &document = print({1, 17, false, false, 1}, Sheets::canvas);
    EXPECT_EQ(document.pages, 2);
    EXPECT_TRUE(document.ended);
    ASSERT_EQ(asked.size(), 17U);
    EXPECT_EQ(asked[0], (Asked{1, 1, 1, 2}));
    EXPECT_EQ(asked[8], (Asked{9, 1, 2, 2}));
    EXPECT_EQ(asked[16], (Asked{17, 1, 1, 2}));
    const auto second = marksOf(document, 2, 1);
    expectCrosses(second, {plainTurned({55.5, 57, 58.3, 61}, 2, 29, 47),
                           plainTurned({99, 78, 101.8, 82}, 2, 29, 47),
                           plainTurned({129, 65, 131.8, 69}, 2, 29, 47)});
}

TEST_F(SlipRunTest, ANewSheetBeginsAfterEveryEvenSlipOfTheCanvasTheLastOneIncluded) {
    EXPECT_EQ(print({1, 8, false, false, 0}, Sheets::canvas).pages, 1);
    EXPECT_EQ(print({1, 16, false, false, 0}, Sheets::canvas).pages, 2);
    EXPECT_EQ(print({1, 24, false, false, 0}, Sheets::canvas).pages, 2);
}

TEST_F(SlipRunTest, ThePreviewShowsAPageOfTheRangeWithoutMarks) {
    RecordingPicture picture;
    modPrinter::direction = 1;
    modPrinter::offset_X = 5;
    slipRun::displaySlip(picture, 3, 12, 2, drawer());
    EXPECT_EQ(asked, (std::vector<Asked>{{11, 1, 3, 2}, {12, 2, 3, 2}}));
    auto lines = picture.seen();
    // The first eight lines are the separators of the empty slip.
    const auto all = lines.ofKind(Drawn::line);
    lines.drawn.assign(all.begin() + 8, all.end());
    std::vector<Cross> expected(6, plainBox(1, 1));
    expected.resize(12, plainBox(2, 1));
    expectCrosses(crossesOf(lines), expected);
}

TEST_F(SlipRunTest, ARunPrintsWhatThePreviewAnswered) {
    printWindows.onGridPreview = [](frmPrintGridPreview &window) {
        window.updnBeg.set(2);
        window.updnEnd.set(9);
        window.clickPlayJoker(true);
        window.clickAbon(true);
        window.clickWeek(3);
        window.clickToolbar(3);
    };
    slipRun::run(20, Sheets::slips, drawer());
    const auto &document = printers.onlyDocument();
    EXPECT_EQ(document.pages, 1);
    EXPECT_EQ(document.printer, "Bureau");
    EXPECT_EQ(document.sides, Sides::one) << "no slip on the back of another one";
    expectCrosses(marksOf(document, 1, 8),
                  {{55.5, 57, 58.3, 61}, {99, 69, 101.8, 82}, {148, 71, 150.8, 75}});
}

TEST_F(SlipRunTest, ACancelledPreviewPrintsNothing) {
    printWindows.onGridPreview = [](frmPrintGridPreview &window) { window.clickToolbar(4); };
    slipRun::run(20, Sheets::canvas, drawer());
    EXPECT_TRUE(printers.documents.empty());
    EXPECT_TRUE(asked.empty());
}

TEST_F(SlipRunTest, WithoutAPrinterThePreviewIsNotEvenShown) {
    printers.names.clear();
    desktop.answerNo();
    slipRun::run(20, Sheets::slips, drawer());
    EXPECT_EQ(printWindows.previewShowings, 0);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2301");
}

TEST_F(SlipRunTest, AGameWithoutGridsPrintsNothing) {
    slipRun::run(0, Sheets::slips, drawer());
    EXPECT_EQ(printWindows.previewShowings, 0);
    EXPECT_TRUE(printers.documents.empty());
}

TEST_F(SlipRunTest, AGameOfASingleGridIsPrinted) {
    confirmPreview();
    slipRun::run(1, Sheets::slips, drawer());
    EXPECT_EQ(printWindows.previewShowings, 1);
    EXPECT_TRUE(printers.onlyDocument().ended);
    EXPECT_EQ(asked, (std::vector<Asked>{{1, 1, 0, 2}}));
}

TEST_F(SlipRunTest, APrinterThatBreaksDownLeavesNoHalfDocument) {
    confirmPreview();
    printers.breakAtPage = 2;
    EXPECT_EQ(failureNumber([this] { slipRun::run(9, Sheets::slips, drawer()); }), 482);
    EXPECT_FALSE(printers.onlyDocument().ended);
    EXPECT_TRUE(printers.onlyDocument().dropped);
}

} // namespace
} // namespace boulix
