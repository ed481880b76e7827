// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/canvas.h"
#include "sill/reportList.h"
#include "sill/upDown.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

class NumberBoard;

/// What the page of the analysis by draw asks of its screen.
class drawAnalysisView {
  public:
    virtual ~drawAnalysisView() = default;

    /// Shows labels and up-down again.
    virtual void refresh() = 0;
};

/// The page that takes one draw apart: its numbers as labels, the analyses chosen from a list,
/// their answers. A click on a label marks its number on the board of the statistics page.
class drawAnalysisPage {
  public:
    /// A label of a number: its text, the ground it stands on, whether the board holds it.
    struct NumberLabel {
        std::string caption;
        Color ground;
        bool selected = false;
    };

    /// `board` is the board of the statistics page.
    explicit drawAnalysisPage(NumberBoard &board);
    drawAnalysisPage(const drawAnalysisPage &) = delete;
    drawAnalysisPage &operator=(const drawAnalysisPage &) = delete;

    upDown updnTirNbr; ///< the position of the draw in the base
    std::string lblTirInfo;
    /// Index 0 the complementary number, 1 to 6 the six numbers.
    std::array<NumberLabel, 7> lblNumTir;
    reportList lvwTirStat;

    void view(drawAnalysisView *view) { view_ = view; }
    /// Sets the columns.
    void init();
    /// The base has changed: the newest draw is shown.
    void followBase();
    /// Which analyses are selected, counted from 1, ascending.
    void selectAnalyses(std::vector<std::int32_t> analyses);
    /// A click on `lblNumTir(k)`: its number changes sides on the board.
    void clickNumber(std::size_t k);
    /// The text box of the up-down is left: a whole number goes to the control.
    void leaveBox(const std::string &text);

    /// The whole refresh for the draw that the up-down stands on; nothing below position 1.
    void ShowDrawAnalysis();

  private:
    void showNumbers(std::int32_t draw);
    void fillList(std::int32_t draw);
    void colour(std::size_t k, bool selected);
    void refresh() const;

    NumberBoard &board_;
    drawAnalysisView *view_ = nullptr;
    std::vector<std::int32_t> analyses_;
};

} // namespace boulix
