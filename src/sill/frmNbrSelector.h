// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/numberBoard.h"

#include <string>

namespace boulix {

/// The rules of the dialog around one number board. The screen shows `grd`, the text of
/// `lblStatus` and the four buttons, and hides the dialog once `tag` is set.
class frmNbrSelector {
  public:
    NumberBoard grd;

    /// "1" after `cmdOK`, "-1" after `cmdCancel`, empty while the dialog is on the screen.
    const std::string &tag() const { return tag_; }
    /// The count of marked numbers in words.
    std::string lblStatus() const;

    /// The dialog is about to appear (again): its tag is emptied.
    void shown() { tag_.clear(); }
    void clickOK() { tag_ = "1"; }
    void clickCancel() { tag_ = "-1"; }
    void clickClear() { grd.clearSelection(); }
    /// Marks all 49 numbers in a random order; a board whose limit is not 49 is refused with
    /// number 801.
    void clickSelectAll();

  private:
    std::string tag_;
};

} // namespace boulix
