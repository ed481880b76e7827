// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stats/store.h"

#include <array>
#include <cstdint>
#include <vector>

namespace boulix::modStats {

/// The largest sum of six numbers, and of seven with the complementary one.
inline constexpr std::int32_t maxSum = 279;
inline constexpr std::int32_t maxSumTot = 322;
/// The highest number of a draw.
inline constexpr std::int32_t lastNumber = 49;

/// The result of all types but 11 to 16; what an index means depends on the type. A number, a
/// sum, or one more than a count of even numbers.
inline Store<std::int32_t, maxSumTot> statResult;
/// How many entries of `statResult` mean something; set by types 6 and 17 only.
inline std::int32_t nStatResult = 0;

/// The lengths of the periods of absence in time order, types 13 to 16; used from index 1.
inline std::vector<std::int32_t> statPeriods(1);
/// How many entries of `statPeriods` mean something.
inline std::int32_t nStatPeriods = 0;

/// A triplet of numbers in ascending order. `flag` is 0 while it stands in the list of the
/// triplets never drawn, -1 when it was drawn or filtered out.
struct Triplet {
    std::array<std::int16_t, 3> num{};
    std::int16_t flag = 0;
};

inline constexpr std::int32_t tripletCount = 18424;

/// Every triplet of 1 to 49 in lexicographic order, types 11 and 12. Empty until
/// `InitTripletTable`.
inline Store<Triplet, tripletCount> tripletTable;

/// Fills `tripletTable`, all flags 0.
void InitTripletTable();

/// The row of `tripletTable` that holds the triplet `a` < `b` < `c` of 1 to 49.
std::int32_t row(std::int16_t a, std::int16_t b, std::int16_t c);

/// Brings the result stores back to what they are at the start of the program: no result, and no
/// triplet struck from the table.
void reset();

} // namespace boulix::modStats
