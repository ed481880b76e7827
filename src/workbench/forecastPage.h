// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

class frmTestProno;
class pronos;

/// What the forecast page asks of its screen.
class forecastView {
  public:
    virtual ~forecastView() = default;

    /// Shows titles, boxes and ticks again.
    virtual void refresh() = 0;
    /// Shows the test window modally until the user closes it.
    virtual void runTestWindow(frmTestProno &window) = 0;
};

/// The page of the forecasts: the four rules with their parameters, and the points of the 49
/// numbers, which can be ticked and handed to the selection of a game.
class forecastPage {
  public:
    /// The buttons of `tBarPronos`.
    enum Button { loadRules = 1, saveRules, computePoints, testOnPast };

    static constexpr int ruleCount = 4;
    /// What the boxes may hold.
    static constexpr const char *countHolds = "un nombre entier de 1 à 32767";
    static constexpr const char *pointsHold = "un nombre entier de 1 à 2147483647";
    /// The texts of one rule's controls, by rule.
    using RuleTexts = std::array<std::string, ruleCount>;

    forecastPage() = default;
    forecastPage(const forecastPage &) = delete;
    forecastPage &operator=(const forecastPage &) = delete;

    RuleTexts lblPronoTitle;
    RuleTexts txtN, txtP, txtPoints; ///< what stands in the boxes; the user writes here
    /// Whether the N, and the P, of a rule is shown, box and caption.
    std::array<bool, ruleCount> visibleN{};
    std::array<bool, ruleCount> visibleP{};
    reportList lvwPronoResults; ///< one line for each number, with a tick

    /// Shows the rules and lists the numbers, without points and ticks.
    void init();
    void view(forecastView *view) { view_ = view; }

    /// A click on a button of `tBarPronos`. A failure ends the command and is shown.
    void clickButton(int index);
    /// A click on the header of a column: sorts the list by its texts, ascending; a second click
    /// turns the order round, so that the best numbers come to the top.
    void clickHeader(int column);

    /// Whether the line at the place `row` of the list, counted from 0 as it is shown, is ticked.
    bool ticked(std::int64_t row) const;
    void tick(std::int64_t row, bool on);
    /// The numbers of the ticked lines, in the order in which they are shown.
    std::vector<std::int16_t> tickedNumbers() const;

  private:
    void runButton(int index);
    void load();
    void save();
    void compute();
    void takeBoxes(int rule);
    void showPoints();
    void refresh() const;

    forecastView *view_ = nullptr;
    std::array<std::string, 50> points_; // by number
    std::array<bool, 50> ticked_{};      // by number
};

} // namespace boulix
