// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameComb.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace boulix {

class eliminators;

/// Judges grids by all rules that are on, in one look at each grid.
///
/// What the rules count in a grid is packed into one word, its profile: sixteen fields of four
/// bits. The profile of a grid is the sum of the words of its numbers; an addition that takes
/// every field at its limit to 8 shows in one step whether a counter has reached its limit.
class GridJudge {
  public:
    /// By the rules as they stand now.
    explicit GridJudge(const eliminators &rules);

    /// Sets `condemned[i]` to 1 or 0 for each of `count` grids that lie one behind the other.
    /// False when there is a grid among them that the judge does not know.
    bool judge(const gameComb *grids, std::size_t count, std::uint8_t *condemned) const;
    /// Whether all numbers are from 1 to 49. What is said of any other grid means nothing.
    bool knows(const gameComb &grid) const { return (profile(grid.numbers()) & unknown) == 0; }

  private:
    static constexpr std::uint64_t unknown = std::uint64_t{0xF} << 60; // the field of such numbers

    std::uint64_t profile(const gameComb::Numbers &numbers) const {
        const auto word = [this](std::int16_t n) { return words_[static_cast<std::uint16_t>(n)]; };
        return word(numbers[0]) + word(numbers[1]) + word(numbers[2]) + word(numbers[3]) +
               word(numbers[4]) + word(numbers[5]);
    }
    /// No counter of these `count` fields may reach `limit`.
    void limit(int firstField, int count, int limit);
    void limitRuns(int limit);

    std::vector<std::uint64_t> words_; // by number, for every value that a number can have
    std::uint64_t complement_ = 0;     // what takes a field at its limit to 8
    std::uint64_t limits_ = 0;         // the bit of 8 in each field that has a limit
    std::array<std::uint8_t, 32> condemnedSteps_{}; // by the steps of a grid that are 1
    std::int32_t lowSum_;                           // sums up to this one are condemned
    std::int32_t highSum_;                          // and from this one on
};

} // namespace boulix
