// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/frmGameList.h"

#include "files/xFile.h"
#include "games/modGame.h"
#include "sill/desktop.h"
#include "sill/reports.h"

namespace boulix {

namespace {

std::int64_t userReducedCount() {
    return modGame::nReducedGames() - modGame::nPredefReduced;
}

/// Where the system of a row stands: the reduced ones come first.
struct Entry {
    modGame::GameList &list;
    std::int32_t position;

    gameDef &definition() const { return list[static_cast<std::size_t>(position)]; }
};

Entry entryOf(std::int64_t row) {
    const std::int64_t reduced = userReducedCount();
    if (row <= reduced)
        return {modGame::reducedGames, static_cast<std::int32_t>(modGame::nPredefReduced + row)};
    return {modGame::fixedGames, static_cast<std::int32_t>(modGame::nPredefFixed + row - reduced)};
}

std::string cellText(std::int64_t row, int column) {
    const gameDef &def = entryOf(row + 1).definition();
    if (column == 0)
        return def.label();
    return def.file() ? def.file()->name() : std::string();
}

} // namespace

const std::array<frmGameList::ButtonText, 6> frmGameList::tbar = {{
    {"Supprimer", "Supprimer le jeu de la liste des jeux créés"},
    {"Renommer", "Renommer le jeu sélectionné"},
    {"Exporter", "Exporter un je dans une fichier texte"},
    {"Imprimer", "Imprimer le jeu"},
    {"Voir", "Visualiser le jeu"},
    {"Quitter", "Fermer cette boite de dialogue"},
}};

frmGameList::frmGameList() {
    lvwGame.columns({{"Descriptif du jeu", std::string(50, 'n'), false},
                     {"Fichier", "rgame-00000.gam", false}});
    lvwGame.whenEmpty({"Vous n'avez pas encore créé de système : l'onglet « Créer » en calcule."});
    fill();
}

void frmGameList::fill() {
    selected_ = 0;
    const std::int64_t fixed = modGame::nFixedGames() - modGame::nPredefFixed;
    lvwGame.rows(userReducedCount() + fixed, cellText);
}

void frmGameList::clickRow(std::int64_t row) {
    if (row < 1 || row > lvwGame.rowCount())
        return;
    selected_ = row;
    const gameDef &def = entryOf(row).definition();
    lblnGrid = std::to_string(def.nComb());
    lblnWin = std::to_string(def.nWin());
    lblnFixed = std::to_string(def.nFixed());
    lblnSelected = std::to_string(def.nSelect());
    if (view_)
        view_->refresh();
}

std::string frmGameList::whyOff(int index) const {
    return index != quit && selected_ == 0 ? "Cliquez d'abord sur un jeu de la liste." : "";
}

void frmGameList::clickButton(int index) {
    if (index == quit)
        hidden_ = true;
    else if (selected_ != 0)
        runCommand([&] { runButton(index); });
    if (view_)
        view_->refresh();
}

void frmGameList::runButton(int index) {
    gameDef &def = entryOf(selected_).definition();
    switch (index) {
    case removeGame:
        return removeSelected();
    case renameGame:
        changed_ = true;
        def.rename();
        desktop().announce("Système renommé : " + def.label());
        return fill();
    case exportGame:
        if (def.exportText())
            desktop().announce("Système exporté : " + def.label());
        return;
    case printGame:
        return def.printDef();
    case displayGame: {
        frmDisplayGame window(def);
        if (view_)
            view_->runDisplayGame(window);
        return;
    }
    default:
        return;
    }
}

void frmGameList::removeSelected() {
    const Entry entry = entryOf(selected_);
    const std::string label = entry.definition().label();
    changed_ = true;
    modGame::removeUserGame(entry.position, entry.list);
    fill();
    desktop().announce("Système supprimé : " + label);
}

} // namespace boulix
