// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

/// The rules of the window that edits the price of a grid and the money unit. It opens on the
/// values of `gGridConfig`; the screen shows the two boxes and closes the window once it is
/// `closed`.
class frmGridParam {
  public:
    static constexpr const char *caption = "Paramètres des grilles";

    /// What the price may hold, for its box.
    static constexpr const char *priceHolds = "un nombre, avec ou sans décimales";

    frmGridParam();

    std::string txtUnit;
    std::string txtPrice;

    /// `CMD_OK`: stores and saves both values. A blank unit is refused with number 601, a blank
    /// price with nothing; a price that is no number fails with `Failure::typeMismatch`, a failure
    /// of its box. Nothing is stored then and the window stays.
    void clickOK();
    /// `CMD_Cancel`.
    void clickCancel() { closed_ = true; }
    bool closed() const { return closed_; }

  private:
    bool closed_ = false;
};

} // namespace boulix
