// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/frenchNumbers.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

/// The no-break spaces of `text` as blanks, for the eye.
std::string readable(std::string text) {
    const std::string noBreak = "\u00a0";
    for (std::size_t at = text.find(noBreak); at != std::string::npos; at = text.find(noBreak))
        text.replace(at, noBreak.size(), " ");
    return text;
}

TEST(FrenchNumbers, AreGroupedByThreeDigits) {
    EXPECT_EQ(readable(groupedNumber(0)), "0");
    EXPECT_EQ(readable(groupedNumber(999)), "999");
    EXPECT_EQ(readable(groupedNumber(1000)), "1 000");
    EXPECT_EQ(readable(groupedNumber(13'983'816)), "13 983 816");
    EXPECT_EQ(groupedNumber(1000), "1\u00a0000") << "no line ends within a number";
}

TEST(FrenchNumbers, HaveAComma) {
    EXPECT_EQ(readable(commaNumber(1234.5, 2)), "1 234,50");
    EXPECT_EQ(readable(commaNumber(-1234567, 0)), "-1 234 567");
    EXPECT_EQ(commaNumber(-0.001, 2), "0,00");
    EXPECT_EQ(commaNumber(2.5, 3), "2,500");
}

TEST(FrenchNumbers, APercentageSaysSomethingHoweverSmallOrLargeItIs) {
    EXPECT_EQ(percentText(0, 7), "0");
    EXPECT_EQ(percentText(7, 7), "100");
    EXPECT_EQ(percentText(1, 3), "33,33");
    EXPECT_EQ(percentText(1, 100), "1,00");
    EXPECT_EQ(percentText(43, 601'304'088), "0,00000715");
    EXPECT_EQ(percentText(9'999'999, 10'000'000), "99,99999") << "not quite all";
    EXPECT_EQ(percentText(601'304'087, 601'304'088), "99,9999998");
}

TEST(FrenchNumbers, OneChanceInSoMany) {
    EXPECT_EQ(readable(oneInText(43, 601'304'088)), "13 983 816");
    EXPECT_EQ(readable(oneInText(301, 601'304'088)), "1 997 688");
    EXPECT_EQ(oneInText(2, 5), "2,50");
    EXPECT_EQ(oneInText(5, 5), "1");
    EXPECT_EQ(oneInText(0, 5), "\u2014");
}

TEST(FrenchNumbers, AmountsAreWholeOrHaveCents) {
    EXPECT_EQ(readable(amountText(1200)), "1 200");
    EXPECT_EQ(amountText(0.6), "0,60");
    EXPECT_EQ(amountText(0), "0");
    EXPECT_EQ(amountText(-2.346), "-2,35");
    EXPECT_EQ(amountText(0.00123), "0,00123");
}

TEST(FrenchNumbers, AUnitThatIsAWordTakesAnSFromTwoOn) {
    EXPECT_EQ(amountWithUnit(1.5, "euro"), "1,50 euro");
    EXPECT_EQ(amountWithUnit(2, "euro"), "2 euros");
    EXPECT_EQ(amountWithUnit(-2, "euro"), "-2 euros");
    EXPECT_EQ(amountWithUnit(30, "€"), "30 €");
    EXPECT_EQ(amountWithUnit(30, "F"), "30 F");
    EXPECT_EQ(amountWithUnit(30, "francs"), "30 francs");
}

} // namespace
} // namespace boulix
