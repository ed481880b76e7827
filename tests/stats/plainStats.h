// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace boulix::testing_support {

/// The statistics once more, in the most literal way, to compare the real ones with. Slow, and
/// proudly so: no masks, no formula for the row of a triplet, one loop for each rule.
class PlainStats {
  public:
    PlainStats();

    using Values = std::map<int, std::int32_t>;
    Values statResult;
    std::int32_t nStatResult = 0;
    Values statPeriods;
    std::int32_t nStatPeriods = 0;
    /// The flag of each triplet.
    std::map<std::array<int, 3>, int> tripletTable;

    /// Computes `type` over the draws of the base with `chosen` as the answer of the dialog.
    void compute(int type, int withCompl, int first, int last, const std::vector<int> &chosen);

  private:
    void frequency(int type, const std::vector<int> &chosen, int withCompl, int first, int last);
    void sums(int withCompl, int first, int last);
    void delays(int withCompl, int first, int last);
    void currentRuns(int withCompl, int first, int last);
    void maxAbsence(int withCompl, int first, int last);
    void maxRun(int withCompl, int first, int last);
    void triplets(int withCompl);
    void filterTriplets(const std::vector<int> &chosen);
    void periods(const std::vector<int> &chosen, int withCompl, int first, int last);
    void evenCount(int withCompl, int first, int last);
};

/// The analysis of one draw once more, in the same spirit: the rows of all analyses in order.
std::vector<std::pair<std::string, std::int32_t>> plainAnalysis(int draw,
                                                                const std::vector<int> &analyses);
int plainDrawsSince(int draw, int a, int b, int c);

} // namespace boulix::testing_support
