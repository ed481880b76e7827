// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The right side of the game page: tabs, selection, computation, adding.

#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "gamePageTest.h"
#include "stats/statStores.h"
#include "support/lottery.h"

#include <algorithm>

namespace boulix {
namespace {

class GameDesignTest : public GamePageTest {
  protected:
    /// The numbers marked when the dialog of "Sélection" opened last.
    const Numbers &marked() const { return desktop.numberShowings.back().markedBefore; }
    void clickSelection() {
        desktop.answerNumbers(NumberScript().cancel());
        click(gameDesign::selectNumbers);
    }
    const game &made() const { return *constructionGame; }

    gameDesign &design = page.design;
};

TEST_F(GameDesignTest, TabsAndButtonsHaveTheirTexts) {
    const std::vector<std::pair<std::string, std::string>> tabs = {
        {"Réduits", "Création de grilles à partir de système de jeux réduits"},
        {"Pos. fixes", "Création de grilles à partir d'un système à positions fixes"},
        {"Manuel", "Création de grilles manuellement"},
        {"Aléatoire", "Création de grilles au contenu aléatoire"},
        {"Sélecteurs", "Permet de définir une méthode de sélection de numéros pour les jeux"},
        {"Créer", "Créer des systèmes de jeux à partir d'algorithles ittératifs"},
    };
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        EXPECT_EQ(gameDesign::tabGameDesign[i].caption, tabs[i].first);
        EXPECT_EQ(gameDesign::tabGameDesign[i].toolTip, tabs[i].second);
    }
    const std::vector<std::pair<std::string, std::string>> buttons = {
        {"Ajouter", "Ajouter le jeu composé au jeu courant"},
        {"Sélection", "Sélectionner les numéros"},
        {"Effacer", "Effacer le jeu composé"},
        {"Calculer", "Effectue le calcul du jeu sélectionné"},
    };
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(gameDesign::tbarGameDef[i].caption, buttons[i].first);
        EXPECT_EQ(gameDesign::tbarGameDef[i].toolTip, buttons[i].second);
    }
    EXPECT_EQ(Texts(gameDesign::chkSelectTexts.begin(), gameDesign::chkSelectTexts.end()),
              (Texts{"sélectionnés lors de l'analyse statistique", "des triplets non sortis",
                     "issus des pronostiques"}));
}

TEST_F(GameDesignTest, TheDropDownShowsTheSystemsOfTheTab) {
    ASSERT_EQ(design.cmbGameType().size(), 9U);
    EXPECT_EQ(design.cmbGameType()[3], "3 numéros gagnants si 6 sur 17 en 6 grilles");
    EXPECT_EQ(design.gameType(), 0);
    design.chooseGameType(5);
    design.clickTab(gameDesign::fixedTab);
    EXPECT_EQ(design.cmbGameType(),
              (Texts{"2 fixes et 5 numéros gagnants si 6 sur 10 en 14 grilles"}));
    EXPECT_EQ(design.gameType(), 0);
    design.clickTab(gameDesign::manualTab);
    EXPECT_EQ(design.cmbGameType().size(), 1U) << "only the first two tabs fill it";
}

TEST_F(GameDesignTest, ASystemTabSelectsExactlyItsNumbers) {
    design.chooseGameType(3); // 17 numbers
    clickSelection();
    EXPECT_EQ(desktop.numberShowings.back().maxSelected, 17);
    EXPECT_EQ(design.gameSelector().nMinSelectedNbr(), 17);
    design.clickTab(gameDesign::fixedTab);
    clickSelection();
    EXPECT_EQ(desktop.numberShowings.back().maxSelected, 10);
}

TEST_F(GameDesignTest, TheManualAndTheRandomTabSelect6To49Numbers) {
    for (const int tab : {gameDesign::manualTab, gameDesign::randomTab}) {
        design.clickTab(tab);
        clickSelection();
        EXPECT_EQ(desktop.numberShowings.back().maxSelected, 49);
        EXPECT_EQ(design.gameSelector().nMinSelectedNbr(), 6);
    }
}

TEST_F(GameDesignTest, WithoutAChosenSystemSelectionAndCalculationDoNothing) {
    design.chooseGameType(-1);
    click(gameDesign::selectNumbers);
    EXPECT_TRUE(desktop.numberShowings.empty());
    design.clickTab(gameDesign::manualTab);
    select(upTo(7));
    click(gameDesign::computeGame);
    EXPECT_EQ(made().Count(), 0);
}

