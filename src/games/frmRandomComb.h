// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "draws/lotoComb.h"
#include "sill/reportList.h"

#include <string>
#include <vector>

namespace boulix {

/// The draws that the dialog of random draws was left with; none when it was cancelled.
inline std::vector<lotoComb> randomDraws;

/// The rules of the dialog that makes random draws to test a game on. It is modal; the screen
/// shows the public state and hides the dialog once it is `hidden`.
class frmRandomComb {
  public:
    static constexpr const char *caption = "Générateur de combinaisons aléatoires";

    frmRandomComb();
    frmRandomComb(const frmRandomComb &) = delete;
    frmRandomComb &operator=(const frmRandomComb &) = delete;

    std::string txtnComb; ///< how many draws; the user writes here
    reportList lvWComb;   ///< the draws

    /// Makes as many draws as `txtnComb` says. A text that is no number, or one beyond 16 bits,
    /// ends the command as a failure that is shown.
    void clickCompute();
    /// Hands the draws over in `randomDraws`.
    void clickOK();
    void clickCancel();
    bool hidden() const { return hidden_; }

  private:
    void compute();
    std::string cell(std::int64_t row, int column) const;

    std::vector<lotoComb> draws_;
    bool hidden_ = false;
};

} // namespace boulix
