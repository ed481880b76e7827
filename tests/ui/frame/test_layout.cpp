// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "sill/appInfo.h"
#include "sill/frmNbrSelector.h"
#include "sill/frmProgress.h"
#include "ui/frame/frmAbout.h"
#include "ui/frame/frmSelDate.h"
#include "ui/frame/frmSplash.h"
#include "ui/frame/numberDialog.h"
#include "ui/frame/progressWindow.h"
#include "ui/support/clipping.h"
#include "ui/support/layoutTest.h"
#include "ui/support/screenTest.h"
#include "ui/support/tabOrder.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QtTest/QTest>

#include <gmock/gmock.h>

namespace boulix {
namespace {

using testing_support::clippedControls;
using testing_support::LayoutTest;
using testing_support::tabPresses;

class FrameLayoutTest : public LayoutTest {};

TEST_P(FrameLayoutTest, NothingIsClippedInTheMainWindow) {
    MainWindow &window = start();
    mainWindow->database.lblDBCombDesc = "Tirage n° 2 du 30/12/2008";
    mainWindow->StatusBar[0] = "4858 combinaisons dans la base de données";
    window.refresh();
    for (int tab = 1; tab <= frmMain::tabCount; ++tab) {
        mainWindow->clickTab(tab);
        expectNothingClipped(window);
    }
    mainWindow->clickTab(1);
    window.resize(window.minimumSizeHint());
    expectNothingClipped(window);
}

TEST_P(FrameLayoutTest, NothingIsClippedInTheNumberDialog) {
    frmNbrSelector state;
    NumberDialog dialog(state);
    state.grd.selectNumber(5);
    expectNothingClipped(dialog);
}

TEST_P(FrameLayoutTest, NothingIsClippedInTheDateDialog) {
    frmSelDate dialog;
    expectNothingClipped(dialog);
}

TEST_P(FrameLayoutTest, NothingIsClippedInTheProgressWindow) {
    frmProgress state;
    state.lblInfo = "Lecture du fichier historique-exemple.txt, une ligne après l'autre, jusqu'à "
                    "la fin du fichier";
    ProgressWindow window(state);
    expectNothingClipped(window);
}

TEST_P(FrameLayoutTest, NothingIsClippedInTheAboutBox) {
    frmAbout about(*gAppInfo);
    expectNothingClipped(about);
}

TEST_P(FrameLayoutTest, NothingIsClippedInTheSplashWindow) {
    frmSplash splash({"Version 4.0.3", "boulix", "Quillon Logiciels", "(c) 2003",
                      "Windows 98, ME, NT, 2000, XP", gAppInfo->disclaimer()});
    expectNothingClipped(splash);
    splash.offerToClose();
    expectNothingClipped(splash);
}

TEST(Clipping, ATextWithoutRoomAndAControlThatSticksOutAreFound) {
    QWidget window;
    window.resize(200, 100);
    QLabel label(QStringLiteral("un texte trop long"), &window);
    label.setObjectName(QStringLiteral("narrow"));
    label.resize(20, 20);
    QPushButton button(QStringLiteral("OK"), &window);
    button.setObjectName(QStringLiteral("outside"));
    button.move(190, 0);
    QPushButton fine(QStringLiteral("OK"), &window);
    fine.move(0, 50);
    window.show();
    EXPECT_EQ(clippedControls(window), (std::vector<std::string>{"narrow", "outside"}));
}

INSTANTIATE_TEST_SUITE_P(Fonts, FrameLayoutTest, LayoutTest::fontSizes(), LayoutTest::nameOf);

using Names = std::vector<std::string>;

class TabOrderTest : public ScreenTest {
  protected:
    /// What the key goes to from the control on that has the focus in a window just opened.
    static Names fromTheStart(QWidget &window) {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        return tabPresses(window, *window.focusWidget());
    }
};

TEST_F(TabOrderTest, TheNumberDialogGoesFromTheBoardToItsButtons) {
    frmNbrSelector state;
    NumberDialog dialog(state);
    EXPECT_EQ(fromTheStart(dialog),
              (Names{"grd", "txtNumbers", "cmdSelectAll", "cmdClear", "cmdOK", "cmdCancel"}));
}

TEST_F(TabOrderTest, TheDateDialogGoesFromTheCalendarOverTheDrawToTheButton) {
    frmSelDate dialog;
    EXPECT_EQ(fromTheStart(dialog),
              (Names{"qt_calendar_calendarview", "updTirage", "cmdOK", "cmdCancel"}));
}

TEST_F(TabOrderTest, EveryPageGoesFromTheTabsOverItsToolbarToTheRestAndRound) {
    gAppInfo->init("", "", "", 2003);
    gDbCombs->dbFile().path(platform.applicationFolder());
    gDbCombs->dbFile().name("tirages.dbl");
    gDbCombs->Add(37632, 1, {}, true, ""); // without a draw the fields of positions are closed
    MainWindow &window = start();
    auto &tabs = control<QTabWidget>(window, "TabStrip");
    const std::vector<Names> pages = {
        // Without a selected draw, and without a search, some buttons are off.
        {"tbarDB_1", "tbarDB_2", "tbarDB_5", "tbarDB_6", "txtFind", "lvwDBcomb", "grdDB"},
        {"tbarStats_1", "tbarStats_2", "tbarStats_3", "tbarStats_4", "tbarStats_5", "tbarStats_6",
         "lvwStatsResult", "emptyPlace", "emptyPlace", "txtStatStart", "txtStatEnd",
         "grdStatNbrSelector"},
        {"txtTirNbr", "lblNumTir_1", "lblNumTir_2", "lblNumTir_3", "lblNumTir_4", "lblNumTir_5",
         "lblNumTir_6", "lblNumTir_0", "lstStatTirType", "lvwTirStat"},
        {"tBarEliminator_1", "tBarEliminator_2", "chkEliminator_0", "chkEliminator_1",
         "chkEliminator_2", "chkEliminator_3", "chkEliminator_4", "chkEliminator_5",
         "chkEliminator_6", "chkEliminator_7"},
        // Without a grid some buttons are off, and both lists have a link.
        {"tbarGame_1", "tbarGame_4", "tbarGame_5", "lvwGame", "emptyPlace", "emptyPlace",
         "chkUpdateList", "qt_tabwidget_tabbar", "tabGameDesign", "tbarGameDef_1", "tbarGameDef_2",
         "tbarGameDef_4", "cmbGameType", "grdGameDef", "lvwGameDef", "emptyPlace", "emptyPlace"},
        {"tBarPronos_1", "tBarPronos_2", "tBarPronos_3", "tBarPronos_4", "txtN_0", "txtP_0",
         "txtPoints_0", "txtN_1", "txtPoints_1", "txtN_2", "txtPoints_2", "txtN_3", "txtP_3",
         "txtPoints_3", "lvwPronoResults"},
    };
    for (std::size_t page = 0; page < pages.size(); ++page) {
        tabs.setCurrentIndex(static_cast<int>(page));
        Names expected = pages[page];
        expected.insert(expected.begin(), "qt_tabwidget_tabbar");
        EXPECT_EQ(tabPresses(window, *tabs.tabBar()), expected) << "page " << page;
    }
}

TEST_F(TabOrderTest, EverySubTabOfTheGamePageLetsTheKeyThrough) {
    MainWindow &window = start();
    auto &tabs = control<QTabWidget>(window, "TabStrip");
    tabs.setCurrentIndex(4);
    auto &sides = control<QTabWidget>(window, "TabGame");
    for (int side = 0; side < sides.count(); ++side) {
        sides.setCurrentIndex(side);
        const Names names = tabPresses(window, *tabs.tabBar());
        EXPECT_THAT(names, ::testing::IsSupersetOf({"tbarGame_1", "lvwGame", "chkUpdateList"}));
        EXPECT_LT(names.size(), 50U) << "the key goes in a circle on side " << side;
    }
}

TEST_F(TabOrderTest, TheDatabasePageOpensOnItsList) {
    EXPECT_EQ(fromTheStart(start()).front(), "lvwDBcomb");
}

TEST_F(TabOrderTest, AWindowWithOneButtonHasTheFocusOnIt) {
    frmAbout about(*gAppInfo);
    EXPECT_EQ(fromTheStart(about), (Names{"CMD_OK"}));
}

} // namespace
} // namespace boulix
