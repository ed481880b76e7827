// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The whole round that the Tab key takes through the winnings, the forecasts and their windows.

#include "core/globals.h"
#include "games/game.h"
#include "support/lottery.h"
#include "ui/forecasts/testPronoDialog.h"
#include "ui/support/screenTest.h"
#include "ui/support/tabOrder.h"
#include "ui/widgets/reportView.h"
#include "ui/winnings/winDateDialog.h"
#include "winnings/gameWin.h"
#include "workbench/frmMain.h"
#include "workbench/frmTestProno.h"
#include "workbench/frmWinDate.h"

#include <QTabBar>
#include <QTabWidget>

namespace boulix {
namespace {

using testing_support::tabPresses;
using Names = std::vector<std::string>;

class PageTabOrderTest : public ScreenTest {
  protected:
    PageTabOrderTest() : window(start()) {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        mainWindow->frmUpdateDBList();
        currentGame->Add(GridRef(gameComb({1, 2, 3, 4, 5, 6})));
        mainWindow->games.refill();
        control<ReportView>(window, "lvwGame").selectAll(); // every button can act
    }
    /// The round through a sub-tab of the game page, from the strip of the sub-tabs on.
    Names roundOfSide(int index) {
        mainWindow->clickTab(5);
        auto &sides = control<QTabWidget>(window, "TabGame");
        sides.setCurrentIndex(index);
        return tabPresses(window, *sides.tabBar());
    }
    /// What every round through the game page ends with.
    static Names aroundTheSide() {
        Names names = {"qt_tabwidget_tabbar"};
        append(names, "tbarGame", 1, 6);
        names.insert(names.end(), {"lvwGame", "chkUpdateList"});
        return names;
    }
    /// Adds the members `first` to `last` of the control array `name`.
    static void append(Names &names, const std::string &name, int first, int last) {
        for (int i = first; i <= last; ++i)
            names.push_back(name + "_" + std::to_string(i));
    }
    static Names round(Names side) {
        side.insert(side.begin(), "qt_tabwidget_tabbar");
        const Names rest = aroundTheSide();
        side.insert(side.end(), rest.begin(), rest.end());
        return side;
    }
    MainWindow &window;
};

TEST_F(PageTabOrderTest, TheVerificationHasItsDraw) {
    EXPECT_EQ(roundOfSide(winningsPage::verification), round({"txtVerifComb"}));
}

TEST_F(PageTabOrderTest, ThePerformanceGoesFromItsButtonsToTheDatesRankByRank) {
    Names side;
    append(side, "tbarPerfo", 1, 3);
    EXPECT_EQ(roundOfSide(winningsPage::performance), round(side)) << "there are no dates yet";
    mainWindow->winnings.clickPerfo(winningsPage::checkBase);
    append(side, "cmdPerfDate", 0, 10);
    EXPECT_EQ(roundOfSide(winningsPage::performance), round(side));
}

TEST_F(PageTabOrderTest, TheReportGoesFromItsButtonsToThePrizesRankByRank) {
    Names side;
    append(side, "tbarRapp", 1, 3);
    append(side, "txtRapPrice", 0, 10);
    EXPECT_EQ(roundOfSide(winningsPage::report), round(side));
}

TEST_F(PageTabOrderTest, TheForecastGoesFromItsButtonsFromRuleToRuleToItsResult) {
    mainWindow->clickTab(6);
    Names names = {"qt_tabwidget_tabbar"};
    append(names, "tBarPronos", 1, 4);
    names.insert(names.end(),
                 {"txtN_0", "txtP_0", "txtPoints_0", "txtN_1", "txtPoints_1", "txtN_2",
                  "txtPoints_2", "txtN_3", "txtP_3", "txtPoints_3", "lvwPronoResults"});
    EXPECT_EQ(tabPresses(window, *control<QTabWidget>(window, "TabStrip").tabBar()), names);
}

TEST_F(PageTabOrderTest, TheTestOfTheForecastGoesFromTheDrawOverTheCountsToItsResult) {
    frmTestProno rules;
    TestPronoDialog dialog(rules);
    dialog.show();
    EXPECT_EQ(tabPresses(dialog, control<QWidget>(dialog, "txtNumTir")),
              (Names{"txtNumTir", "spnTir", "txtTirBefore", "txtTirAfter", "txtNbrCount",
                     "lvWResult", "toolBar_1", "toolBar_2"}));
}

TEST_F(PageTabOrderTest, TheDatesGoFromTheListToTheButton) {
    frmWinDate dates({gameWin(1, 7)});
    WinDateDialog dialog(dates);
    dialog.show();
    EXPECT_EQ(tabPresses(dialog, control<QWidget>(dialog, "lvwWinDate")),
              (Names{"lvwWinDate", "cmdExit"}));
}

} // namespace
} // namespace boulix
