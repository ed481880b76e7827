// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window that tests the forecasts on past draws.

#include "workbench/frmTestProno.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "support/boulixTest.h"
#include "support/lottery.h"

#include <string>
#include <vector>

namespace boulix {
namespace {

/// Ten draws from 1 January 2000 on, and one rule that gives every number the same points.
class FrmTestProno : public BoulixTest {
  protected:
    FrmTestProno() {
        std::mt19937 random(17);
        addRandomDraws(10, random);
        gDbCombs->Item(2).id(2);
        pronos rule;
        rule.label("x");
        rule.pronoType(4);
        rule.n(100);
        rule.p(1);
        rule.nPoint(1);
        rule.enableN(true);
        rule.enableP(true);
        gPronostics->Add(rule);
    }
    static void fill(frmTestProno &window, const std::string &draw, const std::string &before,
                     const std::string &after, const std::string &best) {
        window.editNumTir(draw);
        window.txtTirBefore = before;
        window.txtTirAfter = after;
        window.editNbrCount(best);
    }
    static std::vector<std::string> lines(const frmTestProno &window, int column = 0) {
        std::vector<std::string> texts;
        for (std::int64_t row = 0; row < window.lvWResult.rowCount(); ++row)
            texts.push_back(window.lvWResult.text(row, column));
        return texts;
    }
    /// Whether the next test computes anew: the points of a valid calculation stay.
    static bool computesAnew() {
        gPronostics->Item(1).baseTir(10);
        gPronostics->Item(1).nPoint(gPronostics->Item(1).nPoint() + 1);
        gPronostics->compute(false);
        return gPronostics->nbrPoint(1) == gPronostics->Item(1).nPoint();
    }
};

TEST_F(FrmTestProno, OpensOnTheLastDraw) {
    const frmTestProno window;
    EXPECT_STREQ(frmTestProno::caption, "Test de Pronostiques");
    EXPECT_EQ(window.txtNumTir(), "10");
    EXPECT_EQ(window.position(), 10);
    EXPECT_EQ(window.lblDescTir(), "Tirage N° 1 du 10-01-2000");
    ASSERT_EQ(window.lvWResult.columns().size(), 2U);
    EXPECT_EQ(window.lvWResult.columns()[0].header, "Tirage");
    EXPECT_EQ(window.lvWResult.columns()[1].header, "Nombre de numéros");
    EXPECT_EQ(window.lvWResult.rowCount(), 0);
}

TEST_F(FrmTestProno, AStepUpwardGoesToTheNextDrawAndWrapsToTheFirst) {
    frmTestProno window;
    window.stepUp();
    EXPECT_EQ(window.txtNumTir(), "1");
    EXPECT_EQ(window.lblDescTir(), "Tirage N° 1 du & 01-01-2000");
    window.stepUp();
    EXPECT_EQ(window.txtNumTir(), "2");
    EXPECT_EQ(window.lblDescTir(), "Tirage N° 2 du & 02-01-2000");
}

TEST_F(FrmTestProno, AStepDownwardGoesToTheDrawBeforeAndWrapsToTheLast) {
    frmTestProno window;
    window.stepDown();
    EXPECT_EQ(window.txtNumTir(), "9");
    EXPECT_EQ(window.lblDescTir(), "Tirage N° 1 du 09-01-2000");
    window.editNumTir("1");
    window.stepDown();
    EXPECT_EQ(window.txtNumTir(), "10");
    EXPECT_EQ(window.position(), 10);
}

TEST_F(FrmTestProno, ATypedPositionIsTakenWhenItExists) {
    frmTestProno window;
    window.editNumTir("2");
    EXPECT_EQ(window.position(), 2);
    EXPECT_EQ(window.lblDescTir(), "Tirage N° 2 du 02-01-2000");
    for (const char *text : {"0", "11", "-3", "", "deux", "99999999999999999999"}) {
        window.editNumTir(text);
        EXPECT_EQ(window.txtNumTir(), text);
        EXPECT_EQ(window.position(), 2) << text;
        EXPECT_EQ(window.lblDescTir(), "Tirage N° 2 du 02-01-2000") << text;
    }
}

TEST_F(FrmTestProno, LeavingTheBoxWritesTheSignIntoTheDescription) {
    frmTestProno window;
    window.editNumTir("2");
    window.leaveNumTir();
    EXPECT_EQ(window.lblDescTir(), "Tirage N° 2 du & 02-01-2000");
}

TEST_F(FrmTestProno, OnlyAnUpwardStepAndTheCountMakeTheNextTestComputeAnew) {
    frmTestProno window;
    EXPECT_TRUE(computesAnew()); // the first time
    EXPECT_FALSE(computesAnew());
    window.stepUp();
    EXPECT_TRUE(computesAnew());
    window.stepDown();
    EXPECT_FALSE(computesAnew());
    window.editNumTir("5");
    EXPECT_FALSE(computesAnew());
    window.leaveNumTir();
    EXPECT_FALSE(computesAnew());
    window.editNbrCount("6");
    EXPECT_TRUE(computesAnew());
}

TEST_F(FrmTestProno, WithMoreDrawsBeforeThanThereAreTheLinesBeginAtDrawOne) {
    frmTestProno window;
    fill(window, "3", "10", "1", "49");
    window.clickCompute();
    EXPECT_EQ(lines(window), (std::vector<std::string>{
                                 "Tirage N° 0001 du 01-01-2000 - 1",
                                 "Tirage N° 0002 du 02-01-2000 - 2",
                                 "Tirage N° 0003 du 03-01-2000 - 1",
                                 "Tirage N° 0004 du 04-01-2000 - 1",
                             }));
    EXPECT_EQ(lines(window, 1), (std::vector<std::string>{"7", "7", "7", "7"}));
}

TEST_F(FrmTestProno, WithTheLastDrawAsTestDrawTheRunEndsAtIt) {
    frmTestProno window;
    fill(window, "10", "1", "5", "49");
    window.clickCompute();
    EXPECT_EQ(lines(window), (std::vector<std::string>{"Tirage N° 0009 du 09-01-2000 - 1",
                                                       "Tirage N° 0010 du 10-01-2000 - 1"}));
}

TEST_F(FrmTestProno, ANewTestReplacesTheLines) {
    frmTestProno window;
    fill(window, "10", "9", "0", "49");
    window.clickCompute();
    ASSERT_EQ(window.lvWResult.rowCount(), 10);
    window.txtTirBefore = "0";
    window.clickCompute();
    EXPECT_EQ(window.lvWResult.rowCount(), 1);
}

TEST_F(FrmTestProno, AnEmptyBoxGivesTheMessageAndLeavesTheListAsItWas) {
    frmTestProno window;
    fill(window, "10", "1", "0", "49");
    window.clickCompute();
    const struct {
        const char *draw, *before, *after, *best;
    } rows[] = {
        {"", "1", "0", "49"},   {"10", "", "0", "49"},          {"10", "1", "  ", "49"},
        {"10", "1", "0", ""},   {"0", "1", "0", "49"},          {"11", "1", "0", "49"},
        {"dix", "1", "0", "6"}, {"10", "1", "0", "0"},          {"10", "1", "0", "50"},
        {"10", "1", "0", "-1"}, {"99999999999", "1", "0", "6"},
    };
    for (const auto &row : rows) {
        desktop.messages.clear();
        fill(window, row.draw, row.before, row.after, row.best);
        window.clickCompute();
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0], (ShownBox{"Veuillez remplir tous les champs correctement",
                                                 Icon::information, "boulix"}));
        EXPECT_EQ(window.lvWResult.rowCount(), 2);
    }
}

