// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

/// The rules of the window that edits the printer, the offsets and the direction of the slip. It
/// opens on the current values; the screen shows the controls and closes the window once the
/// user confirmed or left it.
class frmPrint {
  public:
    static constexpr const char *caption = "Sélection de l'imprimante";

    /// Takes the current values. With no printer on the system number 901 is reported and
    /// `cmdOK` stays disabled.
    frmPrint();

    std::vector<std::string> cmbPrinter; ///< the device names of all printers
    int cmbPrinterIndex = -1;            ///< the entry chosen, from 0; -1 for none
    std::string txtOffsetX;
    std::string txtOffsetY;
    std::int32_t optPrintDir; ///< the direction whose option is on
    bool cmdOKEnabled;

    /// `cmdOK`: takes offsets and direction into the settings state. An offset that is no number
    /// fails with `Failure::typeMismatch`; nothing is taken then and the window stays.
    void clickOK();
    /// `cmdCancel`.
    void clickCancel();

    /// 1 after `cmdOK`, else 0.
    std::int16_t result() const { return result_; }
    bool closed() const { return closed_; }

  private:
    std::int16_t result_ = 0;
    bool closed_ = false;
};

} // namespace boulix
