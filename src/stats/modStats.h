// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace boulix {
class selector;
}

namespace boulix::modStats {

// The computations read the draw base and leave their answer in the stores of statStores.h.
// `first` and `last` are positions in the base, 1 being the oldest draw. A stretch that is empty,
// or a base without draws, gives the empty result; a stretch that reaches beyond the base fails
// with `Failure::subscriptOutOfRange`. So does a draw with a number outside 1 to 49 where the
// result counts by number. `withCompl` is 1 for "with the complementary number"; only the sums
// take any value but 0 for it.

/// Computes statistic `type`. The types with chosen numbers show the dialog of `chooser` first;
/// when it is dismissed the stores stay as they are. A type outside 1 to 17 does nothing.
void ComputeStat(std::int16_t type, std::int16_t withCompl, std::int32_t first, std::int32_t last,
                 selector &chooser);

/// Types 1 to 5: how often each number came out, alone or with all the numbers of the mask
/// `chosen`. The complementary number scores in type 1 only; else it can complete the chosen ones.
void ComputeFrequency(std::int16_t type, std::uint64_t chosen, std::int16_t withCompl,
                      std::int32_t first, std::int32_t last);
/// Type 6: how many draws have each sum. Without complementary the entries beyond 279 are left
/// as they are.
void ComputeSums(std::int16_t withCompl, std::int32_t first, std::int32_t last);
/// Type 7: how long ago each number came out, counted from the newest draw of the base; 0 for a
/// number that is not in the stretch.
void ComputeDelays(std::int16_t withCompl, std::int32_t first, std::int32_t last);
/// Type 8: how many draws in a row up to `last` hold each number. The complementary number of
/// draw `last` always counts.
void ComputeCurrentRuns(std::int16_t withCompl, std::int32_t first, std::int32_t last);
/// Type 9: the longest absence of each number that ended within the stretch.
void ComputeMaxAbsence(std::int16_t withCompl, std::int32_t first, std::int32_t last);
/// Type 10: the longest run of draws with each number, at least 1. The complementary number is
/// compared with the complementary number of the draw before only.
void ComputeMaxRun(std::int16_t withCompl, std::int32_t first, std::int32_t last);
/// Type 11: strikes the triplets drawn from `tripletTable`, of the whole base.
void ComputeTriplets(std::int16_t withCompl);
/// Type 12, after type 11: strikes the triplets that do not hold all numbers of `chooser`.
void FilterTriplets(const selector &chooser);
/// Types 13 to 16: the lengths of the periods without all the numbers of the mask `chosen`.
void ComputePeriods(std::uint64_t chosen, std::int16_t withCompl, std::int32_t first,
                    std::int32_t last);
/// Type 17: how many draws have 0, 1, 2 ... even numbers.
void ComputeEvenCount(std::int16_t withCompl, std::int32_t first, std::int32_t last);

} // namespace boulix::modStats
