// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/money.h"

#include "support/boulixTest.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace boulix {
namespace {

TEST(Money, IsReadWithADotOrAComma) {
    const struct {
        const char *text;
        float amount;
    } rows[] = {
        {"12.5", 12.5F}, {"12,5", 12.5F},  {" 7 ", 7.0F},   {"-3,25", -3.25F},   {"0.1", 0.1F},
        {".5", 0.5F},    {"10 euros", 10}, {"1.2.3", 1.2F}, {"1,234,5", 1.234F},
    };
    for (const auto &row : rows)
        EXPECT_EQ(moneyText(row.text), row.amount) << row.text;
}

TEST(Money, OfAWordIsZero) {
    for (const char *text : {"", "  ", "dix", "euro 5", ",", "-", "#"})
        EXPECT_EQ(moneyText(text), 0.0F) << text;
}

TEST(Money, KnowsNoExponent) {
    EXPECT_EQ(moneyText("1e39"), 1.0F);
}

TEST(Money, BeyondSinglePrecisionIsAnOverflow) {
    EXPECT_EQ(failureNumber([] { moneyText("1" + std::string(39, '0')); }), 6);
    EXPECT_EQ(failureNumber([] { moneyText("1" + std::string(400, '0')); }), 6);
    EXPECT_EQ(failureNumber([] { toSingle(-1e39); }), 6);
    EXPECT_EQ(failureNumber([] { addMoney(3e38F, 3e38F); }), 6);
}

TEST(Money, IsRoundedToSinglePrecisionAfterEachAddition) {
    float sum = 0;
    for (int i = 0; i < 1000; ++i)
        sum = addMoney(sum, 0.1F);
    EXPECT_EQ(sum, 99.99905F);                               // it drifts
    EXPECT_NE(sum, static_cast<float>(1000 * double{0.1F})); // as a sum rounded at the end does not
}

TEST(Money, ThatIsNoFiniteAmountStaysWhatItIs) {
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(toSingle(infinite), std::numeric_limits<float>::infinity());
}

} // namespace
} // namespace boulix
