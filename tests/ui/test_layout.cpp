// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/appInfo.h"
#include "core/frmNbrSelector.h"
#include "core/frmProgress.h"
#include "core/globals.h"
#include "layoutTest.h"
#include "ui/frmAbout.h"
#include "ui/frmSelDate.h"
#include "ui/frmSplash.h"
#include "ui/numberDialog.h"
#include "ui/progressWindow.h"
#include "ui/support/clipping.h"
#include "ui/support/screenTest.h"
#include "ui/support/tabOrder.h"
#include "workbench/frmMain.h"

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest/QTest>

#include <gmock/gmock.h>

namespace boulix {
namespace {

using testing_support::clippedControls;
using testing_support::LayoutTest;
using testing_support::tabOrder;

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

class TabOrderTest : public ScreenTest {};

TEST_F(TabOrderTest, TheNumberDialogGoesFromTheBoardToItsButtons) {
    frmNbrSelector state;
    NumberDialog dialog(state);
    dialog.show();
    EXPECT_EQ(tabOrder(dialog),
              (std::vector<std::string>{"grd", "cmdSelectAll", "cmdClear", "cmdOK", "cmdCancel"}));
}

TEST_F(TabOrderTest, TheDatabasePageGoesFromTheToolbarOverTheListToTheBoard) {
    MainWindow &window = start();
    const std::vector<std::string> named = tabOrder(window);
    EXPECT_THAT(named, ::testing::IsSupersetOf({"lvwDBcomb", "grdDB"}));
    const auto at = [&](const char *name) { return std::find(named.begin(), named.end(), name); };
    EXPECT_LT(at("lvwDBcomb"), at("grdDB"));
}

} // namespace
} // namespace boulix
