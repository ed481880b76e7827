// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/graphSettings.h"

#include "core/settings.h"
#include "core/text.h"

#include <string>

namespace boulix::modStats {

namespace {

constexpr const char *section = "graphique";
constexpr const char *typeKey = "type";
constexpr const char *axesKey = "visualisation_axes";
constexpr const char *gridKey = "visualisation_grille";

bool isOn(const char *key) {
    return upperCased(settings::read(section, key, "on")) != "OFF";
}

const char *onOff(bool on) {
    return on ? "on" : "off";
}

} // namespace

void InitGraphTypes() {
    graphType = 0;
    graphShowGrid = true;
    graphShowAxes = true;
    graphAutoRange = true;
    graphXMin = -10;
    graphXMax = 10;
    graphYMin = -10;
    graphYMax = 100;
    graphWindowPos = {};
    LoadGraphParam();
}

void LoadGraphParam() {
    const std::string type = upperCased(settings::read(section, typeKey, "barres"));
    for (std::size_t i = 0; i < graphTypeNames.size(); ++i)
        if (type == upperCased(graphTypeNames[i]))
            graphType = static_cast<std::int16_t>(i);
    graphShowAxes = isOn(axesKey);
    graphShowGrid = isOn(gridKey);
}

void SaveGraphParam() {
    settings::write(section, typeKey, graphTypeNames[static_cast<std::size_t>(graphType)]);
    settings::write(section, axesKey, onOff(graphShowAxes));
    settings::write(section, gridKey, onOff(graphShowGrid));
}

} // namespace boulix::modStats
