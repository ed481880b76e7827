// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/gameDesign.h"

#include "core/frenchNumbers.h"
#include "core/globals.h"
#include "core/numbers.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "games/modGame.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "sill/typedField.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "workbench/countAndPrice.h"
#include "workbench/gridList.h"

#include <memory>
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

std::string captionOf(int tab) {
    return gameDesign::tabGameDesign.at(static_cast<std::size_t>(tab)).caption;
}

const TypedField randomCountField = {"txtNrandomGrid", "Nombre de grilles",
                                     "un nombre entier de 0 à 32 767"};

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

gameDesign::gameDesign(std::function<void(const game &)> addGrids)
    : addGrids_(std::move(addGrids)) {
    systems.computed = [this](const game &rows) { list(rows); };
    systems.listsChanged = [this] { appendGameTypes(); };
}

void gameDesign::init() {
    lvwGameDef.columns(gridList::columns());
    grdGameDef.editable(false);
    systems.init();
    currentTab_ = reducedTab;
    fillGameTypes();
    tellEmpty();
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
    if (index != selectorsTab)
        listMade();
    refresh();
}

/// The grids under construction are listed on the tab on which they were made.
void gameDesign::listMade() {
    if (lastGameType_ == currentTab_)
        list(*constructionGame);
    else
        clearList();
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

void gameDesign::openSystem(const std::string &fullName) {
    clickTab(createTab);
    runCommand([&] { systems.open(fullName); });
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
    addGrids_(made);
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

/// Runs `command`, which may change the grids under construction, so that it can be taken back.
void gameDesign::change(const char *name, GameStep step, const GameCommand::Command &command) {
    const auto method = std::make_shared<int>(lastGameType_);
    GameCommand recorded(*constructionGame, name, std::move(step), [this, method] {
        std::swap(lastGameType_, *method);
        if (currentTab_ < selectorsTab)
            listMade();
        refresh();
    });
    recorded.run(command);
}

void gameDesign::clear() {
    if (!desktop().askToErase("Etes-vous sûr de vouloir effacer le jeu sans l'ajouter?",
                              Icon::question, "Effacement du jeu en construction"))
        return;
    const std::int32_t before = constructionGame->Count();
    change("Effacer", {}, [](GameStep &step) { step.empty(*constructionGame); });
    clearList();
    desktop().announce("Grilles en construction effacées : " + gridCount(before));
}

void gameDesign::compute() {
    const std::int32_t position = gameType_ + 1;
    if (position < 1)
        return;
    const std::int32_t before = constructionGame->Count();
    const int methodBefore = lastGameType_;
    bool computed = false;
    change("Calculer", GameStep(*constructionGame), [&](GameStep &) {
        computed = computeByTab(position);
        if (computed)
            lastGameType_ = currentTab_;
    });
    if (computed) {
        list(*constructionGame);
        announceComputed(before, methodBefore);
    } else if (currentTab_ == manualTab) {
        desktop().announce(before == 0 ? "Calcul annulé"
                                       : "Calcul annulé : il n'y a plus de grilles en "
                                         "construction, « Annuler » les rétablit");
    }
}

/// A calculation adds to what is there, whichever method made it, and does not always add: both
/// can be seen in no other way.
void gameDesign::announceComputed(std::int32_t before, int methodBefore) const {
    const std::int32_t added = constructionGame->Count() - before;
    std::string earlier;
    if (before > 0)
        earlier = methodBefore == currentTab_ ? "celles d'avant"
                                              : "celles de « " + captionOf(methodBefore) + " »";
    if (added == 0)
        return desktop().announce("Aucune grille calculée" + whyNothingAdded(earlier));
    std::string text = gridCount(added) + (added < 2 ? " calculée" : " calculées");
    if (before > 0)
        text += ", avec " + earlier + " : " + gridCount(constructionGame->Count());
    desktop().announce(text);
}

std::string gameDesign::whyNothingAdded(const std::string &earlier) const {
    if (currentTab_ == manualTab && gameSelector_.nSelectedNbr() < gameComb::size)
        return " : il faut au moins six numéros";
    if (currentTab_ == randomTab && !earlier.empty())
        return " : « Nombre de grilles » compte aussi " + earlier + ", il y en a déjà " +
               groupedNumber(static_cast<std::uint64_t>(constructionGame->Count()));
    return {};
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
        const std::int16_t count = randomCount();
        if (made.ComputeRandomGame(count, gameSelector_))
            return true;
        if (count < 0)
            desktop().focusField(randomCountField.name);
        return false;
    }
    default:
        return false;
    }
}

/// The count that is typed, -1 for none.
std::int16_t gameDesign::randomCount() const {
    if (trimmed(txtNrandomGrid).empty())
        return -1;
    return readField(randomCountField, txtNrandomGrid,
                     [](const std::string &typed) { return toInt16(wholeNumberText(typed)); });
}

std::string gameDesign::lblCount() const {
    return countAndPrice(listed_.Count());
}

std::string gameDesign::whyOff(int button) {
    if (button == clearGame && constructionGame->Count() == 0)
        return "Aucune grille n'est en construction.";
    return {};
}

/// What stands in the list while it shows no grids: the next thing to do.
void gameDesign::tellEmpty() {
    const bool madeElsewhere = constructionGame->Count() > 0 && lastGameType_ != currentTab_;
    if (currentTab_ == createTab)
        lvwGameDef.whenEmpty({"Fixez les trois nombres, puis cliquez sur Calculer."});
    else if (madeElsewhere)
        lvwGameDef.whenEmpty({"Les grilles en construction viennent de «\u00a0" +
                                  captionOf(lastGameType_) + "\u00a0».",
                              "Les revoir", [this] { clickTab(lastGameType_); }});
    else if (gameSelector_.nSelectedNbr() == 0)
        lvwGameDef.whenEmpty({"Choisissez des numéros, cliquez sur Calculer, puis sur Ajouter.",
                              "Choisir des numéros", [this] { clickButton(selectNumbers); }});
    else
        lvwGameDef.whenEmpty({"Les numéros sont choisis : cliquez sur Calculer, puis sur Ajouter.",
                              "Calculer", [this] { clickButton(computeGame); }});
}

void gameDesign::refresh() {
    if (lvwGameDef.rowCount() == 0)
        tellEmpty();
    if (view_)
        view_->refresh();
}

} // namespace boulix
