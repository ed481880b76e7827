// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/globals.h"
#include "games/game.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest/QTest>

#include <string>
#include <vector>

namespace boulix::testing_support {

/// The program on its game page.
class GameScreenTest : public ScreenTest {
  protected:
    GameScreenTest() : window(start()) { mainWindow->clickTab(5); }

    ReportView &list(const char *name) { return control<ReportView>(window, name); }
    int rows(const char *name) { return list(name).model()->rowCount(); }
    static std::string rowText(const ReportView &view, int row) {
        std::string text;
        for (int column = 0; column < view.model()->columnCount(); ++column)
            text += (column == 0 ? "" : " ") +
                    view.model()->index(row - 1, column).data().toString().toStdString();
        return text;
    }
    static void clickRow(ReportView &view, int row, Qt::KeyboardModifiers keys = {}) {
        const QPoint middle = view.visualRect(view.model()->index(row - 1, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, middle);
    }
    void press(const std::string &action) { control<QAction>(window, action.c_str()).trigger(); }
    void goTo(int tab) { control<QTabBar>(window, "tabGameDesign").setCurrentIndex(tab); }
    void goToSide(int side) { control<QTabWidget>(window, "TabGame").setCurrentIndex(side); }
    /// Chooses the first `count` numbers in the dialog of "Sélection".
    void select(int count) {
        robot.in("frmNbrSelector", [count](QWidget &dialog) {
            click(control<QPushButton>(dialog, "cmdClear"));
            auto &board = control<NumberBoardView>(dialog, "grd");
            for (std::int16_t n = 1; n <= count; ++n)
                QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(n).center().toPoint());
            click(control<QPushButton>(dialog, "cmdOK"));
        });
        press("tbarGameDef_2");
    }
    /// Makes the seven grids of the first seven numbers and adds them to the user's game.
    void makeSevenGrids() {
        goTo(gameDesign::manualTab);
        select(7);
        press("tbarGameDef_4");
        press("tbarGameDef_1");
    }

    MainWindow &window;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::GameScreenTest;
} // namespace boulix
