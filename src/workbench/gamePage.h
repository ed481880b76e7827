// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"
#include "workbench/gameCommand.h"
#include "workbench/gameDesign.h"
#include "workbench/gameDocument.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace boulix {

class eliminatorPage;

/// What the game page asks of its screen.
class gameView : public gameDesignView {
  public:
    /// Shows what stands under the list again, and which buttons act.
    void refresh() override = 0;
    /// The selected rows of `lvwGame`, counted from 1, ascending.
    virtual std::vector<std::int64_t> selectedRows() const = 0;
    virtual bool anyRowSelected() const = 0;
    /// Shows the sub-tab at `index`, from 0.
    virtual void showSide(int index) = 0;
};

/// The page on which a game is composed. This half is the left side, the game of the user with
/// its toolbar; `design` is the right side, where grids and systems are made.
class gamePage {
  public:
    /// The buttons of `tbarGame`. The last one only opens its menu.
    enum Button { loadGame = 1, clearGame, removeGrids, eliminateGrids, saveGame, printGame };
    static const std::array<ControlText, 6> tbarGame;
    /// The entries of the menu of "Imprimer".
    enum PrintEntry { printList = 1, printSlips, printCanvas };
    static const std::array<const char *, 3> printMenu;
    /// The sub-tabs on the right side; the last one is `design`.
    static const std::array<const char *, 4> TabGame;
    static constexpr int designSide = 3;

    /// `rules` is the page whose values the elimination takes.
    explicit gamePage(eliminatorPage &rules);
    gamePage(const gamePage &) = delete;
    gamePage &operator=(const gamePage &) = delete;

    reportList lvwGame;
    gameDesign design;
    gameDocument document; ///< the file of the game
    /// Called when the list shows a new game, so that the game is verified anew.
    std::function<void()> gameShown;
    /// Called with the full name of a file that the game was read from or written to.
    std::function<void(const std::string &)> fileUsed;

    /// Sets the columns and the state of all controls at the start.
    void init();
    void view(gameView *view);

    /// Whether `lvwGame` is kept filled; ticking the box fills it.
    bool chkUpdateList() const { return chkUpdateList_; }
    void tickUpdateList(bool on);
    /// Shows `currentGame` in the list, behind a progress window. A cancel leaves the list empty
    /// and the game whole.
    void refill();

    /// What stands under the list: how many grids there are and what they cost, and the file.
    std::string lblCount() const;
    std::string lblFile() const;
    /// Whether there are grids that no file holds.
    bool hasUnsavedGrids() const;
    /// Why a button of `tbarGame` can do nothing now; empty for one that can.
    std::string whyOff(int button) const;
    /// The price or its unit has changed.
    void showPrice() const { refresh(); }

    /// The next selection is to begin with the numbers of `source`: its box is ticked, and shown.
    void playFrom(gameDesign::Source source);
    /// A click on a button of `tbarGame`. A failure ends the command and is shown, and the list
    /// then shows what the game holds.
    void clickButton(int index);
    /// A click on an entry of the menu of "Imprimer"; nothing happens while the game is empty.
    void clickPrint(int entry);

  private:
    void runButton(int index);
    void load();
    void clear();
    void removeSelected();
    void eliminate();
    void save();
    void add(const game &made);
    void change(const char *name, GameStep step, const GameCommand::Command &command);
    void showGrids();
    void tellEmpty();
    void refresh() const;

    eliminatorPage &rules_;
    gameView *view_ = nullptr;
    bool chkUpdateList_ = true;
};

} // namespace boulix
