// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/dbComb.h"

#include "support/boulixTest.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace boulix {
namespace {

constexpr ColumnPositions oneToNine = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};

lotoComb combOf(const std::vector<std::int16_t> &sevenNumbers) {
    lotoComb comb;
    for (int i = 1; i <= lotoComb::size; ++i)
        comb.num(i, sevenNumbers[static_cast<std::size_t>(i - 1)]);
    comb.compl_(sevenNumbers.back());
    return comb;
}

std::vector<std::int16_t> sevenNumbersOf(const dbComb &draw) {
    std::vector<std::int16_t> numbers;
    for (int i = 1; i <= lotoComb::size; ++i)
        numbers.push_back(draw.comb().num(i));
    numbers.push_back(draw.comb().compl_());
    return numbers;
}

int failureOfLine(const std::string &line, const ColumnPositions &columns = oneToNine) {
    dbComb draw;
    return failureNumber([&] { draw.fromString(line, columns); });
}

std::string lineWithDay(const std::string &day) {
    return "2;3;5;7;11;13;17;" + day + ";2";
}

TEST(DbComb, CountsTheComplementaryAmongTheEvenOnlyInModeOne) {
    const dbComb draw(0, 1, combOf({2, 4, 6, 8, 10, 12, 14}));
    EXPECT_EQ(draw.countPair(1), 7);
    EXPECT_EQ(draw.countPair(0), 6);
    EXPECT_EQ(draw.countPair(-1), 6);
    EXPECT_EQ(draw.countPair(2), 6);
}

TEST(DbComb, CountsEvenNumbersOnly) {
    EXPECT_EQ(dbComb(0, 1, combOf({1, 2, 3, 4, 5, 7, 9})).countPair(1), 2);
    EXPECT_EQ(dbComb(0, 1, combOf({1, 3, 5, 7, 9, 11, 12})).countPair(0), 0);
    EXPECT_EQ(dbComb(0, 1, combOf({-2, -1, 0, 1, 3, 5, 7})).countPair(0), 2);
}

TEST(DbComb, OfOneDayTheSecondDrawIsTheGreater) {
    const dbComb first(37000, 1, {});
    const dbComb second(37000, 2, {});
    EXPECT_TRUE(second.isGreater(first));
    EXPECT_FALSE(first.isGreater(second));
    EXPECT_FALSE(first.isGreater(dbComb(37000, 1, combOf({1, 2, 3, 4, 5, 6, 7}))));
    EXPECT_FALSE(first.isGreater(first));
}

TEST(DbComb, TheLaterDayIsTheGreaterWhateverTheDrawOfTheDay) {
    const dbComb early(37000, 2, {});
    const dbComb late(37001, 1, {});
    EXPECT_TRUE(late.isGreater(early));
    EXPECT_FALSE(early.isGreater(late));
}

TEST(DbComb, ComparesWholeDays) {
    EXPECT_FALSE(dbComb(37000.9, 1, {}).isGreater(dbComb(37000.1, 1, {})));
    EXPECT_TRUE(dbComb(37000.1, 2, {}).isGreater(dbComb(37000.9, 1, {})));
    EXPECT_TRUE(dbComb(37001.0, 1, {}).isGreater(dbComb(37000.9, 1, {})));
}

TEST(DbComb, ADayThatIsNoNumberIsNeitherGreaterNorLess) {
    const dbComb broken(std::numeric_limits<double>::quiet_NaN(), 2, {});
    const dbComb draw(37000, 1, {});
    EXPECT_FALSE(broken.isGreater(draw));
    EXPECT_FALSE(draw.isGreater(broken));
    EXPECT_FALSE(broken.isGreater(broken));
}

