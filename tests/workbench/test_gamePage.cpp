// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The left side of the game page: the list of the game and the toolbar above it.

#include "gamePageTest.h"
#include "printing/frmPrintGridPreview.h"

namespace boulix {
namespace {

TEST_F(GamePageTest, TheListHasANumberAndSixColumns) {
    Texts headers;
    for (const ReportColumn &column : page.lvwGame.columns())
        headers.push_back(column.header);
    EXPECT_EQ(headers, (Texts{"N°", "1", "2", "3", "4", "5", "6"}));
    EXPECT_TRUE(page.chkUpdateList());
}

TEST_F(GamePageTest, ButtonsMenuAndSubTabsHaveTheirTexts) {
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"Charger", "Charger un jeu existant"},
        {"Effacer", "Effacer toutes les combinaisons du jeu en cours"},
        {"Supprimer", "Supprimer la combinaison sélectionner"},
        {"Eliminer", "Utiliser les éliminateur pour éliminer des combinaisons"},
        {"Sauver", "Sauvegarder le jeu"},
        {"Imprimer", "Imprimer le jeu courant"},
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(gamePage::tbarGame[i].caption, expected[i].first);
        EXPECT_EQ(gamePage::tbarGame[i].toolTip, expected[i].second);
    }
    EXPECT_EQ(Texts(gamePage::printMenu.begin(), gamePage::printMenu.end()),
              (Texts{"Imprimer la liste des combinaisons",
                     "Imprimer les grilles de la française des jeux",
                     "Imprimer les grilles à partir d'un canevas"}));
    EXPECT_EQ(Texts(gamePage::TabGame.begin(), gamePage::TabGame.end()),
              (Texts{"Vérifications", "Performances", "Rapports", "Jeux"}));
}

TEST_F(GamePageTest, TheRefillListsTheGridsAndHasTheGameVerified) {
    currentGame->Add(GridRef(gameComb({1, 2, 3, 4, 5, 6})));
    currentGame->Add(GridRef(gameComb({7, 18, 29, 30, 41, 49})));
    page.refill();
    EXPECT_EQ(rows(page.lvwGame), (std::vector<Texts>{{"1)", "1", "2", "3", "4", "5", "6"},
                                                      {"2)", "7", "18", "29", "30", "41", "49"}}));
    EXPECT_EQ(gamesShown, 1);
}

TEST_F(GamePageTest, TheRefillShowsItsProgressInTens) {
    addGrids(25);
    page.refill();
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    const auto &run = desktop.progressRuns[0];
    EXPECT_EQ(run.turns, 2);
    EXPECT_EQ(run.last.caption, "Mise à jour de la liste des combinaisons");
    EXPECT_EQ(run.last.lblInfo, "Veuillez patienter...");
    EXPECT_TRUE(run.last.ProgressBar.visible);
    EXPECT_EQ(run.last.ProgressBar.min, 1);
    EXPECT_EQ(run.last.ProgressBar.max, 25);
    EXPECT_EQ(run.last.ProgressBar.value, 20);
}

TEST_F(GamePageTest, TheRefillOfAFullTenMovesTheBarToItsEnd) {
    addGrids(20);
    page.refill();
    EXPECT_EQ(desktop.progressRuns.at(0).turns, 2);
    EXPECT_EQ(desktop.progressRuns.at(0).last.ProgressBar.value, 20);
}

TEST_F(GamePageTest, TheBarOfAGameOfOneGridReachesToTwo) {
    addGrids(1);
    page.refill();
    EXPECT_EQ(desktop.progressRuns.at(0).last.ProgressBar.min, 1);
    EXPECT_EQ(desktop.progressRuns.at(0).last.ProgressBar.max, 2);
}

TEST_F(GamePageTest, AnEmptyGameIsListedWithoutAProgressWindow) {
    page.refill();
    EXPECT_TRUE(desktop.progressRuns.empty());
    EXPECT_EQ(gamesShown, 0);
}

