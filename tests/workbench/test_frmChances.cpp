// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window of a game's chances, and the button that opens it.

#include "printing/gridConfig.h"
#include "winnings/chances.h"
#include "winningsPageTest.h"

#include <limits>

namespace boulix {
namespace {

using Line = std::vector<std::string>;

/// The no-break spaces of `text` as blanks, for the eye.
std::string readable(std::string text) {
    const std::string noBreak = "\u00a0";
    for (std::size_t at = text.find(noBreak); at != std::string::npos; at = text.find(noBreak))
        text.replace(at, noBreak.size(), " ");
    return text;
}

Line lineOf(const reportList &list, std::int64_t row) {
    Line line;
    for (int column = 0; column < static_cast<int>(list.columns().size()); ++column)
        line.push_back(readable(list.text(row, column)));
    return line;
}

class ChancesWindow : public WinningsPageTest {
  protected:
    /// The chances of one grid, as they are known without a count.
    static GameChances ofOneGrid() {
        GameChances chances;
        chances.grids = 1;
        chances.numbers = 6;
        chances.cases = allCases(49);
        chances.best[0] = chances.cases;
        for (int rank = 1; rank <= 11; ++rank) {
            const auto place = static_cast<std::size_t>(rank);
            chances.oneGrid[place] = chances.best[place] = casesOfOneGrid(49, rank);
            chances.best[0] -= chances.best[place];
        }
        chances.amounts.unit = 10;
        chances.amounts.price = 6;
        chances.amounts.prizes[5] = 21;
        chances.amounts.prizes[11] = 5'200'000;
        chances.aboveStake = chances.best[5] + chances.best[11];
        return chances;
    }
};

TEST_F(ChancesWindow, TellsEachRankOfOneGrid) {
    const frmChances window(ofOneGrid(), "euro");
    EXPECT_STREQ(frmChances::caption, "Chances du jeu");
    ASSERT_EQ(window.lvwRanks.rowCount(), 12);
    EXPECT_EQ(lineOf(window.lvwRanks, 0),
              (Line{"1 numéro", "56,40 %", "1,77", "339 156 566", "0,3650", "0"}));
    EXPECT_EQ(lineOf(window.lvwRanks, 4),
              (Line{"3 numéros", "1,86 %", "53,66", "11 206 832", "0,0164", "0,0345"}));
    EXPECT_EQ(lineOf(window.lvwRanks, 10),
              (Line{"6 numéros", "0,00000715 %", "13 983 816", "43", "0,000000072", "0,0372"}));
    EXPECT_EQ(lineOf(window.lvwRanks, 11),
              (Line{"Tous les rangs", "", "", "", "0,5640", "0,0717"}));
}

TEST_F(ChancesWindow, DrawsABarForEachRank) {
    const frmChances window(ofOneGrid(), "euro");
    ASSERT_EQ(window.bars.size(), 11U);
    EXPECT_EQ(window.bars[10].label, "6 numéros");
    EXPECT_DOUBLE_EQ(window.bars[10].chance, 1 / 13'983'816.0);
    EXPECT_EQ(readable(window.bars[10].text), "0,00000715 %, 1 chance sur 13 983 816");
}

TEST_F(ChancesWindow, TellsWhatTheGameGivesBack) {
    const frmChances window(ofOneGrid(), "euro");
    EXPECT_EQ(window.lblStake, "0,60 euro");
    EXPECT_EQ(window.lblReturn, "0,0717 euro par tirage");
    EXPECT_EQ(readable(window.lblReturnPart), "11,94 %");
    EXPECT_EQ(readable(window.lblAboveStake), "1,64 %, 1 chance sur 60,90");
    EXPECT_EQ(window.lblSentence, "En moyenne, ce jeu rend 0,0717 euro pour 0,60 euro joué.");
}

TEST_F(ChancesWindow, UnitsHaveTheirPlural) {
    GameChances chances = ofOneGrid();
    chances.grids = 2000;
    EXPECT_EQ(readable(frmChances(chances, "euro").lblSentence),
              "En moyenne, ce jeu rend 143,33 euros pour 1 200 euros joués.");
    EXPECT_EQ(readable(frmChances(chances, "€").lblSentence),
              "En moyenne, ce jeu rend 143,33 € pour 1 200 € joués.");
    EXPECT_EQ(readable(frmChances(chances, "francs").lblStake), "1 200 francs");
}

TEST_F(ChancesWindow, AGameForNothingHasNoReturnInPercentAndMayNeverWin) {
    GameChances chances = ofOneGrid();
    chances.amounts = {};
    chances.aboveStake = 0;
    const frmChances window(chances, "euro");
    EXPECT_EQ(window.lblReturnPart, "\u2014");
    EXPECT_EQ(window.lblAboveStake, "aucune");
    EXPECT_EQ(window.lblSentence, "En moyenne, ce jeu rend 0 euro pour 0 euro joué.");
}

TEST_F(ChancesWindow, TellsTheGuaranteesOfAGameOnFewNumbers) {
    GameChances chances = ofOneGrid();
    chances.numbers = 9;
    for (int drawn = 1; drawn <= 6; ++drawn)
        chances.guarantees.push_back({drawn, drawn - 1, drawn, 25, 10});
    const frmChances window(chances, "euro");
    EXPECT_TRUE(window.hasGuarantees);
    EXPECT_EQ(window.lblGuarantees, "Garanties : numéros trouvés par la meilleure grille,\r\n"
                                    "quand tant des 9 numéros du jeu sont tirés.");
    ASSERT_EQ(window.lvwGuarantees.rowCount(), 6);
    EXPECT_EQ(lineOf(window.lvwGuarantees, 2), (Line{"3", "2", "2,5000", "3"}));
}

TEST_F(ChancesWindow, SaysWhyThereAreNoGuarantees) {
    GameChances chances = ofOneGrid();
    chances.numbers = 21;
    const frmChances window(chances, "euro");
    EXPECT_FALSE(window.hasGuarantees);
    EXPECT_EQ(window.lblGuarantees, "Garanties : données jusqu'à 20 numéros différents.\r\n"
                                    "Ce jeu en a 21.");
}

TEST_F(ChancesWindow, OpensBehindTheProgressWindow) {
    gGridConfig->price(2);
    gGridConfig->monneyUnit("franc");
    int shown = 0;
    onChances = [&](frmChances &window) {
        ++shown;
        EXPECT_TRUE(desktop.mainWindowEnabled()) << "the progress window is gone";
        EXPECT_EQ(readable(window.lblStake), "2 francs");
        EXPECT_EQ(lineOf(window.lvwRanks, 10)[3], "43");
        EXPECT_TRUE(window.hasGuarantees);
    };
    page.clickPerfo(winningsPage::showChances);
    EXPECT_EQ(shown, 1);
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    EXPECT_EQ(desktop.progressRuns[0].last.caption, "Chances du jeu");
    EXPECT_EQ(desktop.progressRuns[0].last.lblInfo, "Calcul des chances sur tous les tirages...");
}

TEST_F(ChancesWindow, StaysClosedWhenTheUserCancels) {
    desktop.cancelProgressAt(3);
    onChances = [](frmChances &) { ADD_FAILURE() << "the window opened"; };
    page.clickPerfo(winningsPage::showChances);
    EXPECT_EQ(desktop.eventTurns, 3);
}

TEST_F(ChancesWindow, StaysClosedForAGameThatHasNone) {
    onChances = [](frmChances &) { ADD_FAILURE() << "the window opened"; };
    currentGame->clear();
    page.clickPerfo(winningsPage::showChances);
    addGrid({1, 1, 2, 3, 4, 5});
    page.clickPerfo(winningsPage::showChances);
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[0].text, "Le jeu courant est vide : ajoutez-lui des grilles pour en "
                                        "connaître les chances.");
    EXPECT_EQ(desktop.messages[0].icon, Icon::information);
    EXPECT_EQ(desktop.messages[0].title, "boulix");
    EXPECT_EQ(desktop.messages[1].text, "La grille n° 1 (01 01 02 03 04 05) ne peut pas être "
                                        "jouée : il lui faut six numéros différents de 1 à 49.");
    EXPECT_TRUE(desktop.progressRuns.empty());
}

} // namespace
} // namespace boulix
