// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is taken back on the game page, and what it says about its commands.

#include "gamePageTest.h"
#include "printing/gridConfig.h"
#include "sill/undo.h"

#include <random>

namespace boulix {
namespace {

using Grids = std::vector<gameComb::Numbers>;

Grids contentsOf(const game &grids) {
    Grids all;
    for (const gameComb &grid : grids)
        all.push_back(grid.numbers());
    return all;
}

class GameUndoTest : public GamePageTest {
  protected:
    /// Clicks, and expects that an undo gives the game back and a redo the outcome.
    void expectUndone(gamePage::Button button, const std::string &name) {
        const Grids before = contentsOf(*currentGame);
        const std::string file = page.lblFile();
        click(button);
        const Grids after = contentsOf(*currentGame);
        const std::string fileAfter = page.lblFile();
        ASSERT_NE(before, after);
        ASSERT_EQ(gUndo->undoName(), name);
        gUndo->undo();
        EXPECT_EQ(contentsOf(*currentGame), before);
        EXPECT_EQ(page.lvwGame.rowCount(), std::ssize(before));
        EXPECT_EQ(page.lblFile(), file);
        gUndo->redo();
        EXPECT_EQ(contentsOf(*currentGame), after);
        EXPECT_EQ(page.lvwGame.rowCount(), std::ssize(after));
        EXPECT_EQ(page.lblFile(), fileAfter);
        gUndo->undo();
    }
    void save(const std::string &name) {
        desktop.answerSave(file(name));
        click(gamePage::saveGame);
    }
    void load(const std::string &name) {
        desktop.answerOpen(file(name));
        click(gamePage::loadGame);
    }
    std::string lastAnnounced() const {
        std::string text = desktop.announcements.empty() ? "" : desktop.announcements.back();
        for (std::size_t place; (place = text.find("\u00a0")) != std::string::npos;)
            text.replace(place, 2, " ");
        return text;
    }
    void makeManual(int numbers) {
        page.design.clickTab(gameDesign::manualTab);
        select(upTo(numbers));
        click(gameDesign::computeGame);
    }
};

TEST_F(GameUndoTest, EffacerIsTakenBack) {
    addGrids(24);
    page.refill();
    desktop.answerYes();
    expectUndone(gamePage::clearGame, "Effacer");
    EXPECT_EQ(lastAnnounced(), "Jeu effacé : 24 grilles");
    EXPECT_EQ(desktop.erasing, desktop.questions);
}

TEST_F(GameUndoTest, SupprimerIsTakenBack) {
    addGrids(24);
    page.refill();
    selected = {2, 3, 17};
    desktop.answerYes();
    expectUndone(gamePage::removeGrids, "Supprimer");
    EXPECT_EQ(lastAnnounced(), "3 grilles supprimées : le jeu a 21 grilles");
    EXPECT_EQ(desktop.erasing, desktop.questions);
}

TEST_F(GameUndoTest, ASupprimerThatFailsOnTheWayIsTakenBackToo) {
    addGrids(4);
    page.refill();
    selected = {3, 4};
    desktop.answerYes();
    expectUndone(gamePage::removeGrids, "Supprimer");
    EXPECT_EQ(currentGame->Count(), 4);
}

TEST_F(GameUndoTest, EliminerIsTakenBack) {
    addGrids(24);
    page.refill();
    rules.tick(4, true);
    rules.txtEliminator[4] = "4";
    expectUndone(gamePage::eliminateGrids, "Eliminer");
    EXPECT_EQ(lastAnnounced(), "12 grilles éliminées : le jeu a 12 grilles");
}

TEST_F(GameUndoTest, ChargerIsTakenBackAlsoWhereItWasCancelled) {
    addGrids(24);
    page.refill();
    save("mardi.lst");
    EXPECT_EQ(lastAnnounced(), "Jeu enregistré dans mardi.lst : 24 grilles");
    EXPECT_EQ(page.lblFile(), "mardi.lst");
    desktop.answerOpen(file("mardi.lst"));
    expectUndone(gamePage::loadGame, "Charger");
    EXPECT_EQ(lastAnnounced(), "24 grilles chargées de mardi.lst : le jeu a 48 grilles");
    EXPECT_EQ(page.lblFile(), "mardi.lst") << "the undo gives the saved game back";
    desktop.answerOpen(file("mardi.lst"));
    desktop.cancelProgressAt(1);
    expectUndone(gamePage::loadGame, "Charger");
    EXPECT_EQ(lastAnnounced(), "Chargement annulé : le jeu est vide, « Annuler » le rétablit");
}

TEST_F(GameUndoTest, AjouterIsTakenBack) {
    addGrids(3);
    page.refill();
    makeManual(7);
    click(gameDesign::addGame);
    EXPECT_EQ(lastAnnounced(), "7 grilles ajoutées : le jeu a 10 grilles");
    EXPECT_EQ(gUndo->undoName(), "Ajouter");
    gUndo->undo();
    EXPECT_EQ(currentGame->Count(), 3);
    EXPECT_EQ(page.lvwGame.rowCount(), 3);
    EXPECT_EQ(constructionGame->Count(), 7);
    gUndo->redo();
    EXPECT_EQ(currentGame->Count(), 10);
    EXPECT_TRUE(currentGame->shared(4) == constructionGame->shared(1));
}

TEST_F(GameUndoTest, WhatChangedNothingIsNotThereToBeTakenBack) {
    desktop.answerYes();
    click(gamePage::clearGame);
    addGrids(3);
    page.refill();
    desktop.answerNo();
    click(gamePage::clearGame);
    desktop.answerYes();
    click(gamePage::removeGrids); // nothing is selected
    EXPECT_EQ(lastAnnounced(), "Aucune grille supprimée");
    click(gamePage::eliminateGrids); // no rule is on
    EXPECT_EQ(lastAnnounced(), "Aucune grille éliminée");
    desktop.cancelOpen();
    click(gamePage::loadGame);
    EXPECT_FALSE(gUndo->canUndo());
}

TEST_F(GameUndoTest, TheGridsUnderConstructionAreTakenBackWithTheirMethod) {
    makeManual(7);
    EXPECT_EQ(lastAnnounced(), "7 grilles calculées");
    page.design.clickTab(gameDesign::randomTab);
    select(upTo(20));
    page.design.txtNrandomGrid = "10";
    click(gameDesign::computeGame);
    EXPECT_EQ(lastAnnounced(), "3 grilles calculées, avec celles de « Manuel » : 10 grilles");
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 10);
    gUndo->undo();
    EXPECT_EQ(constructionGame->Count(), 7);
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 0) << "they belong to another tab again";
    page.design.clickTab(gameDesign::manualTab);
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 7);
    desktop.answerYes();
    click(gameDesign::clearGame);
    EXPECT_EQ(lastAnnounced(), "Grilles en construction effacées : 7 grilles");
    EXPECT_EQ(desktop.erasing, desktop.questions);
    gUndo->undo();
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 7);
}

