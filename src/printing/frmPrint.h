// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <iterator>
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
    /// The entry chosen, from 0; -1 for none. Behind the printers, where there are any, the list
    /// shows `modPrinter::pdfEntry`.
    int cmbPrinterIndex = -1;
    std::string txtOffsetX;
    std::string txtOffsetY;
    std::int32_t optPrintDir; ///< the direction whose option is on
    bool cmdOKEnabled;

    /// What an offset may hold, for its box.
    static constexpr const char *offsetHolds = "un nombre de millimètres, négatif ou non";

    /// `cmdOK`: takes offsets and direction into the settings state. An offset that is no number
    /// fails with `Failure::typeMismatch`, a failure of its box; nothing is taken then and the
    /// window stays.
    void clickOK();
    /// `cmdCancel`.
    void clickCancel();

    /// Whether documents are to go into PDF files.
    bool pdfChosen() const { return cmdOKEnabled && cmbPrinterIndex == std::ssize(cmbPrinter); }
    /// 1 after `cmdOK`, else 0.
    std::int16_t result() const { return result_; }
    bool closed() const { return closed_; }

  private:
    std::int16_t result_ = 0;
    bool closed_ = false;
};

} // namespace boulix
