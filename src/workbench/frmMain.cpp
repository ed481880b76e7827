// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/frmMain.h"

#include "core/globals.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "files/slotFile.h"
#include "games/game.h"
#include "printing/printerSystem.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/help.h"
#include "sill/modMain.h"
#include "sill/reports.h"
#include "sill/undo.h"
#include "workbench/countAndPrice.h"

namespace boulix {

using modMain::logLine;

namespace {

std::vector<std::int16_t> markedNumbers(const NumberBoard &board) {
    std::vector<std::int16_t> numbers;
    for (std::int16_t i = 1; i <= board.selectedCount(); ++i)
        numbers.push_back(board.selectedNumber(i));
    return numbers;
}

} // namespace

const std::array<TabText, frmMain::tabCount> frmMain::tabs = {{
    {"Base de données", "Gestion de la base de données des tirages"},
    {"Statistiques", "Etude statistique des tirages de la base de données"},
    {"Analyse par tirage", "Analyse des numéros sortis pour un tirage"},
    {"Eliminateurs", "Permet de définir les fonctions d'élimination de combinaison"},
    {"Jeux", "Edition de jeux et gestion de ces derniers"},
    {"Pronostiques", "Permet de configurer et de tester des méthodes de pronostiques"},
}};

frmMain::frmMain()
    : database(*this), statistics(*this), analysis(statistics.grdStatNbrSelector),
      games(elimination) {
    games.design.markedInStatistics = [this] {
        return markedNumbers(statistics.grdStatNbrSelector);
    };
    statistics.numbersToPlay = [this] { playNumbers(); };
    games.design.tickedInForecasts = [this] { return forecasts.tickedNumbers(); };
    games.fileUsed = [this](const std::string &fullName) { memory.gameUsed(fullName); };
    games.gameShown = [this] { winnings.showVerification(); };
}

void frmMain::load() {
    caption = gAppInfo->fullName();
    underHandler([this] {
        logLine("frmMain.Load: Chargement de la fenêtre");
        logLine("frmMain.Load: Initialisation des onglets");
        frmInitTab();
        logLine("frmMain.Load: Mise à jour des rapports de gain");
        winnings.showPrizes();
        showDrawCount();
        logLine("frmMain.Load: Fin de chargement de la fenêtre");
    });
    recall();
}

/// The window opens as it was left.
void frmMain::recall() {
    memory = Memory::read();
    visiblePage_ = static_cast<std::int16_t>(memory.tab);
    games.design.chkSelect = memory.sources;
    if (!memory.folder.empty())
        modMain::gCurrentDir = memory.folder;
}

void frmMain::keepMemory() {
    const bool folderChosen = modMain::gCurrentDir != platform().applicationFolder();
    memory.tab = visiblePage_;
    memory.sources = games.design.chkSelect;
    memory.folder = folderChosen ? modMain::gCurrentDir : "";
    memory.write();
}

void frmMain::frmInitTab() {
    underHandler([this] { initTabs(); });
}

void frmMain::initTabs() {
    logLine("frmMain.frmInitTab: Mise en place des frames des onglets");
    logLine("frmMain.frmInitTab: Dimensionnement des frames");
    logLine("frmMain.frmInitTab: Onglet courant par défaut");
    visiblePage_ = 0;
    logLine("frmMain.frmInitTab: Initialisation de l'onglet de gestion de base de données");
    database.init();
    logLine("frmMain.frmInitTab: Initialisation de l'onglet de statistiques");
    statistics.init();
    logLine("frmMain.frmInitTab: Initialisation de l'onglet des éliminateurs");
    elimination.init();
    logLine("frmMain.frmInitTab: Initialisation de l'onglet des jeux");
    games.init();
    winnings.init();
    logLine("frmMain.frmInitTab: Initialisation de l'onglet des statistiques par tirage");
    analysis.init();
    logLine("frmMain.frmInitTab: Initialisation de l'onglet de pronostiques");
    forecasts.init();
    logLine("frmMain.frmInitTab: Mise à jour de la base de données des tirages");
    frmUpdateDBList();
}

void frmMain::frmUpdateDBList() {
    database.lvwDBcomb.clear();
    underHandler([this] { fillDBList(); });
}

void frmMain::fillDBList() {
    logLine("frmMain.frmUpdateDBList: Remplissage de la liste des combinaisons");
    database.fillList();
    logLine("frmMain.frmUpdateDBList: -> Remplissage OK");
    const std::int32_t count = gDbCombs->Count();
    logLine("frmMain.frmUpdateDBList: -> " + std::to_string(count) + " combinaisons");
    winnings.followBase();
    statistics.followBase();
    analysis.followBase();
    logLine("frmMain.frmUpdateDBList: -> Sélection du premier item");
    if (count > 0)
        database.clickRow(count);
}

void frmMain::showDrawCount() {
    StatusBar[0] = std::to_string(gDbCombs->Count()) + " combinaisons dans la base de données";
    refresh();
}

void frmMain::showSelectedCount(const std::string &text) {
    StatusBar[1] = text;
    refresh();
}

void frmMain::clickTab(int position) {
    const auto clicked = static_cast<std::int16_t>(position - 1);
    if (clicked == visiblePage_)
        return;
    visiblePage_ = clicked;
    refresh();
}

void frmMain::undo() {
    const std::string name = gUndo->undoName();
    if (!name.empty() && runCommand([] { gUndo->undo(); }))
        desktop().announce("Annulé : " + name);
}

void frmMain::redo() {
    const std::string name = gUndo->redoName();
    if (!name.empty() && runCommand([] { gUndo->redo(); }))
        desktop().announce("Rétabli : " + name);
}

/// The numbers marked in the statistics are what the next selection of a game begins with.
void frmMain::playNumbers() {
    constexpr int gameTab = 5;
    games.playFrom(gameDesign::statisticNumbers);
    clickTab(gameTab);
}

void frmMain::showHelp() {
    help::Show(platform().applicationFolder() + pathSeparator + "boulix.chm", "DefaultWindow");
}

bool frmMain::queryClose() {
    const std::string &name = gAppInfo->name();
    const std::string question = "Etes-vous sûr de vouloir quitter " + name + "?" + unsavedGame();
    if (!desktop().askYesNo(question, Icon::question, name) || !mayLeaveBase())
        return false;
    if (!printerSystem().finishDocuments())
        return false; // a document would be lost
    desktop().unloadOtherWindows();
    if (modMain::gDebug)
        modMain::closeLog();
    return true;
}

/// A line more for the question of the quit, where grids would be lost.
std::string frmMain::unsavedGame() const {
    if (!games.hasUnsavedGrids())
        return {};
    return crlf + std::string("Le jeu en cours n'est pas enregistré : ") +
           gridCount(currentGame->Count()) + ".";
}

/// The draws of a save that failed, or of an import that was broken off, are in memory alone: they
/// do not go without a word.
bool frmMain::mayLeaveBase() {
    if (gDbCombs->isSaved())
        return true;
    enum Answer : std::size_t { saveAndQuit, quitWithoutSaving, stay };
    const std::string question =
        std::string("La base de données en mémoire n'est pas celle du disque : ses dernières "
                    "modifications ne sont pas enregistrées.") +
        crlf + "Si vous quittez sans enregistrer, elles seront perdues.";
    switch (desktop().askChoice(
        question, Icon::question, gAppInfo->name(),
        {"Enregistrer et quitter", "Quitter sans enregistrer", "Ne pas quitter"})) {
    case saveAndQuit:
        return runCommand([] { gDbCombs->saveAgain(); });
    case quitWithoutSaving:
        return true;
    default:
        return false;
    }
}

void frmMain::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
