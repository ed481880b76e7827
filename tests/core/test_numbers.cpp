// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/numbers.h"

#include "support/boulixTest.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace boulix {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Rounding, TiesGoToTheEvenNumber) {
    for (int n = -40'000; n <= 40'000; ++n) {
        const double even = n % 2 == 0 ? n : n + 1;
        ASSERT_EQ(roundHalfEven(n + 0.5), even) << n;
        ASSERT_EQ(roundHalfEven(n), n);
        ASSERT_EQ(roundHalfEven(n + 0.4999999), n);
        ASSERT_EQ(roundHalfEven(n + 0.5000001), n + 1);
    }
}

TEST(Rounding, AgreesWithTheProcessorsOwn) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> values(-1e6, 1e6);
    for (int i = 0; i < 100'000; ++i) {
        const double value = values(random);
        ASSERT_EQ(roundHalfEven(value), std::nearbyint(value)) << value;
    }
    EXPECT_EQ(roundHalfEven(0.49999999999999994), 0); // the one that adding a half gets wrong
    EXPECT_EQ(roundHalfEven(1e300), 1e300);
    EXPECT_TRUE(std::isnan(roundHalfEven(nan)));
}

TEST(Narrowing, RoundsAndRefusesWhatDoesNotFit) {
    EXPECT_EQ(toInt16(32767.4), 32767);
    EXPECT_EQ(toInt16(-32768.5), -32768);
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt32(2147483647.4), 2147483647);
    EXPECT_EQ(narrow16(-32768), -32768);
    for (const double value : {32767.5, -32769.0, 1e300, infinity, -infinity, nan})
        EXPECT_EQ(failureNumber([value] { toInt16(value); }), 6) << value;
    for (const double value : {2147483647.5, -2147483649.0, infinity, nan})
        EXPECT_EQ(failureNumber([value] { toInt32(value); }), 6) << value;
    EXPECT_EQ(failureNumber([] { narrow16(32768); }), 6);
    EXPECT_EQ(failureNumber([] { narrow16(-32769); }), 6);
}

TEST(Indices, OutsideTheirRangeFail) {
    EXPECT_EQ(checkedIndex(1, 1, 3), 1);
    EXPECT_EQ(checkedIndex(3, 1, 3), 3);
    EXPECT_EQ(failureNumber([] { checkedIndex(0, 1, 3); }), 9);
    EXPECT_EQ(failureNumber([] { checkedIndex(4, 1, 3); }), 9);
    EXPECT_EQ(failureNumber([] { checkedIndex(1, 1, 0); }), 9);
}

struct PrefixCase {
    const char *text;
    double value;
};

TEST(NumericPrefix, TakesSignDigitsAndDecimalPart) {
    constexpr PrefixCase cases[] = {
        {"12", 12},      {"  12", 12}, {"-1", -1},     {"+7", 7},  {"12abc", 12}, {"1.5", 1.5},
        {"1.5.2", 1.5},  {".5", 0.5},  {"-.25", -.25}, {"3.", 3},  {"1,5", 1},    {"1e3", 1},
        {"0x10", 0},     {"&H10", 0},  {"1 2", 1},     {"", 0},    {" ", 0},      {"abc", 0},
        {"-", 0},        {"+-1", 0},   {"- 1", 0},     {".", 0},   {"-.", 0},     {"inf", 0},
        {"nan", 0},      {"007", 7},   {"1\t", 1},     {"\t1", 0}, {"12;13", 12}, {"--1", 0},
        {"0.6 euro", .6}};
    for (const PrefixCase &expected : cases)
        EXPECT_EQ(numericPrefix(expected.text), expected.value) << '"' << expected.text << '"';
}

TEST(NumericPrefix, ATabIsNoBlankAndEndsTheLookForANumber) {
    EXPECT_EQ(numericPrefix(" \t12"), 0);
    EXPECT_EQ(numericPrefix("\t -12"), 0);
    EXPECT_EQ(numericPrefix(" 12\t34"), 12);
    EXPECT_EQ(failureNumber([] { wholeNumberText("\t12"); }), 13);
}

TEST(NumericPrefix, AZeroHasNoSign) {
    for (const char *text : {"-0", "-0.0", "-.0", "-0 euro", "- ", "-"})
        EXPECT_FALSE(std::signbit(numericPrefix(text))) << '"' << text << '"';
    EXPECT_FALSE(std::signbit(numericPrefix("-0." + std::string(400, '0') + "1")));
    for (const char *text : {"-0", "-0,0", " -.0 "})
        EXPECT_FALSE(std::signbit(wholeNumberText(text))) << '"' << text << '"';
    EXPECT_TRUE(std::signbit(numericPrefix("-0.5")));
}

TEST(NumericPrefix, AVerySmallNumberIsZeroAndAVeryLargeOneAnOverflow) {
    EXPECT_EQ(numericPrefix("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(numericPrefix("0." + std::string(1'000'000, '0')), 0);
    EXPECT_EQ(numericPrefix(std::string(500, '0') + "1"), 1);
    EXPECT_EQ(failureNumber([] { numericPrefix(std::string(400, '9')); }), 6);
    EXPECT_EQ(failureNumber([] { numericPrefix("-" + std::string(400, '9')); }), 6);
}

TEST(NumericPrefix, IsNotStoppedByBytesOfAnyKind) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> bytes(0, 255);
    for (int i = 0; i < 20'000; ++i) {
        std::string text(8, ' ');
        for (char &c : text)
            c = static_cast<char>(bytes(random));
        ASSERT_TRUE(std::isfinite(numericPrefix(text)));
    }
}

TEST(WholeNumberText, IsANumberFromEndToEnd) {
    EXPECT_EQ(wholeNumberText(" 12 "), 12);
    EXPECT_EQ(wholeNumberText("1.5"), 1.5);
    EXPECT_EQ(wholeNumberText("1,5"), 1.5);
    EXPECT_EQ(wholeNumberText("-3"), -3);
    for (const char *text :
         {"", " ", "abc", "12a", "1 2", "1,5,2", "1.5,2", "0x1", "1e3", "-", "."})
        EXPECT_EQ(failureNumber([text] { wholeNumberText(text); }), 13) << '"' << text << '"';
    EXPECT_EQ(failureNumber([] { wholeNumberText(std::string(400, '9')); }), 6);
}

} // namespace
} // namespace boulix
