// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/gamePage.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/text.h"
#include "games/game.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "sill/reports.h"
#include "workbench/eliminatorPage.h"
#include "workbench/gridList.h"

namespace boulix {

namespace {

std::string cellText(std::int64_t row, int column) {
    // The list is asked for its rows while a command is under way, too: the game can be shorter
    // then than it was when the list was filled.
    if (row >= currentGame->Count())
        return {};
    return gridList::cell(currentGame->Item(row + 1), row, column);
}

/// The walk over the game that the progress window follows. The list needs no copy of the grids,
/// so all it does is to let the user cancel. False when he does.
bool walkThroughGame() {
    const std::int32_t count = currentGame->Count();
    ProgressShown progress("Mise à jour de la liste des combinaisons", "Veuillez patienter...");
    progress->ProgressBar.range(1, modMaths::maxOf(count, 2));
    for (std::int32_t counter = 10; counter <= count; counter += 10) {
        desktop().runEvents();
        if (progress->cancelled())
            return false;
        progress->ProgressBar.value = counter;
    }
    return true;
}

} // namespace

const std::array<ControlText, 6> gamePage::tbarGame = {{
    {"Charger", "Charger un jeu existant"},
    {"Effacer", "Effacer toutes les combinaisons du jeu en cours"},
    {"Supprimer", "Supprimer la combinaison sélectionner"},
    {"Eliminer", "Utiliser les éliminateur pour éliminer des combinaisons"},
    {"Sauver", "Sauvegarder le jeu"},
    {"Imprimer", "Imprimer le jeu courant"},
}};

const std::array<const char *, 3> gamePage::printMenu = {
    "Imprimer la liste des combinaisons",
    "Imprimer les grilles de la française des jeux",
    "Imprimer les grilles à partir d'un canevas",
};

const std::array<const char *, 4> gamePage::TabGame = {"Vérifications", "Performances", "Rapports",
                                                       "Jeux"};

gamePage::gamePage(eliminatorPage &rules) : design([this] { refill(); }), rules_(rules) {}

void gamePage::init() {
    lvwGame.columns(gridList::columns());
    chkUpdateList_ = true;
    design.init();
}

void gamePage::view(gameView *view) {
    view_ = view;
    design.view(view);
}

void gamePage::tickUpdateList(bool on) {
    chkUpdateList_ = on;
    if (on)
        refill();
}

void gamePage::refill() {
    lvwGame.clear();
    if (currentGame->Count() < 1 || !chkUpdateList_)
        return;
    if (!walkThroughGame())
        return;
    lvwGame.rows(currentGame->Count(), cellText);
    if (gameShown)
        gameShown();
}

void gamePage::clickButton(int index) {
    if (!runCommand([&] { runButton(index); }))
        runCommand([this] { refill(); });
}

void gamePage::runButton(int index) {
    switch (index) {
    case loadGame:
        currentGame->load();
        return refill();
    case clearGame:
        return clear();
    case removeGrids:
        return removeSelected();
    case eliminateGrids:
        return eliminate();
    case saveGame:
        return currentGame->save();
    default:
        return;
    }
}

void gamePage::clear() {
    if (!desktop().askYesNo("Etes-vous sûr de vouloir effacer le jeu?", Icon::question,
                            "Effacement du jeu courant"))
        return;
    currentGame->clear();
    refill();
}

void gamePage::removeSelected() {
    const std::string question =
        std::string("Attention!!! Si les combinaisons que vous décidez de supprimer font partie "
                    "d'un jeu réduit, vous perdrez la garantie de gain de ce jeu.") +
        crlf + "Souhaitez-vous quand même effacer la combinaison sélectionnée?";
    if (!desktop().askYesNo(question, Icon::question, gAppInfo->fullName()))
        return;
    // Row after row, without regard to those removed before: of several selected rows the later
    // ones have moved by the time they are removed.
    if (view_)
        currentGame->Remove(view_->selectedRows());
    refill();
}

void gamePage::eliminate() {
    rules_.toRules();
    currentGame->EliminComb();
    refill();
}

void gamePage::clickPrint(int entry) {
    if (currentGame->Count() < 1)
        return;
    runCommand([&] {
        if (entry == printList)
            currentGame->PrintGameList();
        else if (entry == printSlips)
            currentGame->PrintGameGrid();
        else if (entry == printCanvas)
            currentGame->PrintGameGridCanvas();
    });
}

} // namespace boulix
