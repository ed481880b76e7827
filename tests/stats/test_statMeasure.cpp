// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The bars beside a result, their mean, and what chance lets expect.

#include "stats/statMeasure.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "stats/statsTest.h"
#include "support/lottery.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace boulix {
namespace {

using modStats::expectedFrequency;
using modStats::measureText;
using modStats::statMeasure;
using modStats::StatTable;

StatTable tableOf(std::vector<std::int32_t> cells) {
    return {{{"N°", "", true}, {"Fréquence", "", true}}, {2, 3}, std::move(cells)};
}

TEST(StatMeasure, IsTheLastColumnWithItsLargestValueAndItsMean) {
    for (const std::int16_t type : std::vector<std::int16_t>{1, 2, 5, 6, 7, 8, 9, 10, 13, 16, 17}) {
        const auto measure = statMeasure(type, tableOf({1, 4, 2, 9, 3, 0}));
        ASSERT_TRUE(measure) << type;
        EXPECT_EQ(measure->column, 1);
        EXPECT_EQ(measure->largest, 9);
        EXPECT_DOUBLE_EQ(measure->mean, 13.0 / 3);
    }
}

TEST(StatMeasure, ThereIsNoneForTripletsForNoRowsAndForNoType) {
    for (const std::int16_t type : std::vector<std::int16_t>{0, 11, 12, 18})
        EXPECT_FALSE(statMeasure(type, tableOf({1, 4}))) << type;
    EXPECT_FALSE(statMeasure(1, tableOf({})));
    EXPECT_FALSE(statMeasure(2, {}));
}

TEST(StatMeasure, TheExpectedFrequencyOfANumberIsItsShareOfTheDraws) {
    EXPECT_DOUBLE_EQ(*expectedFrequency(1, 0, 4858), 4858 * 6.0 / 49);
    EXPECT_DOUBLE_EQ(*expectedFrequency(1, 1, 4858), 4858 * 7.0 / 49);
    EXPECT_DOUBLE_EQ(*expectedFrequency(1, 0, 0), 0);
    for (const std::int16_t type : std::vector<std::int16_t>{0, 6, 7, 10, 11, 13, 17})
        EXPECT_FALSE(expectedFrequency(type, 0, 4858)) << type;
}

TEST(StatMeasure, TheExpectedFrequencyOfACoupleIsThatOfTwoAmongSix) {
    EXPECT_DOUBLE_EQ(*expectedFrequency(2, 0, 1176), 15); // 15 of the 1,176 couples in each draw
    EXPECT_NEAR(*expectedFrequency(3, 0, 18424), 20, 1e-9);
    EXPECT_NEAR(*expectedFrequency(4, 0, 211876), 15, 1e-9);
    EXPECT_NEAR(*expectedFrequency(5, 0, 1906884), 6, 1e-9);
}

/// Draws so many grids and counts, as the statistics do.
double meanOfSimulation(std::int16_t type, std::int16_t withCompl, int draws) {
    std::mt19937 random(static_cast<unsigned>(type * 2 + withCompl));
    addRandomDraws(draws, random);
    std::uint64_t chosen = 0;
    for (std::int16_t n = 1; n < type; ++n)
        chosen |= numberBit(n);
    modStats::ComputeFrequency(type, chosen, withCompl, 1, draws);
    double sum = 0;
    for (std::int32_t n = type; n <= modStats::lastNumber; ++n)
        sum += modStats::statResult(n);
    gDbCombs->clear();
    return sum / (modStats::lastNumber - type + 1);
}

class Expectation : public StatsTest {};

TEST_F(Expectation, IsWhatRandomDrawsComeNearTo) {
    constexpr int draws = 100'000;
    for (const std::int16_t type : std::vector<std::int16_t>{1, 2, 3, 4})
        for (const std::int16_t withCompl : std::vector<std::int16_t>{0, 1}) {
            const double expected = *expectedFrequency(type, withCompl, draws);
            // The mean over all partners scatters as the number of draws that hold the chosen ones.
            const double share = 4 / std::sqrt(expected * 8);
            EXPECT_NEAR(meanOfSimulation(type, withCompl, draws) / expected, 1, share)
                << "type " << type << ", with " << withCompl;
        }
}

TEST(StatMeasure, IsShownWithOneDecimalAndBelowOneWithTwoFigures) {
    EXPECT_EQ(measureText(594.857), "594,9");
    EXPECT_EQ(measureText(15), "15,0");
    EXPECT_EQ(measureText(0), "0,0");
    EXPECT_EQ(measureText(0.2636), "0,26");
    EXPECT_EQ(measureText(0.0152), "0,015");
    EXPECT_EQ(measureText(0.00153), "0,0015");
}

} // namespace
} // namespace boulix
