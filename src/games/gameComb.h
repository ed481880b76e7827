// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>

namespace boulix {

/// A row of a game definition, a grid of a game, or a tuple of chosen numbers: six numbers and a
/// stored sum. Unused positions hold 0.
class gameComb {
  public:
    static constexpr int size = 6;

    /// Position `i`, 1 to 6; any other fails with `Failure::subscriptOutOfRange`.
    std::int16_t num(int i) const;
    void num(int i, std::int16_t n);
    /// Kept by whoever fills the row; a write of a number does not update it.
    std::int16_t sum() const { return sum_; }
    void sum(std::int16_t s) { sum_ = s; }
    /// Orders the six numbers ascending.
    void sort();

  private:
    std::array<std::int16_t, size> num_{};
    std::int16_t sum_ = 0;
};

} // namespace boulix
