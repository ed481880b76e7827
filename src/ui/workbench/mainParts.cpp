// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/workbench/mainParts.h"

#include "core/globals.h"
#include "printing/frmGridParam.h"
#include "stats/frmGraph.h"
#include "ui/draws/databaseTab.h"
#include "ui/eliminators/eliminatorTab.h"
#include "ui/forecasts/forecastTab.h"
#include "ui/printing/gridParamDialog.h"
#include "ui/stats/drawAnalysisTab.h"
#include "ui/stats/graphParamDialog.h"
#include "ui/stats/statisticsTab.h"
#include "ui/workbench/gameTab.h"

namespace boulix {

namespace {

QWidget *makeDatabase(frmMain &main, QWidget *parent) {
    return new DatabaseTab(main.database, parent);
}

QWidget *makeStatistics(frmMain &main, QWidget *parent) {
    return new StatisticsTab(main.statistics, parent);
}

QWidget *makeAnalysis(frmMain &main, QWidget *parent) {
    return new DrawAnalysisTab(main.analysis, parent);
}

QWidget *makeEliminators(frmMain &main, QWidget *parent) {
    return new EliminatorTab(main.elimination, parent);
}

QWidget *makeGames(frmMain &main, QWidget *parent) {
    return new GameTab(main.games, main.winnings, parent);
}

QWidget *makeForecasts(frmMain &main, QWidget *parent) {
    return new ForecastTab(main.forecasts, parent);
}

void runGridParam(QWidget *parent) {
    frmGridParam rules;
    GridParamDialog(rules, parent).exec();
    boulix::mainWindow->games.showPrice();
}

void runGraphParam(QWidget *parent) {
    frmGraphParam rules;
    GraphParamDialog(rules, parent).exec();
}

} // namespace

MainParts mainParts() {
    return {.pages = {makeDatabase, makeStatistics, makeAnalysis, makeEliminators, makeGames,
                      makeForecasts},
            .runGridParam = runGridParam,
            .runGraphParam = runGraphParam};
}

} // namespace boulix
