// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The page of the analysis by draw: its labels, their colours and clicks, its list.

#include "workbench/drawAnalysisPage.h"
#include "workbench/frmMain.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/boulixTest.h"
#include "support/lottery.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace boulix {
namespace {

using testing_support::markedNumbers;
using Texts = std::vector<std::string>;
using Numbers = std::vector<std::int16_t>;

class DrawAnalysisPage : public BoulixTest, protected drawAnalysisView {
  protected:
    DrawAnalysisPage()
        : page(mainWindow->analysis), board(mainWindow->statistics.grdStatNbrSelector) {
        page.view(this);
    }
    void refresh() override { ++refreshes; }

    void startWith(const std::vector<SevenNumbers> &draws) {
        for (const SevenNumbers &numbers : draws)
            addDraw(numbers);
        mainWindow->load();
    }
    void startWithThreeDraws() {
        startWith({{1, 2, 3, 4, 5, 6, 7}, {1, 12, 3, 14, 5, 16, 49}, {9, 8, 3, 2, 1, 40, 33}});
    }
    Texts captions() const {
        Texts texts;
        for (const auto &label : page.lblNumTir)
            texts.push_back(label.caption);
        return texts;
    }
    /// The ground of a label as 0xBBGGRR.
    int ground(std::size_t k) const {
        const Color color = page.lblNumTir.at(k).ground;
        return color.blue << 16 | color.green << 8 | color.red;
    }
    Texts rows() const {
        Texts texts;
        for (std::int64_t row = 0; row < page.lvwTirStat.rowCount(); ++row)
            texts.push_back(page.lvwTirStat.text(row, 0) + ": " + page.lvwTirStat.text(row, 1));
        return texts;
    }