TEST_F(GameUndoTest, ACancelledCalculationIsTakenBack) {
    makeManual(7);
    select(upTo(20));
    desktop.cancelProgressAt(2);
    click(gameDesign::computeGame);
    ASSERT_EQ(constructionGame->Count(), 0);
    EXPECT_EQ(lastAnnounced(), "Calcul annulé : il n'y a plus de grilles en construction, "
                               "« Annuler » les rétablit");
    gUndo->undo();
    EXPECT_EQ(constructionGame->Count(), 7);
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 7);
}

TEST_F(GameUndoTest, ACalculationThatAddsNothingSaysWhy) {
    page.design.clickTab(gameDesign::manualTab);
    click(gameDesign::computeGame);
    EXPECT_EQ(lastAnnounced(), "Aucune grille calculée : il faut au moins six numéros");
    select(upTo(7));
    click(gameDesign::computeGame);
    page.design.clickTab(gameDesign::randomTab);
    page.design.txtNrandomGrid = "5";
    click(gameDesign::computeGame);
    EXPECT_EQ(lastAnnounced(), "Aucune grille calculée : « Nombre de grilles » compte aussi celles "
                               "de « Manuel », il y en a déjà 7");
    click(gameDesign::computeGame);
    EXPECT_EQ(lastAnnounced(), "Aucune grille calculée : « Nombre de grilles » compte aussi celles "
                               "d'avant, il y en a déjà 7");
}

