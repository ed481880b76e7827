// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/plotPane.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace boulix {

namespace {

/// The part of the height that stays free above the highest point.
constexpr double headroom = 0.05;

/// Whether a stretch of an axis lies where curves are, and is long enough for single precision.
bool canBeSeen(float low, float high) {
    const float size = std::max(std::abs(low), std::abs(high));
    return size < PlotPane::farthest && high - low > std::max(size, 1.0F) * 1e-4F;
}

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

void PlotPane::zoom(double factor) {
    const auto scaled = [factor](float &low, float &high) {
        const double middle = (double{low} + high) / 2;
        const double half = (double{high} - low) / 2 * factor;
        low = static_cast<float>(middle - half);
        high = static_cast<float>(middle + half);
    };
    PlotRange range = range_;
    scaled(range.xMin, range.xMax);
    scaled(range.yMin, range.yMax);
    if (canBeSeen(range.xMin, range.xMax) && canBeSeen(range.yMin, range.yMax))
        userRange(range);
}

void PlotPane::move(double partOfX, double partOfY) {
    const auto shifted = [](float &low, float &high, double part) {
        const double step = (double{high} - low) * part;
        low = static_cast<float>(low + step);
        high = static_cast<float>(high + step);
    };
    PlotRange range = range_;
    shifted(range.xMin, range.xMax, partOfX);
    shifted(range.yMin, range.yMax, partOfY);
    if (canBeSeen(range.xMin, range.xMax) && canBeSeen(range.yMin, range.yMax))
        userRange(range);
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
