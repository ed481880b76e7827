// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameComb.h"

#include <array>
#include <cstdint>

namespace boulix {

class eliminator;

/// All counters that the elimination rules look at, packed into one word: sixteen fields of four
/// bits. The word of a grid is the sum of the words of its numbers, so a rule costs an addition
/// and a test, whatever it counts.
namespace gridProfile {

/// Some neighbouring fields of a profile.
struct Fields {
    int first;
    int count;
};
inline constexpr Fields tens{0, 5};   ///< numbers n with the same n / 10
inline constexpr Fields eights{5, 7}; ///< numbers n with the same n / 8
inline constexpr Fields even{12, 1};
inline constexpr Fields odd{13, 1};
inline constexpr Fields listed{14, 1};     ///< numbers that are on a list
inline constexpr Fields longestRun{15, 1}; ///< steps from one number to the next greater by 1

/// A grid with a number outside 1 to 49 has no profile.
inline constexpr std::uint64_t none = 0;

/// Makes profiles. `list` names the rule whose flags say which numbers are listed; without one,
/// no number is.
class Maker {
  public:
    explicit Maker(const eliminator *list);
    std::uint64_t operator()(const gameComb &grid) const;

  private:
    std::array<std::uint64_t, 50> words_{}; // by number
};

/// The test "one of the fields is at least `limit`".
class Reaches {
  public:
    Reaches(Fields fields, int limit);
    bool operator()(std::uint64_t profile) const {
        return (((profile & fields_) + complement_) & highBits_) != 0;
    }

  private:
    std::uint64_t fields_;
    std::uint64_t complement_; // what takes a field of the limit to 8
    std::uint64_t highBits_;
};

} // namespace gridProfile
} // namespace boulix
