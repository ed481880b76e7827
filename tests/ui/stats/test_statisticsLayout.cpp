// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Nothing is cut off on the statistics pages and in their windows, whatever they show.

#include "printing/frmGridParam.h"
#include "printing/frmPrint.h"
#include "printing/gridConfig.h"
#include "stats/frmGraph.h"
#include "stats/statTypes.h"
#include "support/lottery.h"
#include "ui/printing/gridParamDialog.h"
#include "ui/printing/printDialog.h"
#include "ui/stats/graphParamDialog.h"
#include "ui/stats/graphWindow.h"
#include "ui/support/layoutTest.h"
#include "workbench/frmMain.h"

#include <QListWidget>

namespace boulix {
namespace {

using testing_support::LayoutTest;

class StatisticsLayoutTest : public LayoutTest {
  protected:
    StatisticsLayoutTest() : window(start()) {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({10, 20, 30, 40, 41, 42, 43});
        mainWindow->frmUpdateDBList();
    }
    void expectNothingClippedAtAnySize() {
        const QSize size = window.size();
        expectNothingClipped(window);
        window.resize(window.minimumSizeHint());
        expectNothingClipped(window);
        window.resize(size);
    }
    MainWindow &window;
};

TEST_P(StatisticsLayoutTest, NothingIsClippedOnTheStatisticsPageWithAnyType) {
    mainWindow->clickTab(2);
    for (const bool withCompl : {false, true}) {
        mainWindow->statistics.clickButton(statisticsPage::withComplementary, withCompl);
        for (std::int16_t type = 1; type <= modStats::statTypeCount; ++type) {
            SCOPED_TRACE("type " + std::to_string(type));
            mainWindow->statistics.pickType(type);
            if (modStats::statTypes(type).nNumbers == 0)
                mainWindow->statistics.clickButton(statisticsPage::computeType);
            mainWindow->statistics.lblStatsStatus =
                "Absence maxi pour le quadruplet (46,47,48,49): 4858 tirages";
            mainWindow->statistics.leaveStart(""); // shows what is set
            expectNothingClippedAtAnySize();
        }
    }
}

TEST_P(StatisticsLayoutTest, NothingIsClippedOnTheAnalysisPageWithAllRows) {
    mainWindow->clickTab(3);
    control<QListWidget>(window, "lstStatTirType").selectAll();
    expectNothingClippedAtAnySize();
}

TEST_P(StatisticsLayoutTest, NothingIsClippedInTheGraphWindow) {
    frmGraph rules;
    rules.clickManualRange();
    rules.leaveLimit(frmGraph::yMin, "-1234.5678");
    GraphWindow graph(rules);
    expectNothingClipped(graph);
    graph.resize(graph.minimumSizeHint());
    expectNothingClipped(graph);
}

TEST_P(StatisticsLayoutTest, NothingIsClippedInTheWindowsOfTheSettings) {
    frmGraphParam graph;
    GraphParamDialog graphWindow(graph);
    expectNothingClipped(graphWindow);
    printers.names = {"Imprimante laser du bureau du premier étage"};
    frmPrint print;
    PrintDialog printWindow(print);
    expectNothingClipped(printWindow);
    gGridConfig->load();
    frmGridParam grid;
    GridParamDialog gridWindow(grid);
    expectNothingClipped(gridWindow);
}

INSTANTIATE_TEST_SUITE_P(Fonts, StatisticsLayoutTest, LayoutTest::fontSizes(), LayoutTest::nameOf);

} // namespace
} // namespace boulix
