// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/frmPrintGridPreview.h"

#include "printing/frmPrint.h"
#include "printing/modPrinter.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

using testing_support::RecordingPicture;

class PreviewTest : public BoulixTest {
  protected:
    slipRun::GridDrawer drawer() {
        return [this](std::int32_t grid, std::int16_t, Canvas &, slip::Placement) {
            shown.push_back(grid);
        };
    }
    std::vector<std::int32_t> gridsOnPicture(const frmPrintGridPreview &window) {
        shown.clear();
        RecordingPicture picture;
        window.drawPicture(picture);
        return shown;
    }
    static std::vector<bool> weeks(const frmPrintGridPreview &window) {
        return {window.optWeek(0), window.optWeek(1), window.optWeek(2), window.optWeek(3)};
    }

    std::vector<std::int32_t> shown;
};

using Grids = std::vector<std::int32_t>;
using Weeks = std::vector<bool>;

TEST_F(PreviewTest, OpensOnTheWholeGameWithoutOptions) {
    const frmPrintGridPreview window(9, drawer());
    EXPECT_EQ(window.updnBeg.min(), 1);
    EXPECT_EQ(window.updnBeg.max(), 9);
    EXPECT_EQ(window.updnBeg.value(), 1);
    EXPECT_EQ(window.updnEnd.min(), 1);
    EXPECT_EQ(window.updnEnd.max(), 9);
    EXPECT_EQ(window.updnEnd.value(), 9);
    EXPECT_EQ(window.statusPanel1(), "9 combinaisons à imprimer");
    EXPECT_EQ(window.statusPanel2(), "Grille 1 de 2");
    EXPECT_FALSE(window.chkAbon());
    EXPECT_FALSE(window.frameAbonEnabled());
    EXPECT_EQ(weeks(window), (Weeks{false, false, false, false}));
    EXPECT_FALSE(window.optWedAndSat());
    EXPECT_FALSE(window.optPlayJokerYes());
    EXPECT_FALSE(window.hidden());
    EXPECT_EQ(gridsOnPicture(window), (Grids{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(PreviewTest, EightGridsMakeOneSlipAndNineMakeTwo) {
    EXPECT_EQ(frmPrintGridPreview(8, drawer()).slips(), 1);
    EXPECT_EQ(frmPrintGridPreview(9, drawer()).slips(), 2);
}

TEST_F(PreviewTest, ThePageButtonsStopAtBothEnds) {
    frmPrintGridPreview window(20, drawer());
    window.clickToolbar(1);
    EXPECT_EQ(window.statusPanel2(), "Grille 1 de 3");
    window.clickToolbar(2);
    window.clickToolbar(2);
    EXPECT_EQ(window.statusPanel2(), "Grille 3 de 3");
    EXPECT_EQ(gridsOnPicture(window), (Grids{17, 18, 19, 20}));
    window.clickToolbar(2);
    EXPECT_EQ(window.statusPanel2(), "Grille 3 de 3");
    window.clickToolbar(1);
    EXPECT_EQ(window.statusPanel2(), "Grille 2 de 3");
}

TEST_F(PreviewTest, AShorterRangeBringsThePageBack) {
    frmPrintGridPreview window(9, drawer());
    window.clickToolbar(2);
    EXPECT_EQ(window.statusPanel2(), "Grille 2 de 2");
    window.updnEnd.set(8);
    EXPECT_EQ(window.statusPanel2(), "Grille 1 de 1");
    EXPECT_EQ(window.statusPanel1(), "8 combinaisons à imprimer");
    EXPECT_EQ(gridsOnPicture(window), (Grids{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(PreviewTest, TheFirstGridCanNotPassTheLast) {
    frmPrintGridPreview window(20, drawer());
    window.updnEnd.set(5);
    window.updnBeg.set(7);
    EXPECT_EQ(window.updnBeg.value(), 5);
    EXPECT_EQ(window.updnEnd.min(), 5);
    window.updnEnd.set(3);
    EXPECT_EQ(window.updnEnd.value(), 5);
    EXPECT_EQ(window.statusPanel1(), "1 combinaisons à imprimer");
    EXPECT_EQ(gridsOnPicture(window), (Grids{5}));
}

TEST_F(PreviewTest, ARangeInTheMiddleIsShownFromItsFirstGridOn) {
    frmPrintGridPreview window(30, drawer());
    window.updnBeg.set(12);
    window.updnEnd.set(20);
    EXPECT_EQ(window.slips(), 2);
    EXPECT_EQ(gridsOnPicture(window), (Grids{12, 13, 14, 15, 16, 17, 18, 19}));
}

TEST_F(PreviewTest, TheFirstTickTurnsOnThreeWeeks) {
    frmPrintGridPreview window(1, drawer());
    window.clickAbon(true);
    EXPECT_TRUE(window.frameAbonEnabled());
    EXPECT_EQ(weeks(window), (Weeks{false, true, false, false}));
    EXPECT_EQ(window.choice().weekOption, 2);
}

TEST_F(PreviewTest, UntickingAndTickingBringsBackTheWeekOptionThatWasOn) {
    for (std::size_t week = 0; week < 4; ++week) {
        frmPrintGridPreview window(1, drawer());
        window.clickAbon(true);
        window.clickWeek(week);
        window.clickAbon(false);
        EXPECT_FALSE(window.frameAbonEnabled());
        EXPECT_EQ(weeks(window), (Weeks{false, false, false, false}));
        EXPECT_EQ(window.choice().weekOption, 0);
        window.clickAbon(true);
        EXPECT_TRUE(window.optWeek(week));
        EXPECT_EQ(window.choice().weekOption, static_cast<int>(week) + 1);
    }
}

TEST_F(PreviewTest, OnlyOneWeekOptionIsOnAtATime) {
    frmPrintGridPreview window(1, drawer());
    window.clickAbon(true);
    window.clickWeek(3);
    window.clickAbon(true);
    EXPECT_EQ(weeks(window), (Weeks{false, false, false, true}));
}

TEST_F(PreviewTest, WeekOptionsTakeNoClickWithoutSubscription) {
    frmPrintGridPreview window(1, drawer());
    window.clickWeek(2);
    EXPECT_EQ(weeks(window), (Weeks{false, false, false, false}));
}

TEST_F(PreviewTest, TheAnswersCanBeReadAfterTheWindowWasHidden) {
    frmPrintGridPreview window(20, drawer());
    window.updnBeg.set(3);
    window.updnEnd.set(11);
    window.clickWedAndSat(true);
    window.clickPlayJoker(true);
    window.clickToolbar(3);
    EXPECT_TRUE(window.hidden());
    EXPECT_EQ(window.answer(), 1);
    const auto choice = window.choice();
    EXPECT_EQ(choice.first, 3);
    EXPECT_EQ(choice.last, 11);
    EXPECT_TRUE(choice.wedAndSat);
    EXPECT_TRUE(choice.joker);
    EXPECT_EQ(choice.weekOption, 0);
}

TEST_F(PreviewTest, TheFourthButtonCancels) {
    frmPrintGridPreview window(20, drawer());
    window.clickToolbar(4);
    EXPECT_TRUE(window.hidden());
    EXPECT_EQ(window.answer(), 0);
}

TEST_F(PreviewTest, TheFifthButtonOpensThePrinterSettings) {
    printWindows.onPrint = [](frmPrint &window) {
        window.optPrintDir = 0;
        window.clickOK();
    };
    frmPrintGridPreview window(1, drawer());
    window.clickToolbar(5);
    EXPECT_EQ(printWindows.printShowings, 1);
    EXPECT_EQ(modPrinter::direction, 0);
    EXPECT_FALSE(window.hidden());
}

TEST_F(PreviewTest, EveryChangeIsAnnounced) {
    frmPrintGridPreview window(20, drawer());
    int changes = 0;
    window.changed = [&changes] { ++changes; };
    window.updnBeg.set(2);
    window.updnEnd.set(19);
    window.clickToolbar(2);
    window.clickAbon(true);
    window.clickWeek(0);
    window.clickPlayJoker(true);
    window.clickWedAndSat(true);
    window.clickToolbar(4);
    EXPECT_EQ(changes, 8);
    window.updnEnd.set(19);
    window.clickAbon(true);
    EXPECT_EQ(changes, 8) << "nothing changed";
}

TEST_F(PreviewTest, AGameOfAllGridsOpensAtOnce) {
    frmPrintGridPreview window(13983816, drawer());
    EXPECT_EQ(window.statusPanel2(), "Grille 1 de 1747977");
    window.updnBeg.set(13983816);
    EXPECT_EQ(window.statusPanel2(), "Grille 1 de 1");
    EXPECT_EQ(gridsOnPicture(window), (Grids{13983816}));
}

} // namespace
} // namespace boulix
