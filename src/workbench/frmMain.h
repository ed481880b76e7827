// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/databasePage.h"
#include "workbench/drawAnalysisPage.h"
#include "workbench/eliminatorPage.h"
#include "workbench/forecastPage.h"
#include "workbench/gamePage.h"
#include "workbench/memory.h"
#include "workbench/statisticsPage.h"
#include "workbench/windowFrame.h"
#include "workbench/winningsPage.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

/// What the frame asks of the main window on the screen.
class frmMainView {
  public:
    virtual ~frmMainView() = default;

    /// Shows caption, status panels and the visible page again.
    virtual void refresh() = 0;
    /// Shows the sub-tab `side`, from 0, of the page of the games.
    virtual void goToSide(int side) = 0;
};

/// A tab of the main window.
struct TabText {
    const char *caption;
    const char *toolTip;
};

/// The rules of the main window: its load sequence, its pages, its status bar, how it quits. The
/// screen draws the public state and hands over the clicks.
class frmMain : public windowFrame {
  public:
    static constexpr int tabCount = 6;
    static const std::array<TabText, tabCount> tabs;

    frmMain();

    std::string caption;
    std::array<std::string, 2> StatusBar;
    databasePage database;
    statisticsPage statistics;
    drawAnalysisPage analysis;
    eliminatorPage elimination;
    gamePage games;
    winningsPage winnings;
    forecastPage forecasts;
    Memory memory; ///< of the last run, and for the next one

    void view(frmMainView *view) { view_ = view; }
    /// The load sequence, run once before the window is shown.
    void load();
    /// The index of the visible page, 0 to 5.
    std::int16_t visiblePage() const { return visiblePage_; }
    /// A click on the tab at `position`, 1 to 6.
    void clickTab(int position);
    /// The entries `mnuUndo` and `mnuRedo`: the last command is taken back, or done again. A
    /// failure is shown.
    void undo();
    void redo();
    /// The entry `mnuHelp`.
    void showHelp();
    /// The window is about to close: asks the user, and asks again where the base in memory has
    /// draws that its file lacks. True when it may; the other windows are gone then and the log is
    /// closed.
    bool queryClose();

    /// Opens each of the files that the user has dropped on the window, or named at the start, as
    /// the dialog of its page does, and goes to that page. Those of no known kind are named in one
    /// message.
    void openFiles(const std::vector<std::string> &fullNames);
    /// Keeps what the next run shall know. `memory` has the window's place and columns by then.
    void keepMemory();

    void frmUpdateDBList() override;
    void showDrawCount() override;
    void showSelectedCount(const std::string &text) override;

  private:
    void frmInitTab();
    void initTabs();
    void fillDBList();
    std::string unsavedGame() const;
    bool mayLeaveBase();
    void playNumbers();
    void recall();
    bool openFile(const std::string &fullName);
    void goToSide(int side);
    void refresh() const;

    frmMainView *view_ = nullptr;
    std::int16_t visiblePage_ = 0;
};

} // namespace boulix
