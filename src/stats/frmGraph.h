// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stats/plotPane.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace boulix {

/// The rules of the graph window: the curve, and beside it the settings of the run. The screen
/// shows the public state and hands over what the user does.
class frmGraph {
  public:
    static constexpr const char *caption = "Graphe des statistiques";
    /// The limits by the order of their text boxes: `txtXMin`, `txtXMax`, `txtYMin`, `txtYMax`.
    enum Limit { xMin, xMax, yMin, yMax };
    static constexpr std::size_t limitCount = 4;

    /// The load: the settings go into the controls and into the plotting control.
    frmGraph();
    frmGraph(const frmGraph &) = delete;
    frmGraph &operator=(const frmGraph &) = delete;

    PlotPane plot;
    std::int16_t cmbGraphType;
    bool chkShowAxes;
    bool chkShowGrid;
    bool optAutoRange;
    bool frameManualRangeEnabled;
    std::array<std::string, limitCount> txtLimit;

    void selectGraphType(std::int16_t index);
    void clickShowAxes(bool shown);
    void clickShowGrid(bool shown);
    // Automatic and manual range; either way the range on show is read back into the text boxes.
    void clickAutoRange();
    void clickManualRange();
    /// The text box of a limit loses the focus. A blank text changes nothing; text that is no
    /// number reads as 0; a number beyond single precision fails with `Failure::overflow`.
    void leaveLimit(Limit limit, const std::string &text);

    /// Called after a change of the controls' state.
    std::function<void()> changed;

  private:
    void chooseRange(bool automatic);
    void followUser();
    void sendLimit(Limit limit);
    void readBackLimits();
    void showLimits();
};

/// The rules of the window that sets the defaults, the only one that saves them.
class frmGraphParam {
  public:
    static constexpr const char *caption = "Paramètres graphiques";

    /// Takes the current settings.
    frmGraphParam();

    std::int16_t cmbGraphType;
    bool chkShowAxes;
    bool chkShowGrid;

    /// `CMD_OK`: takes the three values and saves them.
    void clickOK() const;
};

} // namespace boulix
