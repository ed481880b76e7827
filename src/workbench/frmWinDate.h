// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"

#include <array>
#include <string>
#include <vector>

namespace boulix {

class gameWin;

/// The window that lists the draws at which a game won at one rank.
class frmWinDate {
  public:
    static constexpr const char *caption = "Date des gains";

    /// One line for each of `wins`, in base order. A draw that is no longer in the base, or whose
    /// date cannot be shown, is a run-time failure: the window does not open. `upToDate`: the wins
    /// were looked for in the base as it is now; where they were not, an empty list says so.
    explicit frmWinDate(const std::vector<gameWin> &wins, bool upToDate = true);
    frmWinDate(const frmWinDate &) = delete;
    frmWinDate &operator=(const frmWinDate &) = delete;

    reportList lvwWinDate;

  private:
    static constexpr std::size_t columnCount = 10;
    std::vector<std::array<std::string, columnCount>> lines_;
};

} // namespace boulix
