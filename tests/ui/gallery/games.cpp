// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "core/modMaths.h"
#include "draws/dbCombs.h"
#include "eliminators/eliminators.h"
#include "games/frmRandomComb.h"
#include "games/game.h"
#include "games/gameDef.h"
#include "games/modGame.h"
#include "keep.h"
#include "printing/gridConfig.h"
#include "sill/frmProgress.h"
#include "ui/frame/mainWindow.h"
#include "ui/games/displayGameDialog.h"
#include "ui/games/gameListDialog.h"
#include "ui/games/optimiserDialog.h"
#include "ui/games/randomCombDialog.h"
#include "ui/support/places.h"
#include "ui/winnings/chancesDialog.h"
#include "ui/winnings/winDateDialog.h"
#include "ui/workbench/mainParts.h"
#include "winnings/chances.h"
#include "winnings/gameWin.h"
#include "winnings/rapport.h"
#include "workbench/frmChances.h"
#include "workbench/frmMain.h"
#include "workbench/frmOptimiser.h"
#include "workbench/frmWinDate.h"

#include <QString>
#include <QTabWidget>

#include <vector>

using namespace boulix;

namespace {

/// A game of twenty grids, and one under construction.
void makeGames() {
    modMaths::precomputeCnk();
    modGame::init();
    gEliminators->init();
    gGridConfig->load();
    for (std::int16_t rank = 0; rank < rapport::size; ++rank)
        gRapport->Value(rank, static_cast<float>(rank * rank) * 2.5F);
    const gameDef &system = modGame::reducedGames[1];
    std::vector<std::int16_t> numbers;
    for (std::int16_t i = 0; i < system.nSelect(); ++i)
        numbers.push_back(static_cast<std::int16_t>(i * 49 / system.nSelect() + 1));
    selector chosen;
    chosen.setSelect(system.nSelect(), system.nSelect());
    chosen.setPrevSelect(system.nSelect(), numbers);
    constructionGame->ComputeDefinedGame(system, chosen);
    for (std::int32_t i = 1; i <= constructionGame->Count(); ++i)
        currentGame->Add(constructionGame->shared(i));
    mainWindow->load();
    mainWindow->games.refill();
}

void keepPages() {
    MainWindow window(*mainWindow, mainParts());
    mainWindow->clickTab(4);
    mainWindow->elimination.tick(0, true);
    mainWindow->elimination.txtEliminator[0] = "3";
    mainWindow->elimination.tick(7, true);
    keep(window, QStringLiteral("eliminatorTab"));
    mainWindow->clickTab(5);
    for (int tab = 0; tab < 6; ++tab) {
        mainWindow->games.design.clickTab(tab);
        keep(window, QStringLiteral("gameTab-%1").arg(tab));
    }
    auto *sides = window.findChild<QTabWidget *>(QStringLiteral("TabGame"));
    for (int side = 0; side < 3; ++side) {
        sides->setCurrentIndex(side);
        if (side == winningsPage::performance)
            mainWindow->winnings.clickPerfo(winningsPage::checkBase);
        keep(window, QStringLiteral("winnings-%1").arg(side));
    }
    window.resize(window.minimumSizeHint());
    keep(window, QStringLiteral("winnings-smallest"));
}

/// The page as it is before there is any grid, and with a game that is not saved.
void keepEmptyPages() {
    currentGame->clear();
    constructionGame->clear();
    mainWindow->games.refill();
    MainWindow window(*mainWindow, mainParts());
    mainWindow->clickTab(5);
    for (const int tab : {gameDesign::reducedTab, gameDesign::createTab}) {
        mainWindow->games.design.clickTab(tab);
        keep(window, QStringLiteral("gameTab-empty-%1").arg(tab));
    }
    frmGameList list;
    GameListDialog listDialog(list);
    keep(listDialog, QStringLiteral("frmGameList-empty"));
}

/// All places of the main window at one size.
void keepPlaces(const QSize &size) {
    mainWindow->statistics.pickType(1);
    mainWindow->statistics.clickButton(statisticsPage::computeType);
    mainWindow->forecasts.clickButton(forecastPage::computePoints);
    MainWindow window(*mainWindow, mainParts());
    mainWindow->winnings.clickPerfo(winningsPage::checkBase);
    int number = 0;
    for (const testing_support::Place &place : testing_support::placesOfMainWindow()) {
        place.goThere(window);
        window.resize(size);
        keep(window, QStringLiteral("place-%1").arg(++number, 2, 10, QLatin1Char('0')));
    }
}

void keepDialogs() {
    frmGameList list;
    GameListDialog listDialog(list);
    keep(listDialog, QStringLiteral("frmGameList"));

    frmDisplayGame grids(modGame::reducedGames[1]);
    DisplayGameDialog gridsDialog(grids);
    keep(gridsDialog, QStringLiteral("frmDisplayGame"));

    gameDef calculated;
    calculated.compute(0, 4, 12);
    frmOptimiser optimiser(calculated);
    optimiser.changed = [&optimiser] {
        if (optimiser.rows().size() <= 41)
            optimiser.clickStop();
    };
    optimiser.clickStart();
    OptimiserDialog optimiserDialog(optimiser);
    keep(optimiserDialog, QStringLiteral("frmOptimiser"));

    frmRandomComb draws;
    draws.txtnComb = "200";
    draws.clickCompute();
    RandomCombDialog drawsDialog(draws);
    keep(drawsDialog, QStringLiteral("frmRandomComb"));

    std::vector<gameWin> wins;
    for (std::int32_t draw = 5; draw <= gDbCombs->Count(); draw += 40)
        wins.emplace_back(draw, draw % 3 + 1);
    frmWinDate dates(wins);
    WinDateDialog datesDialog(dates);
    keep(datesDialog, QStringLiteral("frmWinDate"));
}

/// The chances of the game as it stands, and of one on too many numbers for a table of guarantees.
void keepChances() {
    gGridConfig->load();
    for (const char *name : {"frmChances", "frmChances-many"}) {
        frmProgress progress;
        const auto chances = chancesOf(*currentGame, *gRapport, gGridConfig->price(), progress);
        frmChances window(chances.value(), gGridConfig->monneyUnit());
        ChancesDialog dialog(window);
        keep(dialog, QString::fromLatin1(name));
        dialog.resize(dialog.minimumSizeHint());
        keep(dialog, QString::fromLatin1(name) + QStringLiteral("-smallest"));
        for (std::int16_t n = 1; n <= 43; n = static_cast<std::int16_t>(n + 6))
            currentGame->Add(GridRef(
                gameComb({n, static_cast<std::int16_t>(n + 1), static_cast<std::int16_t>(n + 2),
                          static_cast<std::int16_t>(n + 3), static_cast<std::int16_t>(n + 4),
                          static_cast<std::int16_t>(n + 5)})));
    }
}

} // namespace

void keepGames() {
    makeGames();
    keepPages();
    keepDialogs();
    keepChances();
    keepEmptyPages();
}

void keepPlacesAt(const QSize &size) {
    makeGames();
    keepPlaces(size);
}
