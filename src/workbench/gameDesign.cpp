// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/gameDesign.h"

#include "core/globals.h"
#include "core/numbers.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "games/modGame.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "workbench/gridList.h"

#include <utility>

namespace boulix {

namespace {

/// Numbers in the order in which they were put together, each of them once.
class NumberList {
  public:
    /// Adds a number that is not there yet.
    void addNew(std::int16_t n) {
        if (!flagged_[place(n)])
            add(n);
    }
    /// Adds a number.
    void add(std::int16_t n) {
        flagged_[place(n)] = true;
        numbers_.push_back(n);
    }
    /// Hands the numbers to the selector, to be marked when its dialog opens.
    void handTo(selector &sel) const {
        sel.setPrevSelect(static_cast<std::int16_t>(numbers_.size()), numbers_);
    }

  private:
    static std::size_t place(std::int16_t n) {
        return static_cast<std::size_t>(checkedIndex(n, 1, 49));
    }

    std::array<bool, 50> flagged_{};
    std::vector<std::int16_t> numbers_;
};

const modGame::GameList &systemsOf(int tab) {
    return tab == gameDesign::reducedTab ? modGame::reducedGames : modGame::fixedGames;
}

bool isSystemTab(int tab) {
    return tab == gameDesign::reducedTab || tab == gameDesign::fixedTab;
}

} // namespace

const std::array<ControlText, 6> gameDesign::tabGameDesign = {{
    {"Réduits", "Création de grilles à partir de système de jeux réduits"},
    {"Pos. fixes", "Création de grilles à partir d'un système à positions fixes"},
    {"Manuel", "Création de grilles manuellement"},
    {"Aléatoire", "Création de grilles au contenu aléatoire"},
    {"Sélecteurs", "Permet de définir une méthode de sélection de numéros pour les jeux"},
    {"Créer", "Créer des systèmes de jeux à partir d'algorithles ittératifs"},
}};

const std::array<ControlText, 4> gameDesign::tbarGameDef = {{
    {"Ajouter", "Ajouter le jeu composé au jeu courant"},
    {"Sélection", "Sélectionner les numéros"},
    {"Effacer", "Effacer le jeu composé"},
    {"Calculer", "Effectue le calcul du jeu sélectionné"},
}};

const std::array<const char *, 3> gameDesign::chkSelectTexts = {
    "sélectionnés lors de l'analyse statistique",
    "des triplets non sortis",
    "issus des pronostiques",
};

gameDesign::gameDesign(std::function<void()> gameGrew) : gameGrew_(std::move(gameGrew)) {
    systems.computed = [this](const game &rows) { list(rows); };
    systems.listsChanged = [this] { appendGameTypes(); };
}

void gameDesign::init() {
    lvwGameDef.columns(gridList::columns());
    grdGameDef.editable(false);
    systems.init();
    currentTab_ = reducedTab;
    fillGameTypes();
}

void gameDesign::view(gameDesignView *view) {
    view_ = view;
    systems.view(view);
}

void gameDesign::clickTab(int index) {
    if (index == currentTab_)
        return;
    currentTab_ = index;
    if (isSystemTab(index))
        fillGameTypes();
    if (index != selectorsTab) {
        if (lastGameType_ == index)
            list(*constructionGame);
        else
            clearList();
    }
    refresh();
}

void gameDesign::fillGameTypes() {
    cmbGameType_.clear();
    appendLabels(systemsOf(currentTab_));
    gameType_ = cmbGameType_.empty() ? -1 : 0;
}

void gameDesign::appendGameTypes() {
    appendLabels(modGame::reducedGames);
    appendLabels(modGame::fixedGames);
}

void gameDesign::appendLabels(const modGame::GameList &list) {
    for (std::size_t i = 1; i < list.size(); ++i)
        cmbGameType_.push_back(list[i].label());
}

void gameDesign::list(const game &grids) {
    listed_ = grids;
    lvwGameDef.rows(listed_.Count(), [this](std::int64_t row, int column) {
        return gridList::cell(listed_.Item(row + 1), row, column);
    });
}

void gameDesign::clearList() {
    lvwGameDef.clear();
    listed_.clear();
}

void gameDesign::clickButton(int index) {
    runCommand([&] { runButton(index); });
    refresh();
}

void gameDesign::clickCreateButton(int index) {
    runCommand([&] { systems.runButton(index); });
    refresh();
}

void gameDesign::runButton(int index) {
    switch (index) {
    case addGame:
        return add();
    case selectNumbers:
        return select();
    case clearGame:
        return clear();
    case computeGame:
        return compute();
    default:
        return;
    }
}

void gameDesign::add() {
    const game &made = *constructionGame;
    if (made.Count() == 0 || lastGameType_ != currentTab_) {
        reportNumbered(701, "Impossible d'ajouter le jeu: aucun jeu de ce type n'a été défini!!!");
        return;
    }
    currentGame->reserve(static_cast<std::size_t>(made.Count()));
    for (std::int32_t i = 1; i <= made.Count(); ++i)
        currentGame->Add(made.shared(i));
    gameGrew_();
}

void gameDesign::select() {
    if (isSystemTab(currentTab_)) {
        const std::int32_t position = gameType_ + 1;
        if (position < 1)
            return;
        prepareSelection();
        const auto i = checkedIndex(position, 1, modGame::count(systemsOf(currentTab_)));
        const std::int16_t n = systemsOf(currentTab_)[static_cast<std::size_t>(i)].nSelect();
        gameSelector_.setSelect(n, n);
    } else {
        prepareSelection();
        gameSelector_.setSelect(49, 6);
    }
    gameSelector_.selectNbr();
    showSelection();
}

void gameDesign::showSelection() {
    grdGameDef.clearSelection();
    for (std::int16_t i = 1; i <= gameSelector_.nSelectedNbr(); ++i)
        grdGameDef.selectNumber(gameSelector_.selectedNbr(i));
}

/// Marks numbers for the dialog of the selection, from the sources that are ticked.
void gameDesign::prepareSelection() {
    NumberList list;
    if (chkSelect[statisticNumbers]) {
        if (markedInStatistics)
            for (const std::int16_t n : markedInStatistics())
                list.add(n);
        list.handTo(gameSelector_);
    }
    if (chkSelect[missingTriplets]) {
        modStats::ComputeStat(11, 1, 1, gDbCombs->Count(), gameSelector_);
        // Every triplet counts, drawn or not: this source ends with all the numbers.
        for (const modStats::Triplet &triplet : modStats::tripletTable)
            for (const std::int16_t n : triplet.num)
                list.addNew(n);
        list.handTo(gameSelector_);
    }
    if (chkSelect[forecastNumbers]) {
        gPronostics->clearSelection();
        if (tickedInForecasts)
            for (const std::int16_t n : tickedInForecasts())
                gPronostics->selNbr(n);
        for (std::int16_t i = 1; i <= gPronostics->nSelected(); ++i)
            list.addNew(gPronostics->Selected(i));
        list.handTo(gameSelector_);
    }
}

void gameDesign::clear() {
    if (!desktop().askYesNo("Etes-vous sûr de vouloir effacer le jeu sans l'ajouter?",
                            Icon::question, "Effacement du jeu en construction"))
        return;
    constructionGame->clear();
    clearList();
}

void gameDesign::compute() {
    const std::int32_t position = gameType_ + 1;
    if (position < 1 || !computeByTab(position))
        return;
    lastGameType_ = currentTab_;
    list(*constructionGame);
}

bool gameDesign::computeByTab(std::int32_t position) {
    game &made = *constructionGame;
    switch (currentTab_) {
    case reducedTab:
    case fixedTab: {
        const auto i = checkedIndex(position, 1, modGame::count(systemsOf(currentTab_)));
        return made.ComputeDefinedGame(systemsOf(currentTab_)[static_cast<std::size_t>(i)],
                                       gameSelector_);
    }
    case manualTab:
        return made.ComputeManualGame(gameSelector_);
    case randomTab: {
        const bool empty = trimmed(txtNrandomGrid).empty();
        const std::int16_t count =
            empty ? std::int16_t{-1} : toInt16(wholeNumberText(txtNrandomGrid));
        return made.ComputeRandomGame(count, gameSelector_);
    }
    default:
        return false;
    }
}

void gameDesign::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
