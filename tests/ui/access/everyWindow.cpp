// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "everyWindow.h"

#include "core/globals.h"
#include "games/frmRandomComb.h"
#include "games/game.h"
#include "games/gameDef.h"
#include "games/modGame.h"
#include "printing/frmGridParam.h"
#include "printing/frmPrint.h"
#include "printing/frmPrintGridPreview.h"
#include "sill/appInfo.h"
#include "sill/frmNbrSelector.h"
#include "sill/frmProgress.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "support/locations.h"
#include "support/lottery.h"
#include "ui/forecasts/testPronoDialog.h"
#include "ui/frame/frmAbout.h"
#include "ui/frame/frmSelDate.h"
#include "ui/frame/frmSplash.h"
#include "ui/frame/helpWindow.h"
#include "ui/frame/numberDialog.h"
#include "ui/frame/progressWindow.h"
#include "ui/games/displayGameDialog.h"
#include "ui/games/gameListDialog.h"
#include "ui/games/optimiserDialog.h"
#include "ui/games/randomCombDialog.h"
#include "ui/printing/gridParamDialog.h"
#include "ui/printing/gridPreviewDialog.h"
#include "ui/printing/printDialog.h"
#include "ui/printing/printQueue.h"
#include "ui/printing/printQueueWindow.h"
#include "ui/stats/graphParamDialog.h"
#include "ui/stats/graphWindow.h"
#include "ui/support/places.h"
#include "ui/widgets/qtText.h"
#include "ui/winnings/chancesDialog.h"
#include "ui/winnings/winDateDialog.h"
#include "winnings/chances.h"
#include "winnings/gameWin.h"
#include "winnings/rapport.h"
#include "workbench/frmChances.h"
#include "workbench/frmGameList.h"
#include "workbench/frmMain.h"
#include "workbench/frmOptimiser.h"
#include "workbench/frmTestProno.h"
#include "workbench/frmWinDate.h"

#include <QMessageBox>
#include <QPushButton>
#include <QtTest/QTest>

#include <sstream>

