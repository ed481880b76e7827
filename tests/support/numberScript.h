// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sill/frmNbrSelector.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// What the user does at one showing of the number dialog, as in
/// `NumberScript().click({3, 7, 12}).ok()`. The last step is `ok` or `cancel`.
class NumberScript {
  public:
    NumberScript &click(std::initializer_list<std::int16_t> numbers);
    NumberScript &click(const std::vector<std::int16_t> &numbers);
    NumberScript &clear();
    NumberScript &selectAll();
    /// Anything else: a look at the dialog between two steps.
    NumberScript &then(std::function<void(frmNbrSelector &)> step);
    NumberScript &ok();
    NumberScript &cancel();

    void run(frmNbrSelector &dialog) const;

  private:
    std::vector<std::function<void(frmNbrSelector &)>> steps_;
};

/// The marked numbers of a board, in the order of marking.
std::vector<std::int16_t> markedNumbers(const NumberBoard &board);

/// One showing of the number dialog: how it appeared and how it was left.
struct NumberShowing {
    std::int16_t maxSelected = 0;
    bool editable = false;
    std::vector<std::int16_t> markedBefore;
    std::vector<std::int16_t> markedAfter;
    std::string lblStatusAfter;
};

} // namespace boulix::testing_support
