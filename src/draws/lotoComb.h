// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/numberMask.h"

#include <array>
#include <bit>
#include <cstdint>

namespace boulix {

/// The numbers of a draw: six numbers in the order in which they were given, the complementary
/// number, and two stored sums that hold what the last writer put there.
class lotoComb {
  public:
    static constexpr int size = 6;

    std::int16_t sumtot() const { return sumtot_; }
    void sumtot(std::int16_t s) { sumtot_ = s; }
    std::int16_t sum() const { return sum_; }
    void sum(std::int16_t s) { sum_ = s; }
    std::int16_t compl_() const { return complementary_; }
    void compl_(std::int16_t n) { complementary_ = n; }
    /// Number `i`, 1 to 6; outside that range a read gives 0 and a write does nothing.
    std::int16_t num(int i) const { return i >= 1 && i <= size ? num_[at(i)] : std::int16_t{0}; }
    void num(int i, std::int16_t n) {
        if (i >= 1 && i <= size) {
            num_[at(i)] = n;
            mask_ = maskOf(num_);
        }
    }
    /// The six numbers as a mask: those outside 1 to 49 are not in it, equal ones are one bit.
    std::uint64_t mask() const { return mask_; }
    /// Whether the mask says everything: six different numbers of 1 to 49.
    bool isWhole() const { return std::popcount(mask_) == size; }

    bool operator==(const lotoComb &) const = default;
    lotoComb copy() const { return *this; }
    /// Orders the six numbers ascending; the complementary and the sums stay.
    void sort();
    /// Whether `n` is one of the six numbers or, with `withCompl`, the complementary one.
    bool isInside(std::int16_t n, bool withCompl) const;

  private:
    static std::size_t at(int i) { return static_cast<std::size_t>(i - 1); }

    std::uint64_t mask_ = 0; // follows num_: every scan of the base compares masks
    std::array<std::int16_t, size> num_{};
    std::int16_t complementary_ = 0;
    std::int16_t sum_ = 0;
    std::int16_t sumtot_ = 0;
};

} // namespace boulix
