// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/slipRun.h"
#include "sill/upDown.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace boulix {

/// The rules of the window in which the user chooses the grids and the options of a print run
/// and sees each slip before. The screen shows the fields under their names, hands the clicks
/// over, draws the slip with `drawPicture` whenever `changed` is called, and hides the window
/// once it is `hidden`; the answers stay readable.
class frmPrintGridPreview {
  public:
    static constexpr const char *caption = "Prévisualisation de l'impression";

    /// Opens on all of a game's `count` grids, with no option taken.
    frmPrintGridPreview(std::int32_t count, slipRun::GridDrawer drawGrid);
    frmPrintGridPreview(const frmPrintGridPreview &) = delete;
    frmPrintGridPreview &operator=(const frmPrintGridPreview &) = delete;

    upDown updnBeg; ///< the first grid of the range
    upDown updnEnd; ///< the last one; the first can not pass it

    bool chkAbon() const { return chkAbon_; }
    bool frameAbonEnabled() const { return chkAbon_; }
    bool optWeek(std::size_t index) const { return optWeek_.at(index); }
    bool optPlayJokerYes() const { return joker_; }
    bool optWedAndSat() const { return wedAndSat_; }
    /// The number of grids in the range, and the slip on show.
    std::string statusPanel1() const;
    std::string statusPanel2() const;
    std::int32_t slips() const { return slips_; }
    std::int32_t page() const { return page_; }

    // The user's clicks.
    void clickAbon(bool ticked);
    /// `index` 0 to 3 for 2 to 5 weeks; nothing happens while the frame is disabled.
    void clickWeek(std::size_t index);
    void clickPlayJoker(bool plays);
    void clickWedAndSat(bool both);
    /// A button of `tbarPrint`: 1 back, 2 forth, 3 print, 4 cancel, 5 printer settings, 6
    /// print into a PDF file.
    void clickToolbar(int button);

    /// Draws the slip on show on `picGrid`.
    void drawPicture(Picture &picGrid) const;

    /// 1 when the user asked for printing, else 0.
    std::int32_t answer() const { return answer_; }
    /// Whether the slips are to go into a PDF file, whatever the printer settings say.
    bool asPdf() const { return asPdf_; }
    bool hidden() const { return hidden_; }
    slipRun::Choice choice() const;

    /// Called after any change of what the window shows.
    std::function<void()> changed;

  private:
    void changeRange();
    void countSlips();
    void showPage(std::int32_t page);
    void hide(std::int32_t answer);
    void notify() const;

    slipRun::GridDrawer drawGrid_;
    bool chkAbon_ = false;
    std::array<bool, 4> optWeek_{};
    std::size_t rememberedWeek_ = 1; ///< the week option that comes back with the tick
    bool joker_ = false;
    bool wedAndSat_ = false;
    std::int32_t grids_ = 0;
    std::int32_t slips_ = 0;
    std::int32_t page_ = 1;
    std::int32_t answer_ = 0;
    bool asPdf_ = false;
    bool hidden_ = false;
};

} // namespace boulix
