// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "keep.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "ui/stats/graphParamDialog.h"
#include "ui/stats/graphWindow.h"

#include <QString>

#include <cmath>
#include <vector>

using namespace boulix;

void keepGraph() {
    modStats::InitGraphTypes();
    frmGraph rules;
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 1; i <= 49; ++i) {
        x.push_back(i);
        y.push_back(600 + std::round(40 * std::sin(i * 1.7)));
    }
    rules.plot.titles("N°", "Fréquence");
    rules.plot.expected(594.86);
    rules.plot.addCurve(x, y);
    GraphWindow window(rules);
    for (std::int16_t type = 0; type < 4; ++type) {
        rules.selectGraphType(type);
        keep(window, QStringLiteral("frmGraph-%1").arg(type));
    }
    frmGraphParam settings;
    GraphParamDialog dialog(settings);
    keep(dialog, QStringLiteral("frmGraphParam"));
}