TEST_F(GameUndoTest, TheFileOfTheGameFollowsItsCommands) {
    EXPECT_EQ(page.lblFile(), "");
    EXPECT_FALSE(page.hasUnsavedGrids());
    addGrids(5);
    EXPECT_EQ(page.lblFile(), "\u25cf Jeu non enregistré");
    EXPECT_TRUE(page.hasUnsavedGrids());
    save("mardi.lst");
    EXPECT_EQ(desktop.saveQuestions.back().name, "jeu.lst");
    EXPECT_FALSE(page.hasUnsavedGrids());
    load("mardi.lst"); // to what is there
    EXPECT_EQ(page.lblFile(), "\u25cf mardi.lst (modifié)");
    desktop.cancelSave();
    click(gamePage::saveGame);
    EXPECT_EQ(desktop.saveQuestions.back().name, "mardi.lst");
    EXPECT_TRUE(page.hasUnsavedGrids());
    save("vendredi.lst");
    EXPECT_EQ(page.lblFile(), "vendredi.lst");
    desktop.answerYes();
    click(gamePage::clearGame);
    EXPECT_EQ(page.lblFile(), "");
    load("mardi.lst"); // into an empty game
    EXPECT_EQ(page.lblFile(), "mardi.lst");
    EXPECT_EQ(lastAnnounced(), "5 grilles chargées de mardi.lst");
    selected = {1};
    desktop.answerYes();
    click(gamePage::removeGrids);
    EXPECT_EQ(page.lblFile(), "\u25cf mardi.lst (modifié)");
    gUndo->undo();
    EXPECT_EQ(page.lblFile(), "mardi.lst");
}

TEST_F(GameUndoTest, AFileOfASingleGridAddsNothingAndSaysSo) {
    addGrids(1);
    save("un.lst");
    desktop.answerYes();
    click(gamePage::clearGame);
    load("un.lst");
    EXPECT_EQ(currentGame->Count(), 0);
    EXPECT_EQ(lastAnnounced(), "Aucune grille chargée : un.lst en a moins de deux");
    EXPECT_EQ(page.lblFile(), "");
}

TEST_F(GameUndoTest, CountAndPriceFollowTheGame) {
    gGridConfig->price(0.6F);
    gGridConfig->monneyUnit("euro");
    EXPECT_EQ(page.lblCount(), "0 grille, 0 euro");
    makeManual(7);
    EXPECT_EQ(page.design.lblCount(), "7 grilles, 4,20 euros");
    const int before = refreshes;
    click(gameDesign::addGame);
    EXPECT_EQ(page.lblCount(), "7 grilles, 4,20 euros");
    EXPECT_GT(refreshes, before);
    page.design.clickTab(gameDesign::randomTab);
    EXPECT_EQ(page.design.lblCount(), "0 grille, 0 euro");
}

/// Any commands of the page with any undos and redos between them, against plain copies.
TEST_F(GameUndoTest, AnyCommandsTakenBackAndDoneAgainGiveTheGridsOfPlainCopies) {
    std::mt19937 random(49);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    addGrids(30);
    page.refill();
    save("trente.lst");
    rules.tick(4, true);
    struct Both {
        Grids current, construction;
        bool operator==(const Both &) const = default;
    };
    const auto both = [] { return Both{contentsOf(*currentGame), contentsOf(*constructionGame)}; };
    std::vector<Both> states = {both()};
    std::size_t now = 0;
    const auto command = [&] {
        switch (below(8)) {
        case 0:
            desktop.answerOpen(file("trente.lst"));
            if (below(4) == 0)
                desktop.cancelProgressAt(1);
            return click(gamePage::loadGame);
        case 1:
            below(3) == 0 ? desktop.answerYes() : desktop.answerNo();
            return click(gamePage::clearGame);
        case 2:
            selected.clear();
            for (std::int64_t row = 1 + below(20); row <= currentGame->Count();
                 row += 1 + below(20))
                selected.push_back(row);
            desktop.answerYes();
            return click(gamePage::removeGrids); // now and then beyond the shrunken game
        case 3:
            rules.txtEliminator[4] = std::to_string(2 + below(5));
            return click(gamePage::eliminateGrids);
        case 4:
            return makeManual(6 + below(4));
        case 5:
            page.design.clickTab(gameDesign::randomTab);
            page.design.txtNrandomGrid = std::to_string(below(60));
            return click(gameDesign::computeGame);
        case 6:
            desktop.answerYes();
            return click(gameDesign::clearGame);
        default:
            return click(gameDesign::addGame);
        }
    };
    for (int turn = 0; turn < 1500; ++turn) {
        const int what = below(3);
        if (what == 0) {
            const std::string name = gUndo->undoName();
            command();
            if (both() == states[now])
                continue;
            states.resize(++now);
            states.push_back(both());
            ASSERT_FALSE(gUndo->canRedo());
        } else if (what == 1 && gUndo->canUndo()) {
            gUndo->undo();
            --now;
        } else if (what == 2 && gUndo->canRedo()) {
            gUndo->redo();
            ++now;
        }
        ASSERT_EQ(both(), states[now]) << turn;
        ASSERT_EQ(gUndo->canUndo(), now > 0);
        ASSERT_EQ(page.lvwGame.rowCount(), currentGame->Count());
    }
}