TEST(DbComb, CopyTakesEverythingAndSharesNothing) {
    dbComb original(37000, 2, combOf({1, 2, 3, 4, 5, 6, 7}));
    original.comb().sum(21);
    original.comb().sumtot(28);
    dbComb copy;
    copy.copy(original);
    EXPECT_EQ(copy.day(), 37000);
    EXPECT_EQ(copy.id(), 2);
    EXPECT_EQ(sevenNumbersOf(copy), (std::vector<std::int16_t>{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(copy.comb().sum(), 21);
    EXPECT_EQ(copy.comb().sumtot(), 28);
    copy.comb().num(1, 49);
    EXPECT_EQ(original.comb().num(1), 1);
    original.comb().num(2, 48);
    EXPECT_EQ(copy.comb().num(2), 2);
}

TEST(DbComb, FromStringFillsAllButTheSums) {
    dbComb draw;
    draw.comb().sum(111);
    draw.comb().sumtot(222);
    draw.fromString("2;3;5;7;11;13;17;20030111;2;", oneToNine);
    EXPECT_EQ(sevenNumbersOf(draw), (std::vector<std::int16_t>{2, 3, 5, 7, 11, 13, 17}));
    EXPECT_EQ(draw.day(), dateOf({2003, 1, 11}));
    EXPECT_EQ(draw.id(), 2);
    EXPECT_EQ(draw.comb().sum(), 111);
    EXPECT_EQ(draw.comb().sumtot(), 222);
}

TEST(DbComb, FromStringFollowsTheColumns) {
    dbComb draw;
    draw.fromString("x;2;20030111;17;13;y;11;7;5;3;2;z", {0, 11, 10, 9, 8, 7, 5, 4, 3, 2});
    EXPECT_EQ(sevenNumbersOf(draw), (std::vector<std::int16_t>{2, 3, 5, 7, 11, 13, 17}));
    EXPECT_EQ(draw.day(), dateOf({2003, 1, 11}));
    EXPECT_EQ(draw.id(), 2);
}

TEST(DbComb, FromStringTrimsTheLineButNotTheDate) {
    dbComb draw;
    draw.fromString("   2;3;5;7;11;13;17;20030111;2   ", oneToNine);
    EXPECT_EQ(draw.id(), 2);
    EXPECT_EQ(failureOfLine(lineWithDay("20030111 ")), 13);
}

TEST(DbComb, FromStringReadsTheNumericPrefixOfANumberField) {
    struct {
        const char *field;
        std::int16_t number;
    } const table[] = {{"", 0},      {"boule", 0},        {"x12", 0},    {"12x", 12},
                       {"  12", 12}, {"+12", 12},         {"-12", -12},  {"12,9", 12},
                       {"2.5", 2},   {"3.5", 4},          {"12.51", 13}, {"1e3", 1},
                       {"0x1F", 0},  {"32767", 32767},    {".5", 0},     {"1.5", 2},
                       {"- 3", 0},   {"-32768.4", -32768}};
    for (const auto &row : table) {
        dbComb draw;
        draw.fromString(std::string(row.field) + ";3;5;7;11;13;17;20030111;2", oneToNine);
        EXPECT_EQ(draw.comb().num(1), row.number) << row.field;
        EXPECT_EQ(draw.comb().num(2), 3) << row.field;
    }
}

TEST(DbComb, FromStringReadsAnEmptyFieldBetweenTwoSemicolonsAsZero) {
    dbComb draw;
    draw.fromString("2;;5;;11;13;;20030111;", {0, 1, 2, 3, 4, 5, 6, 7, 8, 4});
    EXPECT_EQ(sevenNumbersOf(draw), (std::vector<std::int16_t>{2, 0, 5, 0, 11, 13, 0}));
    EXPECT_EQ(draw.id(), 0);
}

TEST(DbComb, FromStringFailsOnANumberBeyondSixteenBits) {
    for (const char *number : {"32768", "-32769", "32767.5", "99999999999999999999999999"})
        EXPECT_EQ(failureOfLine("2;3;" + std::string(number) + ";7;11;13;17;20030111;2"), 6)
            << number;
    EXPECT_EQ(failureOfLine("2;3;5;7;11;13;40000;20030111;2"), 6);
    EXPECT_EQ(failureOfLine("2;3;5;7;11;13;17;20030111;40000"), 6);
}

TEST(DbComb, FromStringFailsOnALineWithTooFewFields) {
    for (const char *line :
         {"", "   ", ";", "2;3", "2;3;5;7;11;13;17;20030111", "2;3;5;7;11;13;17;20030111;"})
        EXPECT_EQ(failureOfLine(line), 9) << line;
    EXPECT_EQ(failureOfLine("2;3;5;7;11;13;17;20030111; "), 9);
    EXPECT_EQ(failureOfLine("2;3;5;7;11;13;17;20030111;;"), 0);
}

TEST(DbComb, FromStringFailsOnAColumnThatWasNotFound) {
    EXPECT_EQ(failureOfLine("2;3;5;7;11;13;17;20030111;2", {0, 1, 2, 3, 4, 5, 6, 7, 8, 0}), 9);
    EXPECT_EQ(failureOfLine("2;3;5;7;11;13;17;20030111;2", {0, 1, 2, -3, 4, 5, 6, 7, 8, 9}), 9);
}

TEST(DbComb, FromStringReportsTheFirstThingWrongInTheOrderOfTheColumns) {
    EXPECT_EQ(failureOfLine("2;3;99999;7"), 6);
    EXPECT_EQ(failureOfLine("2;3;5;7;11;13;17;20030230"), 13);
}

TEST(DbComb, FromStringTakesDatesAsTheyStand) {
    struct {
        const char *field;
        CalendarDay day;
    } const table[] = {{"20030111", {2003, 1, 11}},  {"20040229", {2004, 2, 29}},
                       {"19760519", {1976, 5, 19}},  {"20030504", {2003, 5, 4}},
                       {"99991231", {9999, 12, 31}}, {"18991230", {1899, 12, 30}},
                       {"18991229", {1899, 12, 29}}};
    for (const auto &row : table) {
        dbComb draw;
        draw.fromString(lineWithDay(row.field), oneToNine);
        EXPECT_EQ(draw.day(), dateOf(row.day)) << row.field;
    }
}

TEST(DbComb, FromStringReadsTheMonthFromTheFrontOfADateAndTheDayFromItsEnd) {
    struct {
        const char *field;
        CalendarDay day;
    } const table[] = {{"2003111", {2003, 11, 11}},
                       {"200312", {2003, 12, 12}},
                       {"200301011", {2003, 1, 11}},
                       {"2003010528", {2003, 1, 28}}};
    for (const auto &row : table) {
        dbComb draw;
        draw.fromString(lineWithDay(row.field), oneToNine);
        EXPECT_EQ(draw.day(), dateOf(row.day)) << row.field;
    }
}

TEST(DbComb, FromStringFailsOnADateThatDoesNotExist) {
    for (const char *date : {"20030230", "20030229", "20031301", "20030001", "20030100", "20030132",
                             "20031311", "00990101", "00000000"})
        EXPECT_EQ(failureOfLine(lineWithDay(date)), 13) << date;
}

TEST(DbComb, FromStringFailsOnADateThatIsNotAllDigits) {
    for (const char *date : {"", " ", "2", "20031", "2003-01-11", "11/01/2003", "abcdefgh",
                             "2003011x", "x0030111", "2003011 ", "+2030111", "200301-1"})
        EXPECT_EQ(failureOfLine(lineWithDay(date)), 13) << date;
}

TEST(DbComb, FromStringLeavesADrawAsFarFilledAsItCame) {
    dbComb draw(37000, 1, combOf({1, 1, 1, 1, 1, 1, 1}));
    EXPECT_EQ(failureNumber([&] { draw.fromString("2;3;99999;7;11;13;17;20030111;2", oneToNine); }),
              6);
    EXPECT_EQ(sevenNumbersOf(draw), (std::vector<std::int16_t>{2, 3, 1, 1, 1, 1, 1}));
    EXPECT_EQ(draw.day(), 37000);
    EXPECT_EQ(draw.id(), 1);
}

} // namespace
} // namespace boulix
