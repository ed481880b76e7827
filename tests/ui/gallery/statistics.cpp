// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "keep.h"
#include "stats/graphSettings.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "ui/frame/mainWindow.h"
#include "ui/stats/graphWindow.h"
#include "ui/workbench/mainParts.h"
#include "workbench/frmMain.h"

#include <QListWidget>
#include <QString>

#include <cmath>
#include <vector>

using namespace boulix;

namespace {

void keepPages() {
    modStats::InitStatTypes();
    modStats::InitTripletTable();
    mainWindow->load();
    MainWindow window(*mainWindow, mainParts());
    mainWindow->clickTab(2);
    keep(window, QStringLiteral("statisticsTab-empty"));
    for (const std::int16_t n : std::vector<std::int16_t>{3, 17, 28, 49})
        mainWindow->statistics.grdStatNbrSelector.click(n);
    mainWindow->statistics.clickButton(statisticsPage::withComplementary, true);
    for (const std::int16_t type : std::vector<std::int16_t>{1, 6, 7, 11, 17}) {
        mainWindow->statistics.pickType(type);
        mainWindow->statistics.clickButton(statisticsPage::computeType);
        keep(window, QStringLiteral("statisticsTab-%1").arg(type));
    }
    mainWindow->statistics.pickType(1);
    keep(window, QStringLiteral("statisticsTab-outdated"));
    window.resize(window.minimumSizeHint());
    keep(window, QStringLiteral("statisticsTab-smallest"));

    mainWindow->clickTab(3);
    window.findChild<QListWidget *>(QStringLiteral("lstStatTirType"))->selectAll();
    keep(window, QStringLiteral("analysisTab-smallest"));
    window.resize(1100, 760);
    keep(window, QStringLiteral("analysisTab"));
}

void keepGraphOfPeriods() {
    modStats::InitGraphTypes();
    frmGraph rules;
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 1; i <= 4858; ++i) {
        x.push_back(i);
        y.push_back(std::round(20 + 18 * std::sin(i * 1.7) + 10 * std::sin(i * 0.01)));
    }
    rules.plot.titles("Période", "Absences");
    rules.plot.addCurve(x, y);
    GraphWindow window(rules);
    for (std::int16_t type = 0; type < 4; ++type) {
        rules.selectGraphType(type);
        keep(window, QStringLiteral("frmGraph-periods-%1").arg(type));
    }
}

} // namespace

void keepStatistics() {
    keepPages();
    keepGraphOfPeriods();
}