TEST_F(GameUndoTest, AButtonWithNothingToActOnSaysWhy) {
    const auto off = [this] {
        Texts reasons;
        for (int button = gamePage::loadGame; button <= gamePage::printGame; ++button)
            reasons.push_back(page.whyOff(button));
        return reasons;
    };
    const std::string empty = "Le jeu est vide.";
    EXPECT_EQ(off(), (Texts{"", empty, empty, "", "", empty}));
    addGrids(3);
    EXPECT_EQ(off(),
              (Texts{"", "", "Aucune grille n'est sélectionnée dans la liste.", "", "", ""}));
    selected = {2};
    EXPECT_EQ(off(), Texts(6));
    EXPECT_EQ(gameDesign::whyOff(gameDesign::clearGame), "Aucune grille n'est en construction.");
    EXPECT_EQ(gameDesign::whyOff(gameDesign::addGame), "") << "its message says why";
    makeManual(7);
    EXPECT_EQ(gameDesign::whyOff(gameDesign::clearGame), "");
}

TEST_F(GameUndoTest, AnEmptyListOfTheGameSaysWhatBringsGrids) {
    EXPECT_EQ(page.lvwGame.whenEmpty().link, "Charger un jeu");
    addGrids(20);
    page.tickUpdateList(false);
    page.refill();
    EXPECT_EQ(page.lvwGame.whenEmpty().sentence, "Les grilles du jeu ne sont pas affichées.");
    page.lvwGame.whenEmpty().follow();
    EXPECT_EQ(page.lvwGame.rowCount(), 20);
    EXPECT_TRUE(page.chkUpdateList());
    desktop.cancelProgressAt(1);
    page.refill();
    EXPECT_EQ(page.lvwGame.whenEmpty().link, "Les afficher");
    desktop.answerYes();
    click(gamePage::clearGame);
    EXPECT_EQ(page.lvwGame.whenEmpty().link, "Charger un jeu");
}

TEST_F(GameUndoTest, AnEmptyListOfNewGridsLeadsFromStepToStep) {
    gameDesign &design = page.design;
    const auto follow = [&] {
        const auto link = design.lvwGameDef.whenEmpty();
        link.follow();
        return link.link;
    };
    design.clickTab(gameDesign::manualTab);
    desktop.answerNumbers(NumberScript().click(upTo(7)).ok());
    EXPECT_EQ(follow(), "Choisir des numéros");
    EXPECT_EQ(follow(), "Calculer");
    EXPECT_EQ(design.lvwGameDef.rowCount(), 7);
    design.clickTab(gameDesign::randomTab);
    EXPECT_EQ(design.lvwGameDef.whenEmpty().sentence,
              "Les grilles en construction viennent de «\u00a0Manuel\u00a0».");
    EXPECT_EQ(follow(), "Les revoir");
    EXPECT_EQ(design.currentTab(), gameDesign::manualTab);
    EXPECT_EQ(design.lvwGameDef.rowCount(), 7);
    design.clickTab(gameDesign::createTab);
    EXPECT_EQ(design.lvwGameDef.whenEmpty().sentence,
              "Fixez les trois nombres, puis cliquez sur Calculer.");
}

TEST_F(GameUndoTest, ACountThatIsNoNumberIsTraceableToItsBox) {
    page.design.clickTab(gameDesign::randomTab);
    select(upTo(10));
    page.design.txtNrandomGrid = "dix";
    click(gameDesign::computeGame);
    EXPECT_EQ(desktop.messages.back(),
              (ShownBox{"Incompatibilité de type\r\n« Nombre de grilles » attend un nombre entier "
                        "de 0 à 32 767 ; il y avait « dix ».",
                        Icon::critical, "Boulix Erreur système N° 13"}));
    page.design.txtNrandomGrid = "  ";
    click(gameDesign::computeGame);
    EXPECT_EQ(desktop.messages.back().title, "boulix: Erreur N° 3102");
    EXPECT_EQ(desktop.focusedFields, (Texts{"txtNrandomGrid", "txtNrandomGrid"}));
}

TEST_F(GameUndoTest, AnEliminationThatARuleRefusesLeadsToItsBox) {
    addGrids(3);
    rules.tick(2, true);
    rules.txtEliminator[2] = "7";
    click(gamePage::eliminateGrids);
    EXPECT_EQ(desktop.messages.back().title, "boulix: Erreur N° 2903");
    EXPECT_EQ(desktop.focusedFields, (Texts{"txtEliminator_2"}));
    EXPECT_TRUE(desktop.announcements.empty());
}

} // namespace
} // namespace boulix