TEST_F(GamePageTest, CancellingTheRefillEmptiesTheListAndLeavesTheGame) {
    addGrids(55);
    page.refill();
    desktop.cancelProgressAt(3);
    page.refill();
    EXPECT_EQ(page.lvwGame.rowCount(), 0);
    EXPECT_EQ(currentGame->Count(), 55);
    EXPECT_EQ(gamesShown, 1);
    EXPECT_EQ(desktop.progressRuns.back().turns, 3);
}

TEST_F(GamePageTest, WithTheUpdateOffTheListStaysEmptyUntilTheBoxIsTicked) {
    page.tickUpdateList(false);
    addGrids(5);
    page.refill();
    EXPECT_EQ(page.lvwGame.rowCount(), 0);
    EXPECT_EQ(currentGame->Count(), 5);
    EXPECT_TRUE(desktop.progressRuns.empty());
    page.tickUpdateList(true);
    EXPECT_EQ(page.lvwGame.rowCount(), 5);
}

TEST_F(GamePageTest, TickingTheUpdateOffChangesNothingAtOnce) {
    addGrids(5);
    page.refill();
    page.tickUpdateList(false);
    EXPECT_EQ(page.lvwGame.rowCount(), 5);
}

TEST_F(GamePageTest, EffacerAsksAndEmptiesTheGame) {
    addGrids(5);
    page.refill();
    desktop.answerNo();
    click(gamePage::clearGame);
    EXPECT_EQ(currentGame->Count(), 5);
    desktop.answerYes();
    click(gamePage::clearGame);
    EXPECT_EQ(currentGame->Count(), 0);
    EXPECT_EQ(page.lvwGame.rowCount(), 0);
    const ShownBox question = {"Etes-vous sûr de vouloir effacer le jeu?", Icon::question,
                               "Effacement du jeu courant"};
    EXPECT_EQ(desktop.questions, (std::vector<ShownBox>{question, question}));
}

TEST_F(GamePageTest, SupprimerAsksAndRemovesTheSelectedGrid) {
    addGrids(3);
    page.refill();
    selected = {2};
    desktop.answerNo();
    click(gamePage::removeGrids);
    EXPECT_EQ(currentGame->Count(), 3);
    desktop.answerYes();
    click(gamePage::removeGrids);
    ASSERT_EQ(currentGame->Count(), 2);
    EXPECT_EQ(currentGame->Item(2).num(1), 4);
    EXPECT_EQ(page.lvwGame.rowCount(), 2);
    EXPECT_EQ(desktop.questions[0].text,
              "Attention!!! Si les combinaisons que vous décidez de supprimer font partie d'un jeu "
              "réduit, vous perdrez la garantie de gain de ce jeu.\r\nSouhaitez-vous quand même "
              "effacer la combinaison sélectionnée?");
    EXPECT_EQ(desktop.questions[0].title, "boulix Version 4.0.3");
}

TEST_F(GamePageTest, OfSeveralSelectedRowsTheLaterOnesHaveMovedWhenTheyAreRemoved) {
    addGrids(6); // first numbers 2 to 7
    page.refill();
    selected = {1, 2, 3};
    desktop.answerYes();
    click(gamePage::removeGrids);
    std::vector<std::int16_t> left;
    for (const gameComb &grid : *currentGame)
        left.push_back(grid.num(1));
    EXPECT_EQ(left, (Numbers{3, 5, 7}));
}

TEST_F(GamePageTest, ASelectedRowBeyondTheShrunkenGameIsAFailureAndTheListShowsWhatIsLeft) {
    addGrids(4);
    page.refill();
    selected = {3, 4};
    desktop.answerYes();
    click(gamePage::removeGrids);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 9");
    EXPECT_EQ(currentGame->Count(), 3);
    EXPECT_EQ(page.lvwGame.rowCount(), 3);
}

