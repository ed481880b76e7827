// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/game.h"
#include "games/modGame.h"
#include "sill/numberBoard.h"
#include "sill/reportList.h"
#include "sill/selector.h"
#include "workbench/gameCommand.h"
#include "workbench/systemMaker.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace boulix {

/// A tab or a button as it is shown.
struct ControlText {
    const char *caption;
    const char *toolTip;
};

/// What this side of the game page asks of its screen.
class gameDesignView : public systemMakerView {
  public:
    /// Shows tabs, boxes, labels and the drop-down list again.
    void refresh() override = 0;
};

/// The side of the game page on which grids are made: a method is picked, numbers are selected,
/// grids are computed into `constructionGame` and added to `currentGame`. The last tab computes
/// new systems of play.
class gameDesign {
  public:
    /// The tabs of `tabGameDesign`.
    enum Tab { reducedTab, fixedTab, manualTab, randomTab, selectorsTab, createTab };
    static const std::array<ControlText, 6> tabGameDesign;
    /// The buttons of `tbarGameDef`, which the first four tabs share.
    enum Button { addGame = 1, selectNumbers, clearGame, computeGame };
    static const std::array<ControlText, 4> tbarGameDef;
    /// The boxes of `chkSelect`, and the label above them.
    enum Source { statisticNumbers, missingTriplets, forecastNumbers };
    static const std::array<const char *, 3> chkSelectTexts;
    static constexpr const char *chkSelectLabel = "Sélectionner les numéros";

    /// `addGrids` puts the grids of a game into the user's own.
    explicit gameDesign(std::function<void(const game &)> addGrids);
    gameDesign(const gameDesign &) = delete;
    gameDesign &operator=(const gameDesign &) = delete;

    reportList lvwGameDef;
    NumberBoard grdGameDef;     ///< the selection, closed to the user's clicks
    std::string txtNrandomGrid; ///< the user writes here
    std::array<bool, 3> chkSelect{};
    systemMaker systems; ///< the tab "Créer"

    /// The numbers marked on the board of the statistics, in the order of marking.
    std::function<std::vector<std::int16_t>()> markedInStatistics;
    /// The numbers ticked in the list of the forecasts, in the order of its lines.
    std::function<std::vector<std::int16_t>()> tickedInForecasts;

    void init();
    void view(gameDesignView *view);

    int currentTab() const { return currentTab_; }
    /// A click on the tab at `index`, 0 to 5.
    void clickTab(int index);
    /// The systems of the list in use, and the one chosen: its index from 0, -1 for none.
    const std::vector<std::string> &cmbGameType() const { return cmbGameType_; }
    int gameType() const { return gameType_; }
    void chooseGameType(int index) { gameType_ = index; }
    /// A click on a button of `tbarGameDef` or of `tbarCreateGame`. A failure ends the command
    /// and is shown.
    void clickButton(int index);
    void clickCreateButton(int index);
    /// What stands under the list: how many grids it shows and what they cost.
    std::string lblCount() const;
    /// Why a button of `tbarGameDef` can do nothing now; empty for one that can.
    static std::string whyOff(int button);
    /// Goes to the tab "Créer" and shows the system of a file there.
    void openSystem(const std::string &fullName);
    /// What the next selections begin with.
    const selector &gameSelector() const { return gameSelector_; }

  private:
    void runButton(int index);
    void add();
    void select();
    void clear();
    void compute();
    bool computeByTab(std::int32_t position);
    std::int16_t randomCount() const;
    void change(const char *name, GameStep step, const GameCommand::Command &command);
    void announceComputed(std::int32_t before, int methodBefore) const;
    std::string whyNothingAdded(const std::string &earlier) const;
    void prepareSelection();
    void fillGameTypes();
    void appendGameTypes();
    void appendLabels(const modGame::GameList &list);
    void list(const game &grids);
    void clearList();
    void listMade();
    void tellEmpty();
    void showSelection();
    void refresh();

    std::function<void(const game &)> addGrids_;
    gameDesignView *view_ = nullptr;
    selector gameSelector_;
    int currentTab_ = reducedTab;
    int lastGameType_ = reducedTab;
    std::vector<std::string> cmbGameType_;
    int gameType_ = -1;
    /// What `lvwGameDef` shows. The list keeps it when the game that it came from is emptied.
    game listed_;
};

} // namespace boulix
