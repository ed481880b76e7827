// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/upDown.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace boulix {

class frmGameList;
class frmOptimiser;
class game;
class gameComb;
class gameDef;
struct Guarantee;

/// What so many grids cost, with the unit.
std::string systemCost(std::int32_t grids);

/// What the tab of computed systems asks of its screen.
class systemMakerView {
  public:
    virtual ~systemMakerView() = default;

    /// Shows boxes and labels again.
    virtual void refresh() = 0;
    /// Shows the list of the user's systems modally until it is hidden.
    virtual void runGameList(frmGameList &window) = 0;
    /// Shows the search for smaller systems modally until it is hidden.
    virtual void runOptimiser(frmOptimiser &window) = 0;
};

/// An up-down control and the text box that shows its value.
class numberBox {
  public:
    upDown upDownControl;
    /// What stands in the box: the value, or what the user has typed and left there.
    std::string text;

    void init(std::int32_t first, std::int32_t last, std::int32_t value);
    /// The text becomes the value, brought between the limits, and is written anew. A text that
    /// does not begin with a number counts as 0.
    void confirm();
};

/// The tab of the game page on which new systems of play are computed, kept and managed.
class systemMaker {
  public:
    /// The buttons of `tbarCreateGame`.
    enum Button { addSystem = 1, listSystems, computeSystem, optimiseSystem };

    systemMaker();
    systemMaker(const systemMaker &) = delete;
    systemMaker &operator=(const systemMaker &) = delete;

    numberBox nFixed;   ///< `txtNFixedNbr` and `updnNFixed`
    numberBox nWin;     ///< `txtWinNbr` and `updnNWin`; stays above `nFixed`
    numberBox nChoosen; ///< `txtChoosenNbr` and `updnNChoosen`
    std::string lblnGameDefComb;
    std::string lblCost;

    /// Called with the rows of a system when it has been computed.
    std::function<void(const game &rows)> computed;
    /// Called when a system was added, removed or renamed.
    std::function<void()> listsChanged;

    void init();
    void view(systemMakerView *view) { view_ = view; }
    /// Does what a button of `tbarCreateGame` says.
    void runButton(int index);
    /// Shows the system of a file as if it had just been computed, so that it can be kept.
    void open(const std::string &fullName);

  private:
    void add();
    void manage();
    void confirmValues();
    void compute();
    void optimise();
    void take(const Guarantee &guarantee, const std::vector<gameComb> &rows);
    void showSystem();
    void refresh() const;

    systemMakerView *view_ = nullptr;
    std::shared_ptr<gameDef> newGameDef_; // the system last computed
    std::int16_t createNFixed_ = 0;
    std::int16_t createNWin_ = 0;
    std::int16_t createNChosen_ = 0;
};

} // namespace boulix
