// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/statsTest.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "support/locations.h"

#include <algorithm>
#include <numeric>

namespace boulix::testing_support {

lotoComb combWithSums(const SevenNumbers &numbers) {
    lotoComb comb = lotoCombOf(numbers);
    const int sumtot = std::accumulate(numbers.begin(), numbers.end(), 0);
    comb.sum(static_cast<std::int16_t>(sumtot - numbers.back()));
    comb.sumtot(static_cast<std::int16_t>(sumtot));
    return comb;
}

StatsTest::StatsTest() {
    modStats::InitStatTypes();
    modStats::InitTripletTable();
    modStats::reset();
}

void StatsTest::addDraws(const std::vector<SevenNumbers> &draws) {
    const Date firstDay = dateOf({2001, 1, 1});
    for (const SevenNumbers &numbers : draws)
        gDbCombs->Add(firstDay + gDbCombs->Count(), 1, combWithSums(numbers), false, "");
}

bool StatsTest::importHistory() {
    const auto history = operatorHistory();
    if (!history)
        return false;
    gDbCombs->dbFile().fullName(file("tirages.dbl"));
    desktop.answerOpen(history->string());
    EXPECT_TRUE(gDbCombs->ImportFdjFile());
    EXPECT_EQ(gDbCombs->Count(), 4858);
    return true;
}

void StatsTest::compute(int type, int withCompl, std::int32_t first, std::int32_t last,
                        const std::vector<std::int16_t> &chosen) {
    if (!chosen.empty())
        desktop.answerNumbers(NumberScript().click(chosen).ok());
    modStats::ComputeStat(static_cast<std::int16_t>(type), static_cast<std::int16_t>(withCompl),
                          first, last, chooser);
}

void StatsTest::computeAll(int type, int withCompl, const std::vector<std::int16_t> &chosen) {
    compute(type, withCompl, 1, gDbCombs->Count(), chosen);
}

std::map<int, std::int32_t> resultsBut(std::int32_t floor, int last) {
    std::map<int, std::int32_t> found;
    for (int i = 1; i <= last; ++i)
        if (modStats::statResult(i) != floor)
            found[i] = modStats::statResult(i);
    return found;
}

std::map<int, std::int32_t> results() {
    return resultsBut(0);
}

std::vector<std::int32_t> periods() {
    const auto first = modStats::statPeriods.begin() + 1;
    return {first, first + modStats::nStatPeriods};
}

int listedTriplets() {
    return static_cast<int>(
        std::count_if(modStats::tripletTable.begin(), modStats::tripletTable.end(),
                      [](const modStats::Triplet &triplet) { return triplet.flag == 0; }));
}

} // namespace boulix::testing_support
