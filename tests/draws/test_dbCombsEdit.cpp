// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"
#include "sill/frmNbrSelector.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

const DrawOf drawA = {37632, 1, {2, 3, 5, 7, 11, 13, 17}, 41, 58};    // 11 January 2003
const DrawOf drawB = {37636, 1, {1, 4, 22, 30, 41, 49, 8}, 147, 155}; // 15 January 2003
const std::string rowA = "11/01/2003 (1) 2 3 5 7 11 13 + 17 = 41 58";
const std::string rowB = "15/01/2003 (1) 1 4 22 30 41 49 + 8 = 147 155";

using Numbers = std::vector<std::int16_t>;

class DrawEditing : public DrawsTest {
  protected:
    DrawEditing() {
        add(drawA);
        add(drawB);
    }
};

TEST_F(DrawEditing, AddingTakesTheNumbersInTheOrderOfMarkingAndTheSeventhAsComplementary) {
    desktop.answerNumbers(NumberScript().click({33, 32, 42, 16, 15, 49, 37}).ok());
    desktop.answerDate({37640, 2});
    gDbCombs->AddNewDBComb();
    EXPECT_EQ(rows(), (std::vector<std::string>{
                          rowA, rowB, "19/01/2003 (2) 33 32 42 16 15 49 + 37 = 187 224"}));
    EXPECT_EQ(baseFileBytes(),
              drawsFile({drawA, drawB, {37640, 2, {33, 32, 42, 16, 15, 49, 37}, 187, 224}}));
}

TEST_F(DrawEditing, AddingAsksForExactlySevenNumbersOnAnEmptyBoard) {
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5, 6}).ok());
    desktop.answerNumbers(NumberScript().click({7, 8}).ok());
    desktop.answerDate({37640, 1});
    gDbCombs->AddNewDBComb();
    ASSERT_EQ(desktop.numberShowings.size(), 2U);
    EXPECT_EQ(desktop.numberShowings[0].maxSelected, 7);
    EXPECT_EQ(desktop.numberShowings[0].markedBefore, Numbers{});
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], (ShownBox{"Vous devez sélectionner au moins 7 numéros!!!",
                                             Icon::information, "boulix: Erreur N° 4303"}));
    EXPECT_EQ(rowOf(gDbCombs->Item(3)), "19/01/2003 (1) 1 2 3 4 5 6 + 7 = 21 28");
}

TEST_F(DrawEditing, AddingCancelledDoesNothing) {
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5, 6, 7}).cancel());
    gDbCombs->AddNewDBComb();
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
    EXPECT_EQ(desktop.dateShowings, 0);
    EXPECT_FALSE(testing_support::fileExists(baseFile()));
}

TEST_F(DrawEditing, ADrawOfAnEarlierDayStaysLastUntilTheNextModify) {
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5, 6, 7}).ok());
    desktop.answerDate({37622, 1});
    gDbCombs->AddNewDBComb();
    const std::string added = "01/01/2003 (1) 1 2 3 4 5 6 + 7 = 21 28";
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB, added}));
    desktop.answerNumbers(NumberScript().cancel());
    gDbCombs->modify(1);
    EXPECT_EQ(rows(), (std::vector<std::string>{added, rowA, rowB}));
}

TEST_F(DrawEditing, ADrawThatIsThereAlreadyCanBeAddedAgain) {
    desktop.answerNumbers(NumberScript().click({2, 3, 5, 7, 11, 13, 17}).ok());
    desktop.answerDate({37632, 1});
    gDbCombs->AddNewDBComb();
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB, rowA}));
}

TEST_F(DrawEditing, ModifyingShowsThePresentNumbersTheComplementaryLast) {
    desktop.answerNumbers(NumberScript().cancel());
    gDbCombs->modify(1);
    ASSERT_EQ(desktop.numberShowings.size(), 1U);
    EXPECT_EQ(desktop.numberShowings[0].maxSelected, 7);
    EXPECT_EQ(desktop.numberShowings[0].markedBefore, (Numbers{2, 3, 5, 7, 11, 13, 17}));
}

TEST_F(DrawEditing, ModifyingAsksForExactlySevenNumbers) {
    desktop.answerNumbers(NumberScript().click({17}).ok()); // six are left
    desktop.answerNumbers(NumberScript().click({18}).ok());
    desktop.answerDate({37632, 1});
    gDbCombs->modify(1);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], (ShownBox{"Vous devez sélectionner au moins 7 numéros!!!",
                                             Icon::information, "boulix: Erreur N° 4303"}));
    EXPECT_EQ(rowOf(gDbCombs->Item(1)), "11/01/2003 (1) 2 3 5 7 11 13 + 18 = 82 100");
}

TEST_F(DrawEditing, ModifyingTakesNumbersDayAndDrawOfTheDayAndSorts) {
    desktop.answerNumbers(NumberScript().click({17, 3}).click({49, 48}).ok());
    desktop.answerDate({37640, 2});
    gDbCombs->modify(1);
    // The sum of the new numbers is added to the old one.
    EXPECT_EQ(rows(),
              (std::vector<std::string>{rowB, "19/01/2003 (2) 2 5 7 11 13 49 + 48 = 128 176"}));
    EXPECT_EQ(baseFileBytes(),
              drawsFile({drawB, {37640, 2, {2, 5, 7, 11, 13, 49, 48}, 41 + 87, 41 + 87 + 48}}));
}

