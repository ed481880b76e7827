// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "draws/lotoComb.h"
#include "sill/selector.h"
#include "support/boulixTest.h"
#include "support/lottery.h"

#include <cstdint>
#include <map>
#include <vector>

namespace boulix::testing_support {

/// The record of seven numbers with its true sums.
lotoComb combWithSums(const SevenNumbers &numbers);

/// A base that the test fills, the tables of the statistics made, no result yet.
class StatsTest : public BoulixTest {
  protected:
    StatsTest();

    /// Appends draws, one a day from 1 January 2001 on, all of them the first of their day.
    void addDraws(const std::vector<SevenNumbers> &draws);
    /// Imports the operator's history into the base; false where it is not there, and the test
    /// then skips with `noHistory`.
    bool importHistory();
    static constexpr const char *noHistory =
        "the operator's history is not there; name it in BOULIX_HISTORY";
    /// Computes a statistic; `chosen` are the numbers that the user marks in the dialog.
    void compute(int type, int withCompl, std::int32_t first, std::int32_t last,
                 const std::vector<std::int16_t> &chosen = {});
    /// The same over the whole base.
    void computeAll(int type, int withCompl, const std::vector<std::int16_t> &chosen = {});

    selector chooser;
};

/// The entries of `statResult` up to `last` that are not `floor`, by index.
std::map<int, std::int32_t> resultsBut(std::int32_t floor, int last = 49);
/// The entries 1 to 49 of `statResult` that are not 0.
std::map<int, std::int32_t> results();
/// The periods that mean something.
std::vector<std::int32_t> periods();
/// How many triplets are in the list of those never drawn.
int listedTriplets();

} // namespace boulix::testing_support

namespace boulix {
using testing_support::StatsTest;
} // namespace boulix
