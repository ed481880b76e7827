// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace boulix {

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

} // namespace boulix
