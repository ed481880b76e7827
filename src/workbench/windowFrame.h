// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

/// What a page asks of the window it stands in.
class windowFrame {
  public:
    virtual ~windowFrame() = default;

    /// Refills the list of draws and what depends on their count.
    virtual void frmUpdateDBList() = 0;
    /// Sets the count of draws in the status bar again.
    virtual void showDrawCount() = 0;
    /// Writes the count of selected numbers into the second panel of the status bar.
    virtual void showSelectedCount(const std::string &text) = 0;
};

} // namespace boulix
