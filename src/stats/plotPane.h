// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/canvas.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace boulix {

/// The stretch of both axes that is to be seen.
struct PlotRange {
    float xMin = 0;
    float xMax = 1;
    float yMin = 0;
    float yMax = 1;
    bool operator==(const PlotRange &) const = default;
};

/// One curve: its points, x and y of the same size.
struct PlotCurve {
    std::vector<double> x;
    std::vector<double> y;
};

/// What the plotting control shows: curves, colours, range. The screen draws it and tells it when
/// the user zooms or drags.
class PlotPane {
  public:
    Color gridColor() const { return gridColor_; }
    void gridColor(Color color) { change(gridColor_, color); }
    Color curveColor() const { return curveColor_; }
    void curveColor(Color color) { change(curveColor_, color); }
    Color axesColor() const { return axesColor_; }
    void axesColor(Color color) { change(axesColor_, color); }
    bool showGrid() const { return showGrid_; }
    void showGrid(bool shown) { change(showGrid_, shown); }
    bool showAxes() const { return showAxes_; }
    void showAxes(bool shown) { change(showAxes_, shown); }
    /// 0 lines, 1 bars, 2 points, 3 crosses.
    std::int32_t graphType() const { return graphType_; }
    void graphType(std::int32_t type) { change(graphType_, type); }

    /// The limits of what is to be seen. Nothing checks that a minimum lies below its maximum.
    float xMin() const { return range_.xMin; }
    void xMin(float limit) { change(range_.xMin, limit); }
    float xMax() const { return range_.xMax; }
    void xMax(float limit) { change(range_.xMax, limit); }
    float yMin() const { return range_.yMin; }
    void yMin(float limit) { change(range_.yMin, limit); }
    float yMax() const { return range_.yMax; }
    void yMax(float limit) { change(range_.yMax, limit); }
    const PlotRange &range() const { return range_; }
    /// Whether the range follows the curves. Setting it true makes the range anew from them.
    bool autoRange() const { return autoRange_; }
    void autoRange(bool follows);
    /// The user has zoomed or dragged: another range is to be seen until the next curve.
    void userRange(const PlotRange &range);
    /// Shows the whole of the curves, whatever the range followed so far.
    void showAll();
    /// What a key does: the stretch in sight becomes larger or smaller about its middle, or moves
    /// by a part of itself, to the right and upwards where the parts are positive. Beyond
    /// `farthest` there is nothing to see, and far nearer than a unit nothing either: nothing
    /// happens there.
    void zoom(double factor);
    void move(double partOfX, double partOfY);
    static constexpr float farthest = 1e9F;

    /// What the axes count.
    const std::string &xTitle() const { return xTitle_; }
    const std::string &yTitle() const { return yTitle_; }
    void titles(const std::string &x, const std::string &y);

    /// The ordinate that chance lets expect, drawn across all curves; it goes with them.
    const std::optional<double> &expected() const { return expected_; }
    void expected(std::optional<double> y) { change(expected_, y); }

    void clearCurves();
    void addCurve(std::vector<double> x, std::vector<double> y);
    const std::vector<PlotCurve> &curves() const { return curves_; }

    /// Called after any change.
    std::function<void()> changed;
    /// Called after the user has moved the range, by `userRange` or `showAll`.
    std::function<void()> moved;

  private:
    template <class T>
    void change(T &field, const T &value) {
        field = value;
        notify();
    }
    void fitRange();
    void notify() const;

    std::vector<PlotCurve> curves_;
    std::optional<double> expected_;
    std::string xTitle_;
    std::string yTitle_;
    PlotRange range_;
    Color gridColor_;
    Color curveColor_;
    Color axesColor_;
    std::int32_t graphType_ = 0;
    bool showGrid_ = true;
    bool showAxes_ = true;
    bool autoRange_ = true;
};

} // namespace boulix
