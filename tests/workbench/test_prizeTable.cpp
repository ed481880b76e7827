// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The winnings sub-tab with the prize table.

#include "winningsPageTest.h"

namespace boulix {
namespace {

using testing_support::fileExists;

class PrizeTablePage : public WinningsPageTest {};

TEST_F(PrizeTablePage, ShowsThePrizesInPlainDecimal) {
    EXPECT_EQ(page.txtRapPrice, (Texts{"0.5", "1.5", "2.5", "3.5", "4.5", "5.5", "6.5", "7.5",
                                       "8.5", "9.5", "10.5"}));
    gRapport->Value(0, 0.1F);
    gRapport->Value(10, 1234567);
    page.showPrizes();
    EXPECT_EQ(page.txtRapPrice[0], "0.1");
    EXPECT_EQ(page.txtRapPrice[10], "1234567");
}

TEST_F(PrizeTablePage, EachChangeOfTheSubTabTakesTheBoxes) {
    for (const int tab : {1, 2, 3, 0}) {
        page.txtRapPrice[4] = std::to_string(tab) + ",25";
        page.clickSubTab(tab);
        EXPECT_EQ(gRapport->Value(4), static_cast<float>(tab) + 0.25F);
    }
}

TEST_F(PrizeTablePage, TheAmountsComeIntoForceBehindTheVerificationOfTheFirstTab) {
    page.clickSubTab(winningsPage::report);
    page.txtRapPrice[4] = "100";
    page.clickSubTab(winningsPage::verification);
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "4.5"));
    page.showVerification();
    EXPECT_EQ(page.lblVerPrice, zerosBut(5, "100"));
}

TEST_F(PrizeTablePage, ABlankBoxLeavesTheAmountOfItsRankAsItWas) {
    page.txtRapPrice.fill("");
    page.txtRapPrice[3] = "   ";
    page.txtRapPrice[4] = "7";
    page.clickSubTab(winningsPage::report);
    for (std::int16_t i = 0; i < rapport::size; ++i)
        EXPECT_EQ(gRapport->Value(i), i == 4 ? 7.0F : static_cast<float>(i) + 0.5F);
    page.clickRapp(winningsPage::saveDefault);
    EXPECT_EQ(gRapport->Value(3), 3.5F);
}

TEST_F(PrizeTablePage, AnAmountIsTakenWithCommaOrDotAndAWordIsZero) {
    page.txtRapPrice = {"1,5", "1.5", "dix", "-2", "1e39", " 3 ", "0", "4 euros", "", "", "-"};
    page.clickSubTab(winningsPage::report);
    const std::array<float, 11> expected = {1.5F, 1.5F, 0, -2, 1, 3, 0, 4, 8.5F, 9.5F, 0};
    for (std::int16_t i = 0; i < rapport::size; ++i)
        EXPECT_EQ(gRapport->Value(i), expected[static_cast<std::size_t>(i)]) << i;
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PrizeTablePage, AnAmountBeyondSinglePrecisionIsAnOverflow) {
    page.txtRapPrice[4] = "1" + std::string(39, '0');
    page.clickSubTab(winningsPage::report);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0],
              (ShownBox{"Dépassement de capacité\r\n« 3 numéros » attend un montant, avec ou sans "
                        "décimales ; il y avait « " +
                            page.txtRapPrice[4] + " ».",
                        Icon::critical, "Boulix Erreur système N° 6"}));
    EXPECT_EQ(desktop.focusedFields, (std::vector<std::string>{"txtRapPrice_4"}));
    EXPECT_EQ(gRapport->Value(4), 4.5F);
}

TEST_F(PrizeTablePage, LoadsATableIntoTheBoxes) {
    rapport other;
    other.Value(0, 12.25F);
    other.save(file("gains.rap"));
    desktop.answerOpen(file("gains.rap"));
    page.clickRapp(winningsPage::loadTable);
    EXPECT_EQ(page.txtRapPrice, zerosBut(1, "12.25"));
    EXPECT_EQ(gRapport->Value(0), 12.25F);
}

TEST_F(PrizeTablePage, ARefusedTableLeavesTheBoxes) {
    page.txtRapPrice[0] = "frais";
    desktop.answerOpen(file("parti.rap"));
    page.clickRapp(winningsPage::loadTable);
    EXPECT_EQ(page.txtRapPrice[0], "frais");
    EXPECT_EQ(desktop.messages.size(), 1U);
    desktop.cancelOpen();
    page.clickRapp(winningsPage::loadTable);
    EXPECT_EQ(page.txtRapPrice[0], "frais");
}

TEST_F(PrizeTablePage, SavesTheBoxesUnderAChosenName) {
    page.txtRapPrice[0] = "3,5";
    desktop.answerSave(file("gains.rap"));
    page.clickRapp(winningsPage::saveTable);
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Fichier de rapport Boulix (*.rap)|*.rap");
    EXPECT_EQ(desktop.saveQuestions[0].title, "Sauvegarde d'un fichier de rapport");
    rapport saved;
    desktop.answerOpen(file("gains.rap"));
    ASSERT_TRUE(saved.load());
    EXPECT_EQ(saved.Value(0), 3.5F);
    EXPECT_EQ(saved.Value(10), 10.5F);
}

TEST_F(PrizeTablePage, ACancelledSaveHasTakenTheBoxesAll) {
    page.txtRapPrice[0] = "3";
    desktop.cancelSave();
    page.clickRapp(winningsPage::saveTable);
    EXPECT_EQ(gRapport->Value(0), 3.0F);
}

TEST_F(PrizeTablePage, SavesTheDefaultTableWithoutAnyQuestion) {
    for (int i = 0; i < 2; ++i) {
        page.txtRapPrice[0] = std::to_string(i);
        page.clickRapp(winningsPage::saveDefault);
    }
    ASSERT_TRUE(fileExists(file("defrapp.rap")));
    EXPECT_FALSE(fileExists(lastUsedFolder() + "defrapp.rap"));
    EXPECT_EQ(desktop.questions.size(), 0U);
    EXPECT_EQ(desktop.saveQuestions.size(), 0U);
    rapport saved;
    saved.loadDefFile();
    EXPECT_EQ(saved.Value(0), 1.0F);
}

} // namespace
} // namespace boulix
