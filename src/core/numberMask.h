// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <bit>
#include <cstdint>

namespace boulix {

/// The mask of the numbers 1 to 49.
inline constexpr std::uint64_t allNumbers = 0x3fffffffffffe;
/// The mask of the even ones.
inline constexpr std::uint64_t evenNumbers = allNumbers & 0x5555555555555555;

/// The bit of number `n` in a mask of the numbers 1 to 49; no bit for any other value.
constexpr std::uint64_t numberBit(std::int16_t n) {
    return n >= 1 && n <= 49 ? std::uint64_t{1} << n : 0;
}

/// The mask of all numbers in `numbers`.
template <class Numbers>
constexpr std::uint64_t maskOf(const Numbers &numbers) {
    std::uint64_t mask = 0;
    for (const std::int16_t n : numbers)
        mask |= numberBit(n);
    return mask;
}

/// Calls `use` with each number of `mask`, ascending.
template <class Use>
constexpr void forEachNumber(std::uint64_t mask, Use use) {
    for (; mask != 0; mask &= mask - 1)
        use(static_cast<std::int16_t>(std::countr_zero(mask)));
}

} // namespace boulix
