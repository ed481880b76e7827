// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/frmGraph.h"

#include "core/failure.h"
#include "core/numbers.h"
#include "core/text.h"
#include "sill/typedField.h"
#include "stats/graphSettings.h"

#include <algorithm>
#include <cmath>

namespace boulix {

namespace {

constexpr Color axesBlue{0, 0, 255};
constexpr Color gridGrey{190, 190, 190};
constexpr Color curveRed{255, 0, 0};

/// The setting that belongs to a limit.
float &setting(frmGraph::Limit limit) {
    switch (limit) {
    case frmGraph::xMin:
        return modStats::graphXMin;
    case frmGraph::xMax:
        return modStats::graphXMax;
    case frmGraph::yMin:
        return modStats::graphYMin;
    case frmGraph::yMax:
        break;
    }
    return modStats::graphYMax;
}

/// The text box of a limit.
TypedField fieldOf(frmGraph::Limit limit) {
    constexpr std::array<const char *, frmGraph::limitCount> names = {"txtXMin", "txtXMax",
                                                                      "txtYMin", "txtYMax"};
    constexpr std::array<const char *, frmGraph::limitCount> captions = {"X min", "X max", "Y min",
                                                                         "Y max"};
    return {names[limit], captions[limit], "un nombre d'au plus 38 chiffres"};
}

/// The number at the start of `text`; the comma of a French keyboard counts as the dot.
float limitFrom(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    const auto number = static_cast<float>(numericPrefix(text));
    if (!std::isfinite(number))
        fail(Failure::overflow);
    return number;
}

} // namespace

frmGraph::frmGraph()
    : cmbGraphType(modStats::graphType), chkShowAxes(modStats::graphShowAxes),
      chkShowGrid(modStats::graphShowGrid), optAutoRange(modStats::graphAutoRange),
      frameManualRangeEnabled(!modStats::graphAutoRange) {
    plot.axesColor(axesBlue);
    plot.gridColor(gridGrey);
    plot.curveColor(curveRed);
    plot.graphType(cmbGraphType);
    plot.autoRange(optAutoRange);
    if (!optAutoRange)
        for (const Limit limit : {xMin, xMax, yMin, yMax})
            sendLimit(limit);
    plot.showAxes(chkShowAxes);
    plot.showGrid(chkShowGrid);
    showLimits();
    plot.moved = [this] { followUser(); };
}

void frmGraph::selectGraphType(std::int16_t index) {
    cmbGraphType = index;
    modStats::graphType = index;
    plot.graphType(index);
}

void frmGraph::clickShowAxes(bool shown) {
    chkShowAxes = shown;
    modStats::graphShowAxes = shown;
    plot.showAxes(shown);
}

void frmGraph::clickShowGrid(bool shown) {
    chkShowGrid = shown;
    modStats::graphShowGrid = shown;
    plot.showGrid(shown);
}

void frmGraph::clickAutoRange() {
    chooseRange(true);
}

void frmGraph::clickManualRange() {
    chooseRange(false);
}

void frmGraph::chooseRange(bool automatic) {
    optAutoRange = automatic;
    modStats::graphAutoRange = automatic;
    frameManualRangeEnabled = !automatic;
    plot.autoRange(automatic);
    readBackLimits();
    if (changed)
        changed();
}

void frmGraph::leaveLimit(Limit limit, const std::string &text) {
    if (trimmed(text).empty())
        return;
    const float number = readField(fieldOf(limit), text, limitFrom);
    setting(limit) = number;
    txtLimit[limit] = number == 0 ? "0" : text; // what was no number does not seem to be one
    sendLimit(limit);
    if (changed)
        changed();
}

/// The limits of the manual range are those to be seen: a box that is left again must not bring
/// back the range from before.
void frmGraph::followUser() {
    if (optAutoRange)
        return;
    readBackLimits();
    if (changed)
        changed();
}

void frmGraph::sendLimit(Limit limit) {
    switch (limit) {
    case xMin:
        plot.xMin(modStats::graphXMin);
        break;
    case xMax:
        plot.xMax(modStats::graphXMax);
        break;
    case yMin:
        plot.yMin(modStats::graphYMin);
        break;
    case yMax:
        plot.yMax(modStats::graphYMax);
        break;
    }
}

/// The settings and the text boxes take the range that is to be seen.
void frmGraph::readBackLimits() {
    modStats::graphXMin = plot.xMin();
    modStats::graphXMax = plot.xMax();
    modStats::graphYMin = plot.yMin();
    modStats::graphYMax = plot.yMax();
    showLimits();
}

void frmGraph::showLimits() {
    for (const Limit limit : {xMin, xMax, yMin, yMax})
        txtLimit[limit] = plainDecimal(setting(limit));
}

frmGraphParam::frmGraphParam()
    : cmbGraphType(modStats::graphType), chkShowAxes(modStats::graphShowAxes),
      chkShowGrid(modStats::graphShowGrid) {}

void frmGraphParam::clickOK() const {
    modStats::graphType = cmbGraphType;
    modStats::graphShowAxes = chkShowAxes;
    modStats::graphShowGrid = chkShowGrid;
    modStats::SaveGraphParam();
}

} // namespace boulix