TEST_F(GameDesignTest, TheBoardShowsTheSelection) {
    design.clickTab(gameDesign::manualTab);
    select({9, 3, 48, 20, 21, 22});
    EXPECT_EQ(testing_support::markedNumbers(design.grdGameDef), (Numbers{9, 3, 48, 20, 21, 22}));
    EXPECT_FALSE(design.grdGameDef.click(1)) << "it is not the place to select";
    clickSelection(); // cancelled
    EXPECT_EQ(design.grdGameDef.selectedCount(), 0);
}

TEST_F(GameDesignTest, AReducedGameIsComputedAndListed) {
    select({4, 9, 15, 22, 23, 24, 31, 40, 41, 49});
    click(gameDesign::computeGame);
    EXPECT_EQ(made().Count(), 18);
    ASSERT_EQ(design.lvwGameDef.rowCount(), 18);
    EXPECT_EQ(rows(design.lvwGameDef)[0], (Texts{"1)", "4", "9", "15", "22", "23", "24"}));
    EXPECT_EQ(rows(design.lvwGameDef)[17], (Texts{"18)", "23", "24", "31", "40", "41", "49"}));
}

TEST_F(GameDesignTest, AFixedPositionGameIsComputedFromTheOtherList) {
    design.clickTab(gameDesign::fixedTab);
    select(upTo(10));
    click(gameDesign::computeGame);
    EXPECT_EQ(design.lvwGameDef.rowCount(), 14);
}

TEST_F(GameDesignTest, AWrongSelectionLeavesTheListAsItIs) {
    design.clickTab(gameDesign::manualTab);
    select(upTo(7));
    click(gameDesign::computeGame);
    design.clickTab(gameDesign::reducedTab);
    click(gameDesign::computeGame); // 7 numbers instead of 10
    EXPECT_EQ(desktop.messages.back().title, "boulix: Erreur N° 3101");
    EXPECT_EQ(made().Count(), 7);
}

TEST_F(GameDesignTest, AFailedCalculationDoesNotMakeTheGameThatOfItsTab) {
    design.clickTab(gameDesign::manualTab);
    select(upTo(7));
    click(gameDesign::computeGame);
    design.clickTab(gameDesign::reducedTab);
    click(gameDesign::computeGame); // 7 numbers instead of 10
    click(gameDesign::addGame);
    EXPECT_EQ(desktop.messages.back().title, "boulix: Erreur N° 701");
    EXPECT_EQ(currentGame->Count(), 0);
    design.clickTab(gameDesign::manualTab);
    EXPECT_EQ(design.lvwGameDef.rowCount(), 7);
    click(gameDesign::addGame);
    EXPECT_EQ(currentGame->Count(), 7);
}

TEST_F(GameDesignTest, ASecondCalculationAppends) {
    design.clickTab(gameDesign::manualTab);
    select(upTo(7));
    click(gameDesign::computeGame);
    click(gameDesign::computeGame);
    EXPECT_EQ(made().Count(), 14);
    EXPECT_EQ(design.lvwGameDef.rowCount(), 14);
}

TEST_F(GameDesignTest, ARandomGameIsATotalAndTheSecondCalculationAddsNone) {
    design.clickTab(gameDesign::randomTab);
    select(upTo(20));
    design.txtNrandomGrid = " 10 ";
    click(gameDesign::computeGame);
    EXPECT_EQ(made().Count(), 10);
    click(gameDesign::computeGame);
    EXPECT_EQ(made().Count(), 10);
    EXPECT_EQ(design.lvwGameDef.rowCount(), 10);
}

TEST_F(GameDesignTest, AnEmptyCountOfRandomGridsGivesTheErrorOfANegativeOne) {
    design.clickTab(gameDesign::randomTab);
    select(upTo(20));
    for (const char *text : {"", "   ", "-3"}) {
        design.txtNrandomGrid = text;
        click(gameDesign::computeGame);
        EXPECT_EQ(desktop.messages.back().title, "boulix: Erreur N° 3102");
    }
}

