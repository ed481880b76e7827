// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

namespace boulix {

/// The logic's way of asking the user for lottery numbers.
class selector {
  public:
    /// Before `selectNbr` the most numbers that may be chosen (0: no limit), after it how many
    /// were chosen; 0 means cancelled.
    std::int16_t nSelectedNbr() const { return nSelectedNbr_; }
    /// The fewest numbers that must be chosen.
    std::int16_t nMinSelectedNbr() const { return nMinSelectedNbr_; }
    /// How many numbers were set by `setPrevSelect`.
    std::int16_t nPrevSelected() const { return nPrevSelected_; }
    /// The `i`-th chosen number; outside 1 to `nSelectedNbr` number 4301 is reported and 0 given.
    std::int16_t selectedNbr(std::int16_t i) const;

    void setSelect(std::int16_t nMax, std::int16_t nMin);
    /// The numbers that are marked when the dialog opens: the first `n` of `numbers`, counted
    /// from element 0; fewer than `n` fail with `Failure::subscriptOutOfRange`.
    void setPrevSelect(std::int16_t n, const std::vector<std::int16_t> &numbers);
    /// The last number that may be chosen is the complementary one of a draw, and looks like it.
    void lastIsComplementary() { lastIsComplementary_ = true; }
    /// Shows the dialog until it is cancelled or enough numbers are marked.
    void selectNbr();

  private:
    std::int16_t numberAt(std::int16_t i) const;

    std::vector<std::int16_t> selected_;
    std::int16_t nSelectedNbr_ = 0;
    std::int16_t nMinSelectedNbr_ = 0;
    std::int16_t nPrevSelected_ = 0;
    bool lastIsComplementary_ = false;
};

} // namespace boulix
