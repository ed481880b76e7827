// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix::modStats {

inline constexpr std::size_t analysisCount = 8;

/// The analyses of one draw as the user reads them: analysis 1 first.
extern const std::array<const char *, analysisCount> analysisNames;

/// Takes the draw at position `draw` apart. `values` and `labels` grow to the rows of the first
/// `nAnalyses` of `analyses`, in that order; `nRows` says how many they are. All arrays are used
/// from index 1. A position outside the base, or a number that lies in none of the groups of
/// analyses 7 and 8, fails with `Failure::subscriptOutOfRange`.
void ComputeDrawAnalysis(std::int32_t draw, std::vector<std::int32_t> &values,
                         std::vector<std::string> &labels, std::int32_t &nRows,
                         const std::vector<std::int32_t> &analyses, std::int32_t nAnalyses);

/// How many draws before `draw` the numbers `a`, `b`, `c` last came out together: 1 for the draw
/// just before, all draws before it when they never did. `b` and `c` are 0 for a shorter tuple.
/// The complementary number counts, but in a triplet it never stands for `c`.
std::int32_t CountDrawsSince(std::int32_t draw, std::int16_t a, std::int16_t b, std::int16_t c);

} // namespace boulix::modStats
