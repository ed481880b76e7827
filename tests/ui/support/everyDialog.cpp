// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/everyDialog.h"

#include "core/globals.h"
#include "games/frmRandomComb.h"
#include "games/game.h"
#include "games/modGame.h"
#include "printing/frmGridParam.h"
#include "printing/frmPrint.h"
#include "printing/frmPrintGridPreview.h"
#include "sill/appInfo.h"
#include "sill/frmNbrSelector.h"
#include "sill/frmProgress.h"
#include "stats/frmGraph.h"
#include "ui/forecasts/testPronoDialog.h"
#include "ui/frame/frmAbout.h"
#include "ui/frame/frmSelDate.h"
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
#include "ui/stats/graphParamDialog.h"
#include "ui/stats/graphWindow.h"
#include "ui/winnings/chancesDialog.h"
#include "ui/winnings/winDateDialog.h"
#include "winnings/chances.h"
#include "winnings/gameWin.h"
#include "winnings/rapport.h"
#include "workbench/frmChances.h"
#include "workbench/frmDisplayGame.h"
#include "workbench/frmGameList.h"
#include "workbench/frmOptimiser.h"
#include "workbench/frmTestProno.h"
#include "workbench/frmWinDate.h"

#include <QtTest/QTest>

namespace boulix::testing_support {

namespace {

using Look = std::function<void(QWidget &)>;

void show(QWidget &window, const Look &look) {
    window.show();
    (void)QTest::qWaitForWindowExposed(&window);
    look(window);
    window.hide();
}

/// A window whose rules need nothing but themselves.
template <class Dialog, class Rules>
void showWith(Rules &&rules, const Look &look) {
    Dialog dialog(rules);
    show(dialog, look);
}

void showFrame(const Look &look) {
    frmAbout about(*gAppInfo);
    show(about, look);
    frmSelDate date;
    show(date, look);
    HelpWindow help;
    show(help, look);
    showWith<NumberDialog>(frmNbrSelector(), look);
    showWith<ProgressWindow>(frmProgress(), look);
}

void showSettings(const Look &look) {
    showWith<PrintDialog>(frmPrint(), look);
    showWith<GridParamDialog>(frmGridParam(), look);
    showWith<GraphParamDialog>(frmGraphParam(), look);
    const auto noGrid = [](std::int32_t, std::int16_t, Canvas &, slip::Placement) {};
    showWith<GridPreviewDialog>(frmPrintGridPreview(20, noGrid), look);
}

void showGames(const Look &look) {
    showWith<GameListDialog>(frmGameList(), look);
    showWith<DisplayGameDialog>(frmDisplayGame(modGame::reducedGames[1]), look);
    showWith<RandomCombDialog>(frmRandomComb(), look);
    gameDef calculated;
    calculated.compute(0, 4, 8);
    frmOptimiser optimiser(calculated);
    OptimiserDialog optimiserDialog(optimiser);
    show(optimiserDialog, look);
}

void showResults(const Look &look) {
    showWith<WinDateDialog>(frmWinDate({gameWin(1, 7), gameWin(2, 1)}), look);
    game one;
    one.Add(GridRef(gameComb({1, 2, 3, 4, 5, 6})));
    frmProgress progress;
    const auto chances = chancesOf(one, *gRapport, 0.6F, progress);
    showWith<ChancesDialog>(frmChances(chances.value(), "euro"), look);
    frmTestProno test;
    test.leaveNumTir();
    showWith<TestPronoDialog>(test, look);
    frmGraph graph;
    showWith<GraphWindow>(graph, look);
}

} // namespace

void forEveryDialog(const Look &look) {
    showFrame(look);
    showSettings(look);
    showGames(look);
    showResults(look);
}

} // namespace boulix::testing_support
