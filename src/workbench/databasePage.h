// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/numberBoard.h"
#include "sill/reportList.h"
#include "workbench/drawFinder.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace boulix {

struct KeptDraws;
class windowFrame;

/// What the database page asks of its screen.
class databaseView {
  public:
    virtual ~databaseView() = default;

    /// The selected rows of `lvwDBcomb`, counted from 1, ascending.
    virtual std::vector<std::int64_t> selectedRows() const = 0;
    /// Scrolls to the row, counted from 1; with `select` it becomes the selected one.
    virtual void goToRow(std::int64_t row, bool select) = 0;
    /// Shows the labels again.
    virtual void refresh() = 0;
};

/// The page that shows the base as a list and the clicked draw on a board. The screen draws the
/// public state and hands over the clicks.
class databasePage {
  public:
    /// The buttons of `tbarDB`.
    enum Button { importDraws = 1, enterDraw, modifyDraw, removeDraw, printBase, exportBase };

    explicit databasePage(windowFrame &window) : window_(window) {}
    databasePage(const databasePage &) = delete;
    databasePage &operator=(const databasePage &) = delete;

    reportList lvwDBcomb;
    NumberBoard grdDB;
    std::string lblDBCombDesc;
    drawFinder finder;

    /// Sets the columns.
    void init();
    /// The screen to talk to; nothing before it exists.
    void view(databaseView *view) { view_ = view; }

    /// One row for each draw, in collection order. A draw whose date cannot be shown fails with
    /// `Failure::overflow`; the rows before it stand in the list.
    void fillList();
    /// The position of the first selected row, 0 when no row is selected.
    std::int32_t getSelectedDraw() const;
    /// A click on the row of the draw at `position`, 1 to the number of rows: the board and the
    /// label show it.
    void clickRow(std::int32_t position);
    /// The draw on the board, 0 while there is none.
    std::int32_t shownDraw() const { return shown_; }
    /// The text of the search line changes: the newest draw that it finds is selected.
    void typeSearch(const std::string &text);
    /// On to the next older draw found, back to the next newer one.
    void findNext();
    void findPrevious();
    /// A click on a button of `tbarDB`. A failure ends the command and is shown; list, status and
    /// the other pages then stay as after a cancelled command.
    void clickButton(int index);

  private:
    void goTo(std::int32_t position);
    void markFound();
    bool runButton(int index);
    /// Runs a command that may change the base, and makes its change one that can be undone, also
    /// where the command fails. What the command answers, and whether it has changed a draw.
    struct Outcome {
        bool carriedThrough = false;
        bool changed = false;
    };
    Outcome change(const std::string &name, const std::function<bool()> &command);
    bool record(const std::string &name, KeptDraws before);
    void exchange(KeptDraws &other);
    bool importDrawsFrom(const std::function<bool()> &import);
    void importSample();
    void sayWhenEmpty();
    bool enter();
    bool modifySelected();
    bool removeSelected();

    windowFrame &window_;
    databaseView *view_ = nullptr;
    std::int32_t shown_ = 0;
};

} // namespace boulix
