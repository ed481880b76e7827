// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/gamePage.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/text.h"
#include "files/xFile.h"
#include "games/game.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "sill/reports.h"
#include "workbench/countAndPrice.h"
#include "workbench/eliminatorPage.h"
#include "workbench/gridList.h"

#include <memory>
#include <utility>

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

/// "2 grilles supprimées": `done` is the participle for one of them.
std::string done(std::int32_t grids, const std::string &participle) {
    return gridCount(grids) + " " + participle + (grids < 2 ? "" : "s");
}

std::string nameOf(const std::string &fullName) {
    xFile file;
    file.fullName(fullName);
    return file.name();
}

/// What the game holds behind a command that has changed its count.
std::string nowText() {
    return "le jeu a " + gridCount(currentGame->Count());
}

/// What was taken out of a game that had `before` grids.
std::string goneText(std::int32_t before, const std::string &participle) {
    const std::int32_t gone = before - currentGame->Count();
    if (gone == 0)
        return "Aucune grille " + participle;
    return done(gone, participle) + " : " + nowText();
}

std::string addedText(std::int32_t added) {
    return done(added, "ajoutée") + " : " + nowText();
}

std::string loadText(const GameLoad &loaded, std::int32_t before) {
    const std::string name = nameOf(loaded.file);
    if (loaded.cancelled)
        return before == 0 ? "Chargement annulé"
                           : "Chargement annulé : le jeu est vide, « Annuler » le rétablit";
    if (loaded.added == 0)
        return "Aucune grille chargée : " + name + " en a moins de deux";
    const std::string text = done(loaded.added, "chargée") + " de " + name;
    return before == 0 ? text : text + " : " + nowText();
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

gamePage::gamePage(eliminatorPage &rules)
    : design([this](const game &made) { add(made); }), rules_(rules) {}

void gamePage::init() {
    lvwGame.columns(gridList::columns());
    chkUpdateList_ = true;
    tellEmpty();
    design.init();
}

void gamePage::view(gameView *view) {
    view_ = view;
    design.view(view);
}

void gamePage::tickUpdateList(bool on) {
    chkUpdateList_ = on;
    tellEmpty();
    if (on)
        refill();
}

void gamePage::refill() {
    lvwGame.clear();
    tellEmpty();
    refresh();
    if (currentGame->Count() < 1 || !chkUpdateList_)
        return;
    if (walkThroughGame())
        showGrids();
}

/// The list needs no walk to show the grids: this is what an undo does, whatever their number.
void gamePage::showGrids() {
    if (currentGame->Count() < 1 || !chkUpdateList_)
        lvwGame.clear();
    else
        lvwGame.rows(currentGame->Count(), cellText);
    tellEmpty();
    refresh();
    if (gameShown && lvwGame.rowCount() > 0)
        gameShown();
}

/// What stands in the list while it shows no grids, whose reason is not always that there are none.
void gamePage::tellEmpty() {
    if (currentGame->Count() < 1)
        lvwGame.whenEmpty(
            {"Le jeu est vide. Choisissez des numéros, cliquez sur Calculer, puis sur "
             "Ajouter.",
             "Charger un jeu", [this] { clickButton(loadGame); }});
    else
        lvwGame.whenEmpty({"Les grilles du jeu ne sont pas affichées.", "Les afficher",
                           [this] { tickUpdateList(true); }});
}

std::string gamePage::lblCount() const {
    return countAndPrice(currentGame->Count());
}

std::string gamePage::lblFile() const {
    return documentText(document, currentGame->Count());
}

bool gamePage::hasUnsavedGrids() const {
    return currentGame->Count() > 0 && !document.isSaved();
}

std::string gamePage::whyOff(int button) const {
    const bool needsGrids = button == clearGame || button == removeGrids || button == printGame;
    if (needsGrids && currentGame->Count() < 1)
        return "Le jeu est vide.";
    if (button == removeGrids && view_ && !view_->anyRowSelected())
        return "Aucune grille n'est sélectionnée dans la liste.";
    return {};
}

void gamePage::playFrom(gameDesign::Source source) {
    design.chkSelect[source] = true;
    design.clickTab(gameDesign::selectorsTab);
    if (!view_)
        return;
    view_->showSide(static_cast<int>(TabGame.size()) - 1);
    view_->refresh();
}

void gamePage::clickButton(int index) {
    if (!runCommand([&] { runButton(index); }))
        runCommand([this] { refill(); });
    refresh();
}

void gamePage::runButton(int index) {
    switch (index) {
    case loadGame:
        return load();
    case clearGame:
        return clear();
    case removeGrids:
        return removeSelected();
    case eliminateGrids:
        return eliminate();
    case saveGame:
        return save();
    default:
        return;
    }
}

/// Runs `command`, which may change the game, as the button `name`, so that it can be taken back.
void gamePage::change(const char *name, GameStep step, const GameCommand::Command &command) {
    const auto noted = std::make_shared<gameDocument::Step>(document.step());
    GameCommand recorded(*currentGame, name, std::move(step), [this, noted] {
        document.exchange(*noted);
        showGrids();
    });
    recorded.run(command, [&] { document.close(*noted); });
}

void gamePage::load() {
    const std::int32_t before = currentGame->Count();
    GameLoad loaded;
    change("Charger", GameStep(*currentGame), [&](GameStep &) {
        loaded = currentGame->load();
        if (loaded.cancelled)
            document.emptied();
        else if (loaded.added > 0 && before == 0)
            document.loaded(loaded.file);
    });
    refill();
    if (loaded.file.empty())
        return;
    if (fileUsed)
        fileUsed(loaded.file);
    desktop().announce(loadText(loaded, before));
}

void gamePage::clear() {
    if (!desktop().askToErase("Etes-vous sûr de vouloir effacer le jeu?", Icon::question,
                              "Effacement du jeu courant"))
        return;
    const std::int32_t before = currentGame->Count();
    change("Effacer", {}, [this](GameStep &step) {
        step.empty(*currentGame);
        document.emptied();
    });
    refill();
    desktop().announce("Jeu effacé : " + gridCount(before));
}

void gamePage::removeSelected() {
    const std::string question =
        std::string("Attention!!! Si les combinaisons que vous décidez de supprimer font partie "
                    "d'un jeu réduit, vous perdrez la garantie de gain de ce jeu.") +
        crlf + "Souhaitez-vous quand même effacer la combinaison sélectionnée?";
    if (!desktop().askToErase(question, Icon::question, gAppInfo->fullName()))
        return;
    // Row after row, without regard to those removed before: of several selected rows the later
    // ones have moved by the time they are removed.
    const std::int32_t before = currentGame->Count();
    if (view_)
        change("Supprimer", GameStep(*currentGame),
               [this](GameStep &) { currentGame->Remove(view_->selectedRows()); });
    refill();
    desktop().announce(goneText(before, "supprimée"));
}

void gamePage::eliminate() {
    rules_.toRules();
    const std::int32_t before = currentGame->Count();
    bool judged = false;
    change("Eliminer", GameStep(*currentGame),
           [&](GameStep &) { judged = currentGame->EliminComb(); });
    refill();
    if (judged)
        desktop().announce(goneText(before, "éliminée"));
    else
        rules_.focusRefused();
}

void gamePage::save() {
    const std::string file =
        currentGame->save(document.file().empty() ? "jeu.lst" : document.name());
    if (file.empty())
        return;
    document.saved(file);
    if (fileUsed)
        fileUsed(file);
    desktop().announce("Jeu enregistré dans " + document.name() + " : " +
                       gridCount(currentGame->Count()));
}

void gamePage::add(const game &made) {
    change("Ajouter", GameStep::adding(*currentGame), [&](GameStep &) {
        currentGame->reserve(static_cast<std::size_t>(made.Count()));
        for (std::int32_t i = 1; i <= made.Count(); ++i)
            currentGame->Add(made.shared(i));
    });
    refill();
    desktop().announce(addedText(made.Count()));
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

void gamePage::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
