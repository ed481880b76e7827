// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/numbers.h"

#include <array>
#include <cstdint>
#include <string>

namespace boulix {

class Canvas;

/// A row of a game definition, a grid of a game, or a tuple of chosen numbers: six numbers and a
/// stored sum. Unused positions hold 0.
class gameComb {
  public:
    static constexpr int size = 6;
    using Numbers = std::array<std::int16_t, size>;

    gameComb() = default;
    explicit gameComb(const Numbers &numbers, std::int16_t sum = 0) : num_(numbers), sum_(sum) {}

    /// Position `i`, 1 to 6; any other fails with `Failure::subscriptOutOfRange`.
    std::int16_t num(int i) const { return num_[place(i)]; }
    void num(int i, std::int16_t n) { num_[place(i)] = n; }
    /// All six, from position 1 on.
    const Numbers &numbers() const { return num_; }
    /// Kept by whoever fills the row; a write of a number does not update it.
    std::int16_t sum() const { return sum_; }
    void sum(std::int16_t s) { sum_ = s; }
    /// The sum of the six numbers as they stand; beyond 16 bits it is an overflow.
    std::int16_t total() const {
        std::int64_t sum = 0;
        for (const std::int16_t n : num_)
            sum += n;
        return narrow16(sum);
    }

    /// Fills the row from "01 / 02 / 03 / 04 / 05 / 06" and sums it. The last field always goes
    /// to position 6: with fewer than six fields the positions between keep what they hold, and
    /// the first of them is what the sum counts. A field that is no number fails with
    /// `Failure::typeMismatch`, a seventh one with `Failure::subscriptOutOfRange` unless it is
    /// the last, which is ignored.
    void fromString(const std::string &text);
    /// Orders the six numbers ascending.
    void sort();
    /// Crosses the six numbers on the bet slip, as the grid that stands at `gridNumber` (from 1)
    /// on it. `mode` and `slipFrame` place it on the sheet, see printing/slip.h.
    void Draw(std::int16_t gridNumber, Canvas &canvas, std::int16_t mode,
              std::int32_t slipFrame) const;

  private:
    static std::size_t place(int i) {
        return static_cast<std::size_t>(checkedIndex(i, 1, size) - 1);
    }

    Numbers num_{};
    std::int16_t sum_ = 0;
};

} // namespace boulix
