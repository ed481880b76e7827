// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/statStores.h"

#include "support/boulixTest.h"

#include <gtest/gtest.h>

namespace boulix::modStats {
namespace {

TEST(TripletTable, HoldsEveryTripletInLexicographicOrderAndTheFormulaFindsItsRow) {
    InitTripletTable();
    std::int32_t at = 0;
    for (std::int16_t a = 1; a <= 49; ++a)
        for (auto b = static_cast<std::int16_t>(a + 1); b <= 49; ++b)
            for (auto c = static_cast<std::int16_t>(b + 1); c <= 49; ++c) {
                ++at;
                ASSERT_EQ(row(a, b, c), at) << a << ' ' << b << ' ' << c;
                ASSERT_EQ(tripletTable(at).num, (std::array{a, b, c}));
                ASSERT_EQ(tripletTable(at).flag, 0);
            }
    EXPECT_EQ(at, 18424);
    EXPECT_EQ(tripletTable.size, 18424);
}

TEST(StatStores, CountFromOneAndRefuseAnyOtherIndex) {
    EXPECT_EQ(statResult.size, 322);
    EXPECT_EQ(failureNumber([] { statResult(1) = 0; }), 0);
    EXPECT_EQ(failureNumber([] { statResult(322) = 0; }), 0);
    EXPECT_EQ(failureNumber([] { statResult(0) = 0; }), 9);
    EXPECT_EQ(failureNumber([] { statResult(323) = 0; }), 9);
    EXPECT_EQ(failureNumber([] { statResult(-1) = 0; }), 9);
    EXPECT_EQ(failureNumber([] { tripletTable(18425).flag = 0; }), 9);
}

TEST(StatStores, KeepTheirWidths) {
    EXPECT_EQ(sizeof(statResult(1)), 4U);
    EXPECT_EQ(sizeof(statPeriods.at(0)), 4U);
    EXPECT_EQ(sizeof(Triplet), 8U) << "four 16-bit fields";
}

TEST(StatStores, ResetTakesBackEveryResult) {
    InitTripletTable();
    statResult(322) = 5;
    nStatResult = 7;
    statPeriods = {0, 3};
    nStatPeriods = 1;
    tripletTable(1).flag = -1;
    reset();
    EXPECT_EQ(statResult(322), 0);
    EXPECT_EQ(nStatResult, 0);
    EXPECT_EQ(nStatPeriods, 0);
    EXPECT_EQ(tripletTable(1).flag, 0);
    EXPECT_EQ(tripletTable(1).num, (std::array<std::int16_t, 3>{1, 2, 3}));
}

} // namespace
} // namespace boulix::modStats
