// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/frmProgress.h"
#include "sill/upDown.h"
#include "winnings/baseMark.h"
#include "winnings/gameWin.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

class frmChances;
class frmRandomComb;
class frmWinDate;
class gameResult;

/// What the winnings sub-tabs ask of their screen.
class winningsView {
  public:
    virtual ~winningsView() = default;

    /// Shows labels, boxes and buttons again. `pgrScanDB` moves while a check runs the event
    /// queue: the screen follows it by itself.
    virtual void refresh() = 0;
    /// Shows the window modally until the user closes it.
    virtual void runRandomComb(frmRandomComb &dialog) = 0;
    virtual void runWinDate(frmWinDate &window) = 0;
    virtual void runChances(frmChances &window) = 0;
};

/// The sub-tabs of the game page that show what the current game has won: draw by draw, and over
/// the base or over random draws; and the prize table. The labels of the ranks are the same ones
/// on all of them, in the frame of the sub-tab that showed them last.
class winningsPage {
  public:
    static constexpr int ranks = 11;
    /// The sub-tabs, by their index in `TabGame`; the one behind them is no matter of this class.
    enum SubTab { verification, performance, report };
    /// The buttons of `tbarPerfo` and of `tbarRapp`.
    enum PerfoButton { checkBase = 1, checkRandomDraws, showChances };
    enum RappButton { loadTable = 1, saveTable, saveDefault };
    /// A text for each rank, index 0 for rank 1.
    using RankTexts = std::array<std::string, ranks>;

    winningsPage();
    winningsPage(const winningsPage &) = delete;
    winningsPage &operator=(const winningsPage &) = delete;

    RankTexts txtRapPrice; ///< the boxes of the prize table; the user writes here
    RankTexts lblVerWinTitle;
    RankTexts lblVerComb;
    RankTexts lblVerPrice;
    std::string lblVerWinTot;
    /// Below the ranks of the performance tab: what was won in all, what the game has cost, and the
    /// rest. Empty as long as no check has filled them.
    std::string lblPerfSum;
    std::string lblPerfStake;
    std::string lblPerfBalance;
    upDown updVerifComb; ///< the position of the draw being verified
    std::string txtVerifComb;
    std::string lblVerifComb;
    std::array<std::string, 6> lblVerifNum; ///< its six numbers
    std::string lblVerifCompl;
    progressBar pgrScanDB;

    /// Which sub-tab's frame holds the titles, and the counts and amounts.
    SubTab titleFrame() const { return titleFrame_; }
    SubTab resultFrame() const { return resultFrame_; }
    /// Whether the buttons `cmdPerfDate` can be clicked.
    bool cmdPerfDateEnabled() const { return datesKnown_; }
    /// Whether a check is under way: all buttons are dead meanwhile.
    bool busy() const { return busy_; }

    void view(winningsView *view) { view_ = view; }
    /// Names the ranks.
    void init();
    /// The boxes show the prize table.
    void showPrizes();
    /// The base has changed: its last draw is the one to verify.
    void followBase();
    /// The change routine of `updVerifComb`: shows the draw and, on the first sub-tab, what the
    /// game wins in it. Nothing on an empty base.
    void showVerification();

    /// The user has gone to the sub-tab `index` of `TabGame`, 0 to 3. Then the amounts in the boxes
    /// come into force: what the first sub-tab shows at once is still reckoned with the old ones.
    void clickSubTab(int index);
    /// The focus leaves `txtVerifComb`: a position that exists is taken.
    void leaveVerifComb(const std::string &text);
    // Clicks on buttons; a failure ends the command and is shown.
    void clickPerfo(int index);
    void clickRapp(int index);
    /// The button `cmdPerfDate` of an index from 0.
    void clickPerfDate(int index);

  private:
    void verifyDraw();
    void checkOverBase();
    void checkOverRandomDraws();
    void tellChances();
    void runRapp(int index);
    void takeBoxes();
    void showCheck(const gameResult &result, std::int64_t draws);
    void showBalance(const gameResult &result, std::int64_t draws);
    void showRanks(const gameResult &result);
    void blankResults();
    void refresh() const;

    winningsView *view_ = nullptr;
    int subTab_ = verification;
    SubTab titleFrame_ = verification;
    SubTab resultFrame_ = verification;
    bool datesKnown_ = false;
    bool busy_ = false;
    std::vector<std::vector<gameWin>> wins_; // of the last check over the base
    std::vector<std::int32_t> winsCount_;
    BaseMark checkedBase_; ///< the base that those wins stand in
};

} // namespace boulix
