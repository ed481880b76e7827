// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"

#include <cstdint>
#include <functional>
#include <string>

namespace boulix {

/// The window that tests the forecast rules on the past. It is modal: neither the rules nor the
/// base change while it is open. The screen draws the public state and hands over what the user
/// does; a failure ends the step in progress and is shown.
class frmTestProno {
  public:
    static constexpr const char *caption = "Test de Pronostiques";
    /// What the boxes of the draws before and after may hold.
    static constexpr const char *countHolds = "un nombre entier de tirages";

    /// The window as it opens, on the last draw of the base.
    frmTestProno();
    frmTestProno(const frmTestProno &) = delete;
    frmTestProno &operator=(const frmTestProno &) = delete;

    std::string txtTirBefore; ///< the user writes here
    std::string txtTirAfter;  ///< and here
    reportList lvWResult;     ///< one line for each draw tested

    const std::string &txtNumTir() const { return txtNumTir_; }
    const std::string &txtNbrCount() const { return txtNbrCount_; }
    /// The test draw in words; empty as long as there is none.
    const std::string &lblDescTir() const { return lblDescTir_; }
    /// The position of the test draw, 0 on an empty base.
    std::int32_t position() const { return position_; }

    /// The user has changed the text of `txtNumTir`. A position that exists is taken; the points
    /// of the last calculation stay in force.
    void editNumTir(const std::string &text);
    /// The user has left `txtNumTir`.
    void leaveNumTir();
    /// The arrows of `spnTir`: the next draw, the first one behind the last; and the other way
    /// round. Only the step upward makes the test compute anew. Nothing on an empty base.
    void stepUp();
    void stepDown();
    /// The user has changed the count of best numbers, which makes the test compute anew.
    void editNbrCount(const std::string &text);

    /// The button `compute`: one line for each draw from the first one tested.
    void clickCompute();
    /// A click on the header of a column: as on the forecast page.
    void clickHeader(int column) { lvWResult.sortOrReverse(column); }

    /// Called after the texts were changed by the window itself.
    std::function<void()> changed;

  private:
    void step(std::int32_t to, const char *joining);
    void describe(const char *joining);
    void takeNumTir(const std::string &text);
    void compute();
    void listFrom(std::int64_t first);
    void notify() const;

    std::string txtNumTir_;
    std::string txtNbrCount_;
    std::string lblDescTir_;
    std::int32_t position_ = 0;
};

} // namespace boulix