TEST_F(FrmTestProno, ARefusedRuleIsReportedAndTheEarlierResultListed) {
    frmTestProno window;
    fill(window, "5", "1", "1", "49");
    window.clickCompute();
    gPronostics->Item(1).nPoint(0);
    fill(window, "8", "0", "0", "6");
    window.clickCompute();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4503");
    EXPECT_EQ(lines(window), (std::vector<std::string>{"Tirage N° 0008 du 08-01-2000 - 1",
                                                       "Tirage N° 0009 du 09-01-2000 - 1",
                                                       "Tirage N° 0010 du 10-01-2000 - 1"}));
    EXPECT_EQ(lines(window, 1), (std::vector<std::string>{"7", "7", "7"}));
}

TEST_F(FrmTestProno, AnEarlierResultLongerThanTheBaseEndsInAFailureBehindItsLines) {
    frmTestProno window;
    fill(window, "5", "1", "1", "49");
    window.clickCompute();
    gPronostics->Item(1).nPoint(0);
    fill(window, "9", "0", "0", "6");
    window.clickCompute();
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[1].title, "Boulix Erreur système N° 9");
    EXPECT_EQ(window.lvWResult.rowCount(), 2);
}

TEST_F(FrmTestProno, NegativeDrawsBeforeOrAfterGiveAShortOrEmptyList) {
    frmTestProno window;
    fill(window, "5", "-2", "4", "49");
    window.clickCompute();
    EXPECT_EQ(lines(window), (std::vector<std::string>{"Tirage N° 0007 du 07-01-2000 - 1",
                                                       "Tirage N° 0008 du 08-01-2000 - 1",
                                                       "Tirage N° 0009 du 09-01-2000 - 1"}));
    fill(window, "5", "-9", "4", "49");
    window.clickCompute();
    EXPECT_EQ(window.lvWResult.rowCount(), 0);
    fill(window, "5", "1", "-2000000000", "49");
    window.clickCompute();
    EXPECT_EQ(window.lvWResult.rowCount(), 0);
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(FrmTestProno, DrawsBeforeBeyondTheirWidthAreAnOverflow) {
    frmTestProno window;
    fill(window, "5", "99999999999", "4", "49");
    window.clickCompute();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 6");
    EXPECT_EQ(desktop.focusedFields, (std::vector<std::string>{"txtTirBefore"}));
    EXPECT_EQ(window.txtTirBefore, "99999999999") << "it stays to be mended";
}

TEST_F(FrmTestProno, SaysOnHowManyDrawsItTestedAndWhatAWordCountedAs) {
    frmTestProno window;
    EXPECT_EQ(window.lvWResult.whenEmpty().sentence,
              "Remplissez les champs, puis cliquez sur « Calculer ».");
    fill(window, "5", "2", "aucun", "49");
    window.clickCompute();
    EXPECT_EQ(window.txtTirAfter, "0");
    EXPECT_EQ(desktop.announcements, (std::vector<std::string>{"Pronostique testé sur 3 tirages"}));
}

TEST_F(FrmTestProno, AHeaderClickSortsTheLinesAsText) {
    frmTestProno window;
    fill(window, "10", "9", "0", "20");
    window.clickCompute();
    window.clickHeader(1);
    const std::vector<std::string> sorted = lines(window, 1);
    EXPECT_TRUE(std::is_sorted(sorted.begin(), sorted.end()));
    window.clickHeader(0);
    EXPECT_EQ(lines(window)[0], "Tirage N° 0001 du 01-01-2000 - 1");
    window.clickHeader(0);
    EXPECT_EQ(lines(window)[0], "Tirage N° 0010 du 10-01-2000 - 1");
}

TEST_F(FrmTestProno, OnAnEmptyBaseThereIsNoDrawToTest) {
    gDbCombs->clear();
    frmTestProno window;
    EXPECT_EQ(window.txtNumTir(), "0");
    EXPECT_EQ(window.lblDescTir(), "");
    window.stepUp();
    window.stepDown();
    window.leaveNumTir();
    EXPECT_EQ(window.txtNumTir(), "0");
    EXPECT_EQ(window.lblDescTir(), "");
    fill(window, "1", "1", "1", "6");
    window.clickCompute();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text, "Veuillez remplir tous les champs correctement");
}

TEST_F(FrmTestProno, TellsItsScreenWhenItsTextsChange) {
    frmTestProno window;
    int changes = 0;
    window.changed = [&] { ++changes; };
    window.stepUp();
    window.stepDown();
    window.editNumTir("3");
    window.leaveNumTir();
    window.clickCompute();
    EXPECT_EQ(changes, 5);
}

} // namespace
} // namespace boulix