TEST_F(GameDesignTest, ACountThatIsNo16BitNumberIsShownAsAFailure) {
    design.clickTab(gameDesign::randomTab);
    select(upTo(20));
    design.txtNrandomGrid = "beaucoup";
    click(gameDesign::computeGame);
    EXPECT_EQ(desktop.messages.back().title, "Boulix Erreur système N° 13");
    design.txtNrandomGrid = "99999";
    click(gameDesign::computeGame);
    EXPECT_EQ(desktop.messages.back().title, "Boulix Erreur système N° 6");
    EXPECT_EQ(made().Count(), 0);
}

TEST_F(GameDesignTest, ACancelledCalculationLeavesTheListThoughTheGameIsEmpty) {
    design.clickTab(gameDesign::manualTab);
    select(upTo(8));
    click(gameDesign::computeGame);
    const auto before = rows(design.lvwGameDef);
    desktop.cancelProgressAt(1);
    click(gameDesign::computeGame);
    EXPECT_EQ(made().Count(), 0);
    EXPECT_EQ(rows(design.lvwGameDef), before);
}

TEST_F(GameDesignTest, AnotherTabHidesTheGameAndItsOwnTabShowsItAgain) {
    design.clickTab(gameDesign::manualTab);
    select(upTo(7));
    click(gameDesign::computeGame);
    for (const int other : {gameDesign::randomTab, gameDesign::createTab, gameDesign::reducedTab}) {
        design.clickTab(other);
        EXPECT_EQ(design.lvwGameDef.rowCount(), 0);
        EXPECT_EQ(made().Count(), 7);
        design.clickTab(gameDesign::manualTab);
        EXPECT_EQ(design.lvwGameDef.rowCount(), 7);
    }
    design.clickTab(gameDesign::selectorsTab);
    EXPECT_EQ(design.lvwGameDef.rowCount(), 7) << "the tab without the list leaves it alone";
}

TEST_F(GameDesignTest, AClickOnTheTabAlreadyShownDoesNothing) {
    design.chooseGameType(4);
    design.clickTab(gameDesign::reducedTab);
    EXPECT_EQ(design.gameType(), 4);
}

TEST_F(GameDesignTest, AjouterSharesTheGridsWithTheCurrentGameAndRefillsItsList) {
    design.clickTab(gameDesign::manualTab);
    select(upTo(7));
    click(gameDesign::computeGame);
    addGrids(1);
    click(gameDesign::addGame);
    EXPECT_EQ(currentGame->Count(), 8);
    EXPECT_EQ(page.lvwGame.rowCount(), 8);
    EXPECT_EQ(made().Count(), 7) << "what was made stays";
    constructionGame->Item(1).num(6, 49);
    EXPECT_EQ(currentGame->Item(2).num(6), 49);
}

TEST_F(GameDesignTest, AjouterOnAnotherTabReports701) {
    select(upTo(10));
    click(gameDesign::computeGame);
    design.clickTab(gameDesign::manualTab);
    click(gameDesign::addGame);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {"Impossible d'ajouter le jeu: aucun jeu de ce type n'a été défini!!!",
                   Icon::information, "boulix: Erreur N° 701"}}));
    EXPECT_EQ(currentGame->Count(), 0);
}

TEST_F(GameDesignTest, AjouterWithoutAGameReports701) {
    click(gameDesign::addGame);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 701");
}

TEST_F(GameDesignTest, AjouterWithTheUpdateOffFillsTheGameAndLeavesItsListEmpty) {
    page.tickUpdateList(false);
    select(upTo(10));
    click(gameDesign::computeGame);
    click(gameDesign::addGame);
    EXPECT_EQ(currentGame->Count(), 18);
    EXPECT_EQ(page.lvwGame.rowCount(), 0);
    page.tickUpdateList(true);
    EXPECT_EQ(page.lvwGame.rowCount(), 18);
}

TEST_F(GameDesignTest, EffacerAsksAndEmptiesTheGameUnderConstruction) {
    select(upTo(10));
    click(gameDesign::computeGame);
    desktop.answerNo();
    click(gameDesign::clearGame);
    EXPECT_EQ(made().Count(), 18);
    desktop.answerYes();
    click(gameDesign::clearGame);
    EXPECT_EQ(made().Count(), 0);
    EXPECT_EQ(design.lvwGameDef.rowCount(), 0);
    EXPECT_EQ(desktop.questions.back(),
              (ShownBox{"Etes-vous sûr de vouloir effacer le jeu sans l'ajouter?", Icon::question,
                        "Effacement du jeu en construction"}));
}

