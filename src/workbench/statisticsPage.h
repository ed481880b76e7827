// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/numberBoard.h"
#include "sill/reportList.h"
#include "sill/selector.h"
#include "sill/upDown.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace boulix {

class windowFrame;
namespace modStats {
struct StatTable;
}

/// What the statistics page asks of its screen.
class statisticsView {
  public:
    virtual ~statisticsView() = default;

    /// The selected rows of `lvwStatsResult` as it is shown, counted from 1, ascending.
    virtual std::vector<std::int64_t> selectedRows() const = 0;
    /// Shows labels, buttons and range again.
    virtual void refresh() = 0;
    /// Shows the graph window, not modally, where it was when it was last closed.
    virtual void openGraph(frmGraph &graph) = 0;
    /// Closes it and tells where it was.
    virtual modStats::GraphWindowPos closeGraph() = 0;
};

/// The statistics page: the study range, the current type, the result as a list with a sentence,
/// and the board that collects interesting numbers.
class statisticsPage {
  public:
    /// The buttons of `tbarStats`.
    enum Button {
        computeType = 1,
        showGraph,
        withComplementary,
        exportResult,
        printResult,
        erase,
        playNumbers
    };

    explicit statisticsPage(windowFrame &window);
    statisticsPage(const statisticsPage &) = delete;
    statisticsPage &operator=(const statisticsPage &) = delete;

    std::string lblStatType;
    std::string lblStatDesc;
    std::string lblStatsStatus;
    /// A quiet line under the sentence: what the mean is, or that the list is of an earlier choice.
    std::string lblStatsNote;
    reportList lvwStatsResult;
    /// The user's own selection of numbers; no computation reads it.
    NumberBoard grdStatNbrSelector;
    upDown updStatStart;
    upDown updStatEnd;
    std::string txtStatStart;
    std::string txtStatEnd;
    std::string lblStatStartDate;
    std::string lblStatEndDate;
    bool frameStatsRangeEnabled = true;
    bool graphButtonEnabled = true;

    /// The numbers of the board are to be played: called by the button `playNumbers`.
    std::function<void()> numbersToPlay;

    void view(statisticsView *view) { view_ = view; }
    /// The defaults: type 1, graph up, without complementary, the whole base as range.
    void init();
    /// The base has changed: the range is the whole of it again.
    void followBase();

    std::int16_t currentType() const { return type_; }
    /// 0 up, 1 down.
    std::int16_t graphButton() const { return graphButton_; }
    /// 0 without, 1 with.
    std::int16_t complementaryChoice() const { return withCompl_; }
    /// Whether there are numbers on the board that can be played.
    bool canPlay() const { return grdStatNbrSelector.selectedCount() > 0; }
    /// The text of entry `type` of the menu of types.
    static std::string menuText(std::int16_t type);

    /// An entry of the menu of types was picked.
    void pickType(std::int16_t type);
    /// A click on a button; the two-state ones are handed with the state they go to. A failure
    /// ends the command and is shown.
    void clickButton(int index, bool down = false);
    /// The user has closed the graph window itself: its button comes up.
    void graphWindowClosed() { clickButton(showGraph, false); }
    /// The focus leaves a text box of the range.
    void leaveStart(const std::string &text);
    void leaveEnd(const std::string &text);
    /// A click on the header of a column sorts by its texts, ascending.
    void clickHeader(int column);
    /// A click anywhere in the list: the numbers of the selected rows join those of the board.
    void clickList();

    void ShowStatResult();
    void ShowStatGraph();
    void ShowSelectedCount();

  private:
    /// What a result depends on.
    struct Choice {
        std::int16_t type = 0;
        std::int16_t withCompl = 0;
        std::int32_t first = 0;
        std::int32_t last = 0;
        int base = 0; ///< how often it had changed
        bool operator==(const Choice &) const = default;
    };

    void runButton(int index, bool down);
    Choice choice() const;
    void measure(const std::shared_ptr<const modStats::StatTable> &table);
    void followChoice();
    void sayWhenEmpty();
    void compute();
    void setGraphButton(bool down);
    void closeGraph();
    void nameAxes() const;
    void showLabels();
    void showRangeDates();
    void leaveBox(const std::string &text, upDown &control, std::string &box);
    std::vector<std::int16_t> numbersOfRow(std::int64_t row) const;
    void refresh() const;

    windowFrame &window_;
    statisticsView *view_ = nullptr;
    selector selector_;
    int baseChanges_ = 0;
    Choice computed_;                 // what the list shows
    std::string measureNote_;         // of what the list shows
    std::unique_ptr<frmGraph> graph_; // while the graph window is open
    std::int16_t type_ = 1;
    std::int16_t graphButton_ = 0;
    std::int16_t withCompl_ = 0;
};

} // namespace boulix
