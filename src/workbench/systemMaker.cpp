// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/systemMaker.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/numbers.h"
#include "core/text.h"
#include "games/game.h"
#include "games/modGame.h"
#include "printing/gridConfig.h"
#include "sill/desktop.h"
#include "workbench/countAndPrice.h"
#include "workbench/frmGameList.h"
#include "workbench/frmOptimiser.h"

#include <algorithm>

namespace boulix {

std::string systemCost(std::int32_t grids) {
    const double amount = double{gGridConfig->price()} * grids;
    const auto cost = static_cast<float>(amount);
    std::string text = plainAmount(cost) + " " + gGridConfig->monneyUnit();
    if (cost != 0)
        text += "s";
    return text;
}

void numberBox::init(std::int32_t first, std::int32_t last, std::int32_t value) {
    upDownControl.range(first, last);
    upDownControl.set(value);
    text = std::to_string(upDownControl.value());
}

void numberBox::confirm() {
    const double typed = numericPrefix(text);
    upDownControl.set(toInt32(std::clamp<double>(typed, upDownControl.min(), upDownControl.max())));
    text = std::to_string(upDownControl.value());
}

systemMaker::systemMaker() {
    nFixed.upDownControl.changed = [this] {
        const std::int32_t value = nFixed.upDownControl.value();
        nFixed.text = std::to_string(value);
        if (value >= nWin.upDownControl.value())
            nWin.upDownControl.set(value + 1);
        refresh();
    };
    nWin.upDownControl.changed = [this] {
        const std::int32_t value = nWin.upDownControl.value();
        nWin.text = std::to_string(value);
        if (nFixed.upDownControl.value() >= value)
            nFixed.upDownControl.set(value - 1);
        refresh();
    };
    nChoosen.upDownControl.changed = [this] {
        nChoosen.text = std::to_string(nChoosen.upDownControl.value());
        refresh();
    };
}

void systemMaker::init() {
    nWin.init(1, 6, 1);
    nFixed.init(0, 5, 0);
    nChoosen.init(7, 49, 7);
}

void systemMaker::runButton(int index) {
    switch (index) {
    case addSystem:
        return add();
    case listSystems:
        return manage();
    case computeSystem:
        return compute();
    case optimiseSystem:
        return optimise();
    default:
        return;
    }
}

void systemMaker::confirmValues() {
    nWin.confirm();
    nFixed.confirm();
    nChoosen.confirm();
}

void systemMaker::compute() {
    confirmValues();
    createNWin_ = narrow16(nWin.upDownControl.value());
    createNFixed_ = narrow16(nFixed.upDownControl.value());
    createNChosen_ = narrow16(nChoosen.upDownControl.value());
    newGameDef_.reset(); // half a system guarantees nothing
    const auto made = std::make_shared<gameDef>();
    if (!made->compute(createNFixed_, createNWin_, createNChosen_))
        return desktop().announce("Calcul annulé");
    newGameDef_ = made;
    showSystem();
    desktop().announce("Système calculé : " + countAndPrice(made->nComb()));
}

void systemMaker::showSystem() {
    game rows;
    for (std::int32_t i = 1; i <= newGameDef_->nComb(); ++i)
        rows.Add(newGameDef_->sharedRow(i));
    computed(rows);
    lblnGameDefComb = std::to_string(newGameDef_->nComb()) + " combinaisons";
    lblCost = systemCost(newGameDef_->nComb());
}

/// The window opens on a calculation of its own: what was computed before stays until a smaller
/// system takes its place.
void systemMaker::optimise() {
    if (!view_)
        return;
    confirmValues();
    gameDef told;
    if (!told.compute(narrow16(nFixed.upDownControl.value()), narrow16(nWin.upDownControl.value()),
                      narrow16(nChoosen.upDownControl.value())))
        return;
    frmOptimiser window(told);
    window.used = [this](const Guarantee &guarantee, const std::vector<gameComb> &rows) {
        take(guarantee, rows);
    };
    view_->runOptimiser(window);
}

void systemMaker::take(const Guarantee &guarantee, const std::vector<gameComb> &rows) {
    const auto made = std::make_shared<gameDef>();
    made->nSelect(guarantee.nSelect);
    made->nWin(guarantee.nWin);
    made->nFixed(guarantee.nFixed);
    made->nCond(guarantee.nCond);
    for (const gameComb &row : rows)
        made->addGameComb(GridRef(row));
    createNWin_ = guarantee.nWin;
    createNFixed_ = guarantee.nFixed;
    createNChosen_ = guarantee.nSelect;
    newGameDef_ = made;
    showSystem();
}

void systemMaker::open(const std::string &fullName) {
    const auto read = std::make_shared<gameDef>();
    if (!read->loadFile(fullName))
        return;
    createNWin_ = read->nWin();
    createNFixed_ = read->nFixed();
    createNChosen_ = read->nSelect();
    newGameDef_ = read;
    showSystem();
    desktop().announce("Système « " + read->label() +
                       " » ouvert : « Ajouter » le met parmi les jeux");
}

void systemMaker::add() {
    modGame::GameList &list = createNFixed_ != 0 ? modGame::fixedGames : modGame::reducedGames;
    const std::int16_t nReduced = narrow16(modGame::nReducedGames() - modGame::nPredefReduced);
    const std::int16_t nFixedGame = narrow16(modGame::nFixedGames() - modGame::nPredefFixed);
    if (!newGameDef_)
        fail(Failure::objectNotSet);
    if (!modGame::addUserGame(*newGameDef_, list))
        return;
    modGame::saveNewGame(list, nReduced, nFixedGame);
    listsChanged();
    desktop().announce("Système ajouté : " + list.back().label());
}

void systemMaker::refresh() const {
    if (view_)
        view_->refresh();
}

void systemMaker::manage() {
    if (!view_)
        return;
    frmGameList window;
    view_->runGameList(window);
    if (window.changedMark())
        listsChanged();
}

} // namespace boulix
