// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The way of the Tab key over the statistics page, the analysis page and the windows of graph and
// printer.

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "printing/frmGridParam.h"
#include "printing/frmPrint.h"
#include "printing/gridConfig.h"
#include "stats/frmGraph.h"
#include "ui/printing/gridParamDialog.h"
#include "ui/printing/printDialog.h"
#include "ui/stats/graphParamDialog.h"
#include "ui/stats/graphWindow.h"
#include "ui/support/screenTest.h"
#include "ui/support/tabOrder.h"
#include "workbench/frmMain.h"

#include <QTabWidget>
#include <QtTest/QTest>

namespace boulix {
namespace {

using testing_support::tabPresses;
using Names = std::vector<std::string>;

class StatisticsTabOrderTest : public ScreenTest {
  protected:
    /// The program on page `tab`, with a draw, so that its controls are there.
    MainWindow &startOn(int tab) {
        MainWindow &window = start();
        lotoComb comb;
        for (int k = 1; k <= lotoComb::size; ++k)
            comb.num(k, static_cast<std::int16_t>(k));
        comb.compl_(7);
        gDbCombs->Add(dateOf({2001, 1, 1}), 1, comb, false, "");
        mainWindow->frmUpdateDBList();
        control<QTabWidget>(window, "TabStrip").setCurrentIndex(tab);
        return window;
    }
    static Names orderIn(QWidget &window, const char *first) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        return tabPresses(window, control<QWidget>(window, first));
    }
};

TEST_F(StatisticsTabOrderTest, TheStatisticsPageGoesFromTheListOverTheRangeToTheBoard) {
    Names names = orderIn(startOn(1), "lvwStatsResult");
    for (int i = 1; i <= 6; ++i)
        EXPECT_EQ(std::erase(names, "tbarStats_" + std::to_string(i)), 1U);
    EXPECT_EQ(std::erase(names, "emptyPlace"), 2U) << "the link of the empty list";
    EXPECT_EQ(names, (Names{"lvwStatsResult", "txtStatStart", "txtStatEnd", "grdStatNbrSelector",
                            "qt_tabwidget_tabbar"}));
}

TEST_F(StatisticsTabOrderTest, TheAnalysisPageGoesFromTheDrawOverItsNumbersToTheResults) {
    EXPECT_EQ(orderIn(startOn(2), "txtTirNbr"),
              (Names{"txtTirNbr", "lblNumTir_1", "lblNumTir_2", "lblNumTir_3", "lblNumTir_4",
                     "lblNumTir_5", "lblNumTir_6", "lblNumTir_0", "lstStatTirType", "lvwTirStat",
                     "qt_tabwidget_tabbar"}));
}

TEST_F(StatisticsTabOrderTest, TheGraphWindowGoesDownItsPanel) {
    frmGraph rules;
    rules.clickManualRange();
    GraphWindow window(rules);
    EXPECT_EQ(orderIn(window, "cmbGraphType"),
              (Names{"cmbGraphType", "chkShowAxes", "chkShowGrid", "optAutoRange", "txtXMin",
                     "txtXMax", "txtYMin", "txtYMax", "PlotPane"}));
}

TEST_F(StatisticsTabOrderTest, TheWindowsOfTheSettingsGoDownToTheirButtons) {
    frmGraphParam graph;
    GraphParamDialog graphWindow(graph);
    EXPECT_EQ(orderIn(graphWindow, "cmbGraphType"),
              (Names{"cmbGraphType", "chkShowAxes", "chkShowGrid", "CMD_OK", "CMD_Cancel"}));
    frmPrint print;
    PrintDialog printWindow(print);
    EXPECT_EQ(
        orderIn(printWindow, "cmbPrinter"),
        (Names{"cmbPrinter", "optPrintDir_2", "txtOffsetX", "txtOffsetY", "cmdOK", "cmdCancel"}));
    gGridConfig->load();
    frmGridParam grid;
    GridParamDialog gridWindow(grid);
    EXPECT_EQ(orderIn(gridWindow, "txtUnit"),
              (Names{"txtUnit", "txtPrice", "CMD_OK", "CMD_Cancel"}));
}

} // namespace
} // namespace boulix
