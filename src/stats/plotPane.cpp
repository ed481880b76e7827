// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/plotPane.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace boulix {

namespace {

/// The part of the height that stays free above the highest point.
constexpr double headroom = 0.05;

} // namespace

void PlotPane::autoRange(bool follows) {
    autoRange_ = follows;
    if (autoRange_)
        fitRange();
    notify();
}

void PlotPane::userRange(const PlotRange &range) {
    change(range_, range);
    if (moved)
        moved();
}

void PlotPane::showAll() {
    fitRange();
    notify();
    if (moved)
        moved();
}

void PlotPane::titles(const std::string &x, const std::string &y) {
    xTitle_ = x;
    yTitle_ = y;
    notify();
}

void PlotPane::clearCurves() {
    curves_.clear();
    expected_.reset();
    notify();
}

void PlotPane::addCurve(std::vector<double> x, std::vector<double> y) {
    curves_.push_back({std::move(x), std::move(y)});
    if (autoRange_)
        fitRange();
    notify();
}

/// All curves with one unit of room at their sides, the zero of the ordinate, and a little air
/// above. Without a point the range stays.
void PlotPane::fitRange() {
    double left = std::numeric_limits<double>::max();
    double right = std::numeric_limits<double>::lowest();
    double low = 0;
    double high = 0;
    for (const PlotCurve &curve : curves_) {
        for (const double x : curve.x) {
            left = std::min(left, x);
            right = std::max(right, x);
        }
        for (const double y : curve.y) {
            low = std::min(low, y);
            high = std::max(high, y);
        }
    }
    if (left > right)
        return;
    const double height = high > low ? (high - low) * (1 + headroom) : 1;
    range_ = {static_cast<float>(left - 1), static_cast<float>(right + 1), static_cast<float>(low),
              static_cast<float>(low + height)};
}

void PlotPane::notify() const {
    if (changed)
        changed();
}

} // namespace boulix