    drawAnalysisPage &page;
    NumberBoard &board;
    int refreshes = 0;
};

constexpr int green = 0x008000;
constexpr int paleGreen = 0x80FF80;
constexpr int ochre = 0x00C0C0;
constexpr int paleOchre = 0xC0FFFF;

TEST_F(DrawAnalysisPage, StartsOnTheNewestDraw) {
    startWithThreeDraws();
    EXPECT_EQ(page.updnTirNbr.value(), 3);
    EXPECT_EQ(page.updnTirNbr.min(), 1);
    EXPECT_EQ(page.updnTirNbr.max(), 3);
    EXPECT_EQ(page.lblTirInfo, "Tirage N° 1 du 03-01-2000");
    EXPECT_EQ(captions(), (Texts{"33", "09", "08", "03", "02", "01", "40"}));
    ASSERT_EQ(page.lvwTirStat.columns().size(), 2U);
    EXPECT_EQ(page.lvwTirStat.columns()[0].header, "Type de recherche");
    EXPECT_EQ(page.lvwTirStat.columns()[1].header, "Résultat");
}

TEST_F(DrawAnalysisPage, WithoutASelectedAnalysisTheLabelsAreWrittenAndTheListIsEmpty) {
    startWithThreeDraws();
    page.updnTirNbr.set(2);
    EXPECT_EQ(captions(), (Texts{"49", "01", "12", "03", "14", "05", "16"}));
    EXPECT_EQ(rows(), Texts());
}

TEST_F(DrawAnalysisPage, EveryNumberHasTwoDigitsTheComplementaryOneToo) {
    startWithThreeDraws();
    page.updnTirNbr.set(1);
    EXPECT_EQ(captions(), (Texts{"07", "01", "02", "03", "04", "05", "06"}));
}

TEST_F(DrawAnalysisPage, EachStepOfTheControlShowsItsDrawAndItsAnalyses) {
    startWithThreeDraws();
    page.selectAnalyses({1, 4});
    page.updnTirNbr.step(-1);
    const std::string elapsed = "Nombre de tirages écoulés pour le numéro ";
    EXPECT_EQ(rows(),
              (Texts{"Somme des numéros de la combinaison sans complémentaire: 51",
                     elapsed + "01: 01", elapsed + "03: 01", elapsed + "05: 01", elapsed + "12: 01",
                     elapsed + "14: 01", elapsed + "16: 01", elapsed + "49: 01"}));
    page.updnTirNbr.step(-1);
    EXPECT_EQ(rows().at(1), elapsed + "01: 00") << "nothing has elapsed before the first draw";
    page.updnTirNbr.step(-1);
    EXPECT_EQ(page.updnTirNbr.value(), 1);
}

TEST_F(DrawAnalysisPage, TheSelectedAnalysesAddTheirRowsInListOrder) {
    startWithThreeDraws();
    page.selectAnalyses({2});
    EXPECT_EQ(rows(), (Texts{"Somme des numéros de la combinaison avec complémentaire: 96"}));
    page.selectAnalyses({1, 2, 3, 4, 5, 6, 7, 8});
    ASSERT_EQ(rows().size(), 71U);
    EXPECT_EQ(rows()[0], "Somme des numéros de la combinaison sans complémentaire: 63");
    EXPECT_EQ(rows()[2], "Nombre de  numéros pairs: 03");
    EXPECT_EQ(rows()[3], "Nombre de  numéros impairs: 04");
    EXPECT_EQ(rows()[70], "Dizaine la plus représentée: 00");
    page.selectAnalyses({});
    EXPECT_EQ(rows(), Texts());
}

TEST_F(DrawAnalysisPage, TheGroundsTellWhichNumbersTheBoardHolds) {
    startWithThreeDraws();
    for (std::size_t k = 0; k < 7; ++k)
        EXPECT_EQ(ground(k), k == 0 ? green : ochre);
    board.click(33);
    board.click(8);
    page.ShowDrawAnalysis();
    EXPECT_EQ(ground(0), paleGreen);
    EXPECT_EQ(ground(1), ochre);
    EXPECT_EQ(ground(2), paleOchre);
    EXPECT_TRUE(page.lblNumTir[2].selected);
    EXPECT_FALSE(page.lblNumTir[1].selected);
}

TEST_F(DrawAnalysisPage, AClickOnALabelTogglesItsNumberAndRecoloursItButNotTheCount) {
    startWithThreeDraws();
    board.click(20);
    const std::string status = mainWindow->StatusBar[1];
    EXPECT_EQ(status, "1 numéro sélectioné");
    page.clickNumber(0);
    page.clickNumber(6);
    EXPECT_EQ(markedNumbers(board), (Numbers{20, 33, 40}));
    EXPECT_EQ(ground(0), paleGreen);
    EXPECT_EQ(ground(6), paleOchre);
    EXPECT_EQ(mainWindow->StatusBar[1], status) << "three numbers are marked now";
    page.clickNumber(0);
    page.clickNumber(6);
    EXPECT_EQ(markedNumbers(board), (Numbers{20}));
    EXPECT_EQ(ground(0), green);
    EXPECT_EQ(ground(6), ochre);
    EXPECT_EQ(mainWindow->StatusBar[1], status);
}

TEST_F(DrawAnalysisPage, BelowPositionOneNothingHappens) {
    startWith({});
    EXPECT_FALSE(page.updnTirNbr.enabled);
    const int before = refreshes;
    page.ShowDrawAnalysis();
    page.selectAnalyses({1, 2, 3});
    EXPECT_EQ(refreshes, before);
    EXPECT_EQ(page.lblTirInfo, "");
    EXPECT_EQ(rows(), Texts());
    page.clickNumber(1);
    EXPECT_EQ(markedNumbers(board), Numbers());
    EXPECT_FALSE(page.lblNumTir[1].selected) << "a label without a number marks nothing";
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(DrawAnalysisPage, TheControlFollowsTheBase) {
    startWithThreeDraws();
    page.updnTirNbr.set(1);
    addDraw({21, 22, 23, 24, 25, 26, 27});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.updnTirNbr.max(), 4);
    EXPECT_EQ(page.updnTirNbr.value(), 4);
    EXPECT_EQ(captions().front(), "27");
    gDbCombs->clear();
    addDraw({31, 32, 33, 34, 35, 36, 37});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.updnTirNbr.value(), 1);
    EXPECT_EQ(captions().front(), "37");
}

TEST_F(DrawAnalysisPage, AChangedDrawIsShownAnew) {
    startWithThreeDraws();
    gDbCombs->Item(3).comb().num(1, 10);
    gDbCombs->Item(3).id(2);
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(captions().at(1), "10");
    EXPECT_EQ(page.lblTirInfo, "Tirage N° 2 du 03-01-2000");
}

TEST_F(DrawAnalysisPage, ATypedPositionGoesToTheControlWhereItIsOne) {
    startWithThreeDraws();
    page.leaveBox("2");
    EXPECT_EQ(page.updnTirNbr.value(), 2);
    for (const std::string typed : {"", "abc", "0", "-1", "4", "99999999999"}) {
        page.leaveBox(typed);
        EXPECT_EQ(page.updnTirNbr.value(), 2) << typed;
    }
}

TEST_F(DrawAnalysisPage, TheEmptyListSaysWhatFillsIt) {
    startWith({});
    EXPECT_EQ(page.lvwTirStat.whenEmpty().sentence,
              "La base est vide : importez d'abord des tirages.");
    addDraw({1, 2, 3, 4, 5, 6, 7});
    mainWindow->frmUpdateDBList();
    EXPECT_EQ(page.lvwTirStat.whenEmpty().sentence,
              "Choisissez une ou plusieurs analyses dans la liste.");
}

} // namespace
} // namespace boulix