namespace boulix::testing_support {

namespace {

/// Sizes travel outwards, layout by layout.
void settle() {
    for (int level = 0; level < 3; ++level)
        QApplication::processEvents();
}

void fillProgram() {
    std::mt19937 random{11};
    addRandomDraws(60, random);
    for (std::int16_t n = 1; n <= 30; ++n)
        currentGame->Add(
            GridRef(gameComb({n, static_cast<std::int16_t>(n + 3), static_cast<std::int16_t>(n + 5),
                              static_cast<std::int16_t>(n + 8), static_cast<std::int16_t>(n + 13),
                              static_cast<std::int16_t>(n + 19)})));
    mainWindow->frmUpdateDBList();
    mainWindow->games.refill();
    mainWindow->statistics.pickType(1);
    mainWindow->statistics.clickButton(statisticsPage::computeType);
    mainWindow->forecasts.txtN = {"12", "8", "9", "20"};
    mainWindow->forecasts.txtP = {"4", "", "", "30"};
    mainWindow->forecasts.txtPoints = {"3", "2", "1", "5"};
    mainWindow->forecasts.clickButton(forecastPage::computePoints);
}

} // namespace

EveryWindowTest::EveryWindowTest() : window(start()) {
    fillProgram();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

EveryWindowTest::~EveryWindowTest() = default;

void EveryWindowTest::lookAtEveryPage(const Look &look) {
    for (const Place &place : placesOfMainWindow()) {
        place.goThere(window);
        settle();
        std::ostringstream name;
        name << place;
        look(window, name.str());
    }
}

void EveryWindowTest::lookAtEveryDialog(const Look &look) {
    openFrameWindows(look);
    openGameWindows(look);
    openWinningsWindows(look);
    openPrintWindows(look);
    openGraphWindows(look);
    openMessages(look);
}

void EveryWindowTest::open(QWidget &dialog, const Look &look) {
    dialog.show();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    settle();
    look(dialog, dialog.objectName().toStdString());
    dialog.hide();
}

void EveryWindowTest::openFrameWindows(const Look &look) {
    frmNbrSelector selector;
    selector.grd.selectNumber(5);
    NumberDialog numbers(selector);
    open(numbers, look);
    frmSelDate date;
    open(date, look);
    frmProgress progress;
    progress.caption = "Importation des tirages...";
    progress.lblInfo = "Lecture du fichier";
    ProgressWindow bars(progress);
    open(bars, look);
    frmAbout about(*gAppInfo);
    open(about, look);
    frmSplash splash({"Version 4", "boulix", "Quillon Logiciels", "(c) 2003", "Windows 98",
                      "Ce logiciel constitue une aide au jeu."});
    splash.offerToClose();
    open(splash, look);
    HelpWindow help;
    help.showPage(toQt((checkoutFolder() / "help" / "index.html").string()));
    open(help, look);
}

void EveryWindowTest::openGameWindows(const Look &look) {
    frmGameList list;
    GameListDialog listDialog(list);
    open(listDialog, look);
    frmDisplayGame grids(modGame::reducedGames[1]);
    DisplayGameDialog gridsDialog(grids);
    open(gridsDialog, look);
    frmRandomComb draws;
    draws.txtnComb = "20";
    draws.clickCompute();
    RandomCombDialog drawsDialog(draws);
    open(drawsDialog, look);
    gameDef system;
    system.compute(0, 2, 8);
    frmOptimiser optimiser(system);
    OptimiserDialog optimiserDialog(optimiser);
    open(optimiserDialog, look);
}

void EveryWindowTest::openWinningsWindows(const Look &look) {
    frmWinDate dates({gameWin(1, 7), gameWin(2, 1)});
    WinDateDialog datesDialog(dates);
    open(datesDialog, look);
    frmProgress progress;
    frmChances chances(chancesOf(*currentGame, *gRapport, 0.6F, progress).value(), "euro");
    ChancesDialog chancesDialog(chances);
    open(chancesDialog, look);
    frmTestProno test;
    test.txtTirBefore = "10";
    test.txtTirAfter = "10";
    test.editNbrCount("12");
    test.clickCompute();
    TestPronoDialog testDialog(test);
    open(testDialog, look);
}

void EveryWindowTest::openPrintWindows(const Look &look) {
    frmPrint settings;
    PrintDialog settingsDialog(settings);
    open(settingsDialog, look);
    frmGridParam price;
    GridParamDialog priceDialog(price);
    open(priceDialog, look);
    // A slip without crosses: these would stand on its numbers.
    frmPrintGridPreview preview(20, [](std::int32_t, std::int16_t, Canvas &, slip::Placement) {});
    preview.clickAbon(true);
    GridPreviewDialog previewDialog(preview);
    open(previewDialog, look);
    PrintQueue queue;
    PrintQueueWindow queueWindow(queue);
    queueWindow.waitForEnd(true); // with no document on its way there is nothing else to tell
    open(queueWindow, look);
}

void EveryWindowTest::openGraphWindows(const Look &look) {
    modStats::InitGraphTypes();
    frmGraph graph;
    graph.plot.titles("N°", "Fréquence");
    graph.plot.addCurve({1, 2, 3, 4}, {4, 7, 5, 9});
    GraphWindow graphWindow(graph);
    open(graphWindow, look);
    frmGraphParam colours;
    GraphParamDialog coloursDialog(colours);
    open(coloursDialog, look);
}

void EveryWindowTest::openMessages(const Look &look) {
    robot.in("messageBox", [&look](QWidget &box) {
        settle();
        look(box, "messageBox");
        static_cast<QMessageBox &>(box).button(QMessageBox::Ok)->click();
    });
    desktop->showMessage("Une phrase.", Icon::critical, "boulix");
    robot.in("inputBox", [&look](QWidget &box) {
        settle();
        look(box, "inputBox");
        static_cast<QDialog &>(box).reject();
    });
    desktop->askText("Nom du jeu", "boulix", "Mardi", 20);
    robot.finish();
}

} // namespace boulix::testing_support
