// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/numberMask.h"

#include <array>
#include <bit>
#include <gtest/gtest.h>

namespace boulix {
namespace {

TEST(NumberMasks, HaveABitOfItsOwnForEachNumberFrom1To49) {
    std::uint64_t all = 0;
    for (std::int16_t n = 1; n <= 49; ++n) {
        EXPECT_EQ(std::popcount(numberBit(n)), 1);
        all |= numberBit(n);
    }
    EXPECT_EQ(std::popcount(all), 49);
}

TEST(NumberMasks, HaveNoBitForAnythingElse) {
    for (const std::int16_t n : std::array<std::int16_t, 6>{0, -1, 50, 64, 32767, -32768})
        EXPECT_EQ(numberBit(n), 0U);
}

TEST(NumberMasks, CountMatchesOfTwoGrids) {
    const std::array<std::int16_t, 6> a = {1, 2, 3, 4, 5, 49};
    const std::array<std::int16_t, 6> b = {49, 6, 1, 7, 8, 0};
    EXPECT_EQ(std::popcount(maskOf(a) & maskOf(b)), 2);
    EXPECT_EQ(maskOf(std::array<std::int16_t, 2>{7, 7}), numberBit(7));
}

} // namespace
} // namespace boulix
