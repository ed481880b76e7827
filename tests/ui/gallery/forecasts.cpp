// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "forecasts/pronostics.h"
#include "keep.h"
#include "ui/forecasts/forecastTab.h"
#include "ui/forecasts/testPronoDialog.h"
#include "workbench/forecastPage.h"
#include "workbench/frmTestProno.h"

#include <QString>

using namespace boulix;

void keepForecasts() {
    if (gPronostics->Count() == 0)
        gPronostics->init();
    forecastPage page;
    page.init();
    page.txtN = {"12", "8", "9", "20"};
    page.txtP = {"4", "", "", "30"};
    page.txtPoints = {"3", "2", "1", "5"};
    page.clickButton(forecastPage::computePoints);
    page.tick(6, true);
    page.tick(8, true);
    ForecastTab tab(page);
    keep(tab, QStringLiteral("forecastTab"));
    page.clickHeader(1);
    page.clickHeader(1);
    keep(tab, QStringLiteral("forecastTab-sorted"));

    frmTestProno test;
    test.stepDown();
    test.stepUp();
    test.txtTirBefore = "10";
    test.txtTirAfter = "10";
    test.editNbrCount("12");
    test.clickCompute();
    TestPronoDialog dialog(test);
    keep(dialog, QStringLiteral("frmTestProno"));
}