TEST_F(DrawEditing, TheSumPilesUpWithEachModifyUntilTheNextLoad) {
    for (int time = 1; time <= 3; ++time) {
        desktop.answerNumbers(NumberScript().ok());
        desktop.answerDate({37632, 1});
        gDbCombs->modify(1);
        EXPECT_EQ(gDbCombs->Item(1).comb().sum(), 41 * (time + 1));
        EXPECT_EQ(gDbCombs->Item(1).comb().sumtot(), 41 * (time + 1) + 17);
    }
    gDbCombs->load();
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
}

TEST_F(DrawEditing, APiledSumBeyondSixteenBitsFails) {
    gDbCombs->Item(1).comb().sum(32740);
    desktop.answerNumbers(NumberScript().ok());
    desktop.answerDate({37640, 2});
    EXPECT_EQ(failureNumber([] { gDbCombs->modify(1); }), 6);
    // 2, 3, 5, 7 were added, 11 was too much; the day was set before.
    EXPECT_EQ(rows(),
              (std::vector<std::string>{"19/01/2003 (2) 2 3 5 7 11 13 + 17 = 32757 58", rowB}));
    EXPECT_FALSE(testing_support::fileExists(baseFile()));
}

TEST_F(DrawEditing, ModifyingCancelledLeavesTheDrawAndAsksForNoDate) {
    desktop.answerNumbers(NumberScript().clear().click({1, 2}).cancel());
    gDbCombs->modify(1);
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
    EXPECT_EQ(desktop.dateShowings, 0);
}

TEST_F(DrawEditing, ModifyingCancelledStillRewritesTheFileWithTodayAsItsDates) {
    writeBytes(baseFile(), drawsFile({drawA}, {.date = "01/02/2003"}));
    platform.day = dateOf({2026, 12, 31});
    desktop.answerNumbers(NumberScript().cancel());
    gDbCombs->modify(2);
    EXPECT_EQ(baseFileBytes(), drawsFile({drawA, drawB}, {.date = "31/12/2026"}));
}

TEST_F(DrawEditing, TheDateDialogIsToldWhichDrawIsChangedAndNothingOfANewOne) {
    desktop.answerNumbers(NumberScript().ok());
    desktop.answerDate({37640, 2});
    gDbCombs->modify(2);
    ASSERT_TRUE(desktop.changedDraw);
    EXPECT_EQ(desktop.changedDraw->day, 37636);
    EXPECT_EQ(desktop.changedDraw->id, 1);
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5, 6, 7}).ok());
    desktop.answerDate({37640, 2});
    gDbCombs->AddNewDBComb();
    EXPECT_FALSE(desktop.changedDraw);
}

TEST_F(DrawEditing, LeavingTheDateDialogChangesNothingAndModifyStillSortsAndSaves) {
    writeBytes(baseFile(), drawsFile({drawA}, {.date = "01/02/2003"}));
    platform.day = dateOf({2026, 12, 31});
    desktop.answerNumbers(NumberScript().clear().click({10, 11, 12, 13, 14, 15, 16}).ok());
    desktop.leaveDate();
    gDbCombs->modify(1);
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
    EXPECT_EQ(baseFileBytes(), drawsFile({drawA, drawB}, {.date = "31/12/2026"}));
    desktop.answerNumbers(NumberScript().click({1, 2, 3, 4, 5, 6, 7}).ok());
    desktop.leaveDate();
    gDbCombs->AddNewDBComb();
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
}

TEST_F(DrawEditing, TheSeventhNumberLooksLikeTheComplementaryAsSoonAsItIsMarked) {
    desktop.answerNumbers(NumberScript()
                              .click({1, 2, 3, 4, 5, 6})
                              .then([](frmNbrSelector &dialog) {
                                  for (std::int16_t n = 1; n <= 6; ++n)
                                      EXPECT_FALSE(dialog.grd.isComplementary(n)) << n;
                                  dialog.grd.click(17);
                                  EXPECT_TRUE(dialog.grd.isComplementary(17));
                                  dialog.grd.click(3);
                                  EXPECT_FALSE(dialog.grd.isComplementary(17)) << "the sixth now";
                                  dialog.grd.click(9);
                                  EXPECT_TRUE(dialog.grd.isComplementary(9));
                              })
                              .ok());
    desktop.answerDate({37640, 1});
    gDbCombs->AddNewDBComb();
    EXPECT_EQ(rowOf(gDbCombs->Item(3)), "19/01/2003 (1) 1 2 4 5 6 17 + 9 = 35 44");
}

TEST_F(DrawEditing, ModifyingADrawThatIsNotThereFails) {
    for (const int index : {-1, 0, 3})
        EXPECT_EQ(failureNumber([&] { gDbCombs->modify(index); }), 9) << index;
    EXPECT_FALSE(testing_support::fileExists(baseFile()));
}

} // namespace
} // namespace boulix