TEST_F(GamePageTest, EliminerTakesTheValuesOfTheOtherPageFirst) {
    addGrids(3);
    currentGame->Add(GridRef(gameComb({1, 2, 3, 4, 40, 41})));
    rules.tick(6, true);
    rules.txtEliminator[6] = "4";
    click(gamePage::eliminateGrids);
    EXPECT_EQ(currentGame->Count(), 1);
    EXPECT_EQ(page.lvwGame.rowCount(), 1);
    EXPECT_EQ(desktop.messages.back().text, "1 combinaisons restantes.");
}

TEST_F(GamePageTest, SauverAndChargerGoThroughTheFile) {
    addGrids(4);
    desktop.answerSave(file("jeu.lst"));
    click(gamePage::saveGame);
    currentGame->clear();
    desktop.answerOpen(file("jeu.lst"));
    click(gamePage::loadGame);
    EXPECT_EQ(page.lvwGame.rowCount(), 4);
}

TEST_F(GamePageTest, ACancelledChargerEmptiesGameAndList) {
    addGrids(40);
    desktop.answerSave(file("jeu.lst"));
    click(gamePage::saveGame);
    page.refill();
    desktop.answerOpen(file("jeu.lst"));
    desktop.cancelProgressAt(1);
    click(gamePage::loadGame);
    EXPECT_EQ(currentGame->Count(), 0);
    EXPECT_EQ(page.lvwGame.rowCount(), 0);
}

TEST_F(GamePageTest, AnUnreadableFileIsShownAndTheListStaysTrue) {
    addGrids(4);
    page.refill();
    desktop.answerOpen(file("absent.lst"));
    click(gamePage::loadGame);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 53");
    EXPECT_EQ(page.lvwGame.rowCount(), 4);
}

TEST_F(GamePageTest, TheListCanBeLookedAtWhileTheGameShrinks) {
    addGrids(200);
    page.refill();
    desktop.onEvents = [this] {
        if (page.lvwGame.rowCount() == 200)
            (void)page.lvwGame.text(199, 6);
    };
    rules.tick(4, true);
    rules.txtEliminator[4] = "4";
    click(gamePage::eliminateGrids);
    const std::int64_t rowsLeft = page.lvwGame.rowCount();
    ASSERT_GT(rowsLeft, 0);
    currentGame->clear();
    EXPECT_EQ(page.lvwGame.text(rowsLeft - 1, 6), "");
}

TEST_F(GamePageTest, TheMenuOfImprimerActsOnlyOnAGameWithGrids) {
    for (const int entry : {1, 2, 3})
        page.clickPrint(entry);
    EXPECT_TRUE(printers.documents.empty());
    EXPECT_EQ(printWindows.previewShowings, 0);
}

TEST_F(GamePageTest, TheMenuOfImprimerPrintsListSlipsAndCanvas) {
    addGrids(2);
    printWindows.onGridPreview = [](frmPrintGridPreview &window) { window.clickToolbar(3); };
    page.clickPrint(gamePage::printList);
    page.clickPrint(gamePage::printSlips);
    page.clickPrint(gamePage::printCanvas);
    ASSERT_EQ(printers.documents.size(), 3U);
    EXPECT_NE(printers.documents[0].lines().back().find("002)"), std::string::npos);
    EXPECT_EQ(printWindows.previewShowings, 2);
    EXPECT_NE(printers.documents[1].drawn[0].x1, printers.documents[2].drawn[0].x1);
}

TEST_F(GamePageTest, AGameOfASingleGridIsPrintedToo) {
    addGrids(1);
    page.clickPrint(gamePage::printList);
    EXPECT_TRUE(printers.onlyDocument().ended);
}

TEST_F(GamePageTest, TheButtonImprimerItselfDoesNothing) {
    addGrids(2);
    click(gamePage::printGame);
    EXPECT_TRUE(printers.documents.empty());
}

} // namespace
} // namespace boulix
