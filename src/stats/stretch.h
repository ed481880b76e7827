// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "draws/dbComb.h"

#include <array>
#include <cstdint>
#include <span>

namespace boulix::modStats {

/// A value for each number; index 0 is not used.
using ByNumber = std::array<std::int32_t, 50>;

/// The draws `first` to `last` of the base; none when the stretch or the base is empty. A
/// stretch that reaches beyond the base fails with `Failure::subscriptOutOfRange`.
std::span<const dbComb> stretch(std::int32_t first, std::int32_t last);

/// A draw whose numbers, with the complementary one where `withCompl` is 1, do not all lie in 1
/// to 49 fails with `Failure::subscriptOutOfRange`.
void checkNumbers(const lotoComb &comb, std::int16_t withCompl);

/// The numbers of a draw as a mask, with the complementary one where `withCompl` is 1.
std::uint64_t presence(const lotoComb &comb, std::int16_t withCompl);

/// How many of the numbers of the mask `chosen` the draw holds. The complementary number, where
/// `withCompl` is 1, counts once more if it stands among the six, too.
int matches(const lotoComb &comb, std::uint64_t chosen, std::int16_t withCompl);

/// Writes the values 1 to 49 into `statResult`.
void storeByNumber(const ByNumber &values);

} // namespace boulix::modStats
