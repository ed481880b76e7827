// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/numberBoard.h"

#include <cstdint>
#include <string>

namespace boulix {

/// The rules of the dialog around one number board. The screen shows `grd`, the labels, the line
/// for typed numbers and the four buttons, and hides the dialog once `tag` is set.
class frmNbrSelector {
  public:
    frmNbrSelector();
    frmNbrSelector(const frmNbrSelector &) = delete;
    frmNbrSelector &operator=(const frmNbrSelector &) = delete;

    NumberBoard grd;
    /// The fewest numbers that are wanted; below 1 there is no such limit.
    std::int16_t minimum = 0;
    /// Whether the last number that may be marked is the complementary one of a draw.
    bool lastIsComplementary = false;

    /// "1" after `cmdOK`, "-1" after `cmdCancel`, empty while the dialog is on the screen.
    const std::string &tag() const { return tag_; }
    /// The count of marked numbers in words.
    std::string lblStatus() const;
    /// How many numbers are wanted, and what is missing.
    std::string lblWanted() const;
    /// Why the last click or the text of the line was not taken, or not all of it; else empty.
    const std::string &lblRefused() const { return refused_; }
    /// The marked numbers in their order, as they are typed: "1 8 13 17".
    std::string txtNumbers() const;

    /// The dialog is about to appear (again): its tag is emptied.
    void shown() { tag_.clear(); }
    void clickOK() { tag_ = "1"; }
    void clickCancel() { tag_ = "-1"; }
    void clickClear();
    /// The line is being typed in: its numbers are marked, in its order, and no others.
    void typeNumbers(const std::string &text);
    /// Marks all 49 numbers in a random order; a board whose limit is not 49 is refused with
    /// number 801.
    void clickSelectAll();

  private:
    std::string refusalOf(const std::string &word) const;
    std::string beyondLimit(std::int16_t n) const;

    std::string tag_;
    std::string refused_;
};

} // namespace boulix