TEST_F(GameDesignTest, NumbersOfTheStatisticsAreMarkedInTheirOrder) {
    design.markedInStatistics = [] { return Numbers{40, 3, 17}; };
    design.chkSelect[gameDesign::statisticNumbers] = true;
    clickSelection();
    EXPECT_EQ(marked(), (Numbers{40, 3, 17}));
}

TEST_F(GameDesignTest, NoMoreNumbersAreMarkedThanTheSystemTakes) {
    design.markedInStatistics = [] { return upTo(30); };
    design.chkSelect[gameDesign::statisticNumbers] = true;
    clickSelection();
    EXPECT_EQ(marked(), upTo(10));
}

TEST_F(GameDesignTest, TheMissingTripletsMarkAllNumbers) {
    modStats::InitTripletTable();
    design.clickTab(gameDesign::manualTab);
    design.chkSelect[gameDesign::missingTriplets] = true;
    clickSelection();
    EXPECT_EQ(marked(), upTo(49));
}

TEST_F(GameDesignTest, TheMissingTripletsAreThoseOfAllDrawsWithTheirComplementaries) {
    modStats::InitTripletTable();
    const std::vector<Numbers> draws = {{1, 2, 3, 4, 5, 6, 7}, {40, 41, 42, 43, 44, 45, 1}};
    addDraw({1, 2, 3, 4, 5, 6, 7});
    addDraw({40, 41, 42, 43, 44, 45, 1});
    design.clickTab(gameDesign::manualTab);
    design.chkSelect[gameDesign::missingTriplets] = true;
    clickSelection();
    for (const modStats::Triplet &triplet : modStats::tripletTable) {
        const bool drawn = std::any_of(draws.begin(), draws.end(), [&](const Numbers &draw) {
            return std::all_of(triplet.num.begin(), triplet.num.end(), [&](std::int16_t n) {
                return std::count(draw.begin(), draw.end(), n) > 0;
            });
        });
        ASSERT_EQ(triplet.flag != 0, drawn) << ::testing::PrintToString(triplet.num);
    }
}

TEST_F(GameDesignTest, NumbersOfTheForecastsAreHandedOverThroughTheirSet) {
    design.tickedInForecasts = [] { return Numbers{12, 7, 33}; };
    design.chkSelect[gameDesign::forecastNumbers] = true;
    gPronostics->selNbr(1); // an earlier selection
    clickSelection();
    EXPECT_EQ(marked(), (Numbers{12, 7, 33}));
    EXPECT_EQ(gPronostics->nSelected(), 3);
    EXPECT_EQ(gPronostics->Selected(2), 7);
}

TEST_F(GameDesignTest, ANumberOfTwoSourcesIsMarkedOnceAtItsFirstPlace) {
    modStats::InitTripletTable();
    design.clickTab(gameDesign::manualTab);
    design.markedInStatistics = [] { return Numbers{40, 3}; };
    design.tickedInForecasts = [] { return Numbers{3, 12}; };
    design.chkSelect = {true, false, true};
    clickSelection();
    EXPECT_EQ(marked(), (Numbers{40, 3, 12}));
    design.chkSelect = {true, true, true};
    clickSelection();
    Numbers expected = {40, 3};
    for (const std::int16_t n : upTo(49))
        if (n != 40 && n != 3)
            expected.push_back(n);
    EXPECT_EQ(marked(), expected);
}

TEST_F(GameDesignTest, WithoutASourceTheEarlierMarksComeBack) {
    design.clickTab(gameDesign::manualTab);
    design.markedInStatistics = [] { return upTo(10); };
    design.chkSelect[gameDesign::statisticNumbers] = true;
    desktop.answerNumbers(NumberScript().click({1, 2, 3}).ok()); // three of the ten off
    click(gameDesign::selectNumbers);
    design.chkSelect[gameDesign::statisticNumbers] = false;
    clickSelection();
    EXPECT_EQ(marked(), (Numbers{4, 5, 6, 7, 8, 9, 10}));
}

} // namespace
} // namespace boulix
