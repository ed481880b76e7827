// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/frmRandomComb.h"
#include "games/modGame.h"
#include "support/lottery.h"
#include "ui/forecasts/testPronoDialog.h"
#include "ui/games/displayGameDialog.h"
#include "ui/games/gameListDialog.h"
#include "ui/games/randomCombDialog.h"
#include "ui/support/layoutTest.h"
#include "ui/winnings/winDateDialog.h"
#include "winnings/gameWin.h"
#include "workbench/frmMain.h"
#include "workbench/frmTestProno.h"
#include "workbench/frmWinDate.h"

#include <QTabWidget>

namespace boulix {
namespace {

using testing_support::LayoutTest;

class PageLayoutTest : public LayoutTest {
  protected:
    PageLayoutTest() : window(start()) {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({10, 20, 30, 40, 41, 42, 43});
        mainWindow->frmUpdateDBList();
    }
    void expectNothingClippedAtAnySize() {
        expectNothingClipped(window);
        window.resize(window.minimumSizeHint());
        expectNothingClipped(window);
    }
    MainWindow &window;
};

TEST_P(PageLayoutTest, NothingIsClippedOnTheEliminatorsPage) {
    mainWindow->clickTab(4);
    expectNothingClippedAtAnySize();
}

TEST_P(PageLayoutTest, NothingIsClippedOnTheTabsOfTheGamePage) {
    mainWindow->clickTab(5);
    mainWindow->games.design.systems.lblnGameDefComb = "13983816 combinaisons";
    mainWindow->games.design.systems.lblCost = "8390289.6 euros";
    for (int tab = gameDesign::reducedTab; tab <= gameDesign::createTab; ++tab) {
        mainWindow->games.design.clickTab(tab);
        expectNothingClippedAtAnySize();
    }
}

TEST_P(PageLayoutTest, NothingIsClippedOnTheWinningsSubTabs) {
    mainWindow->clickTab(5);
    auto &sides = control<QTabWidget>(window, "TabGame");
    for (int side = winningsPage::verification; side <= winningsPage::report; ++side) {
        sides.setCurrentIndex(side);
        mainWindow->winnings.lblVerComb.fill("13983816");
        mainWindow->winnings.lblVerPrice.fill("1.398382E+07");
        mainWindow->winnings.leaveVerifComb(""); // shows what is set
        expectNothingClippedAtAnySize();
    }
}

TEST_P(PageLayoutTest, NothingIsClippedOnTheForecastPage) {
    mainWindow->clickTab(6);
    expectNothingClippedAtAnySize();
}

TEST_P(PageLayoutTest, NothingIsClippedInTheTestOfTheForecast) {
    frmTestProno rules;
    rules.leaveNumTir();
    TestPronoDialog dialog(rules);
    expectNothingClipped(dialog);
}

TEST_P(PageLayoutTest, NothingIsClippedInTheWindowsOfTheSystems) {
    frmGameList list;
    GameListDialog listDialog(list);
    expectNothingClipped(listDialog);
    frmDisplayGame grids(modGame::reducedGames[1]);
    DisplayGameDialog gridsDialog(grids);
    expectNothingClipped(gridsDialog);
}

TEST_P(PageLayoutTest, NothingIsClippedInTheWindowsOfTheWinnings) {
    frmRandomComb draws;
    draws.txtnComb = "20";
    draws.clickCompute();
    RandomCombDialog drawsDialog(draws);
    expectNothingClipped(drawsDialog);
    frmWinDate dates({gameWin(1, 7), gameWin(2, 1)});
    WinDateDialog datesDialog(dates);
    expectNothingClipped(datesDialog);
}

INSTANTIATE_TEST_SUITE_P(Fonts, PageLayoutTest, LayoutTest::fontSizes(), LayoutTest::nameOf);

} // namespace
} // namespace boulix
