// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a search line asks for, and which draws it finds, held against a plain search.

#include "core/text.h"
#include "draws/drawQuery.h"
#include "draws/drawsTest.h"
#include "support/lottery.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace boulix {
namespace {

using Kind = DrawQuery::Kind;
using Positions = std::vector<std::int32_t>;

/// A query in short: "d 15 3 2003-2003", with 0 for any; "n 7 13 22"; "?" or "" for no query.
std::string brief(const std::string &text) {
    const DrawQuery query = parseDrawQuery(text);
    switch (query.kind) {
    case Kind::nothing:
        return "";
    case Kind::unclear:
        return "?";
    case Kind::numbers: {
        std::string numbers = "n";
        forEachNumber(query.numbers, [&](std::int16_t n) { numbers += " " + std::to_string(n); });
        return numbers;
    }
    case Kind::date:
        break;
    }
    std::string date = "d " + std::to_string(query.day) + " " + std::to_string(query.month);
    for (const DrawQuery::Years &years : query.years)
        if (years.first <= years.last)
            date += " " + std::to_string(years.first) + "-" + std::to_string(years.last);
    return date;
}

TEST(DrawQueryText, IsADayOrAPartOfOneOrNumbers) {
    const std::vector<std::pair<const char *, const char *>> table = {
        {"", ""},
        {"   ", ""},
        {"7", "n 7"},
        {"07", "n 7"},
        {"7 13 22", "n 7 13 22"},
        {"22, 7 et 13", "n 7 13 22"},
        {"7;13+49", "n 7 13 49"},
        {"7 7", "n 7"},
        {"0", "?"},
        {"50", "?"},
        {"7 50", "?"},
        {"7 x", "?"},
        {"-", "?"},
        {"15/3/2003", "d 15 3 2003-2003"},
        {"15/03/2003", "d 15 3 2003-2003"},
        {"15-03-2003", "d 15 3 2003-2003"},
        {"15.3.2003", "d 15 3 2003-2003"},
        {"15 03 2003", "d 15 3 2003-2003"},
        {"2003-03-15", "d 15 3 2003-2003"},
        {"20030315", "d 15 3 2003-2003"},
        {"15 mars 2003", "d 15 3 2003-2003"},
        {"1er AOÛT 1998", "d 1 8 1998-1998"},
        {"1 aout 1998", "d 1 8 1998-1998"},
        {"12 févr 1977", "d 12 2 1977-1977"},
        {"12 Décembre", "d 12 12"},
        {"mars 2003", "d 0 3 2003-2003"},
        {"mars", "d 0 3"},
        {"ma", "?"},
        {"mars avril", "?"},
        {"3/2003", "d 0 3 2003-2003"},
        {"03/2003", "d 0 3 2003-2003"},
        {"2003-03", "d 0 3 2003-2003"},
        {"200303", "d 0 3 2003-2003"},
        {"2003", "d 0 0 2003-2003"},
        {"15/3", "d 15 3"},
        {"32/3/2003", "?"},
        {"15/13/2003", "?"},
        {"1/2/3/4", "?"},
        {"15/x/2003", "?"},
        {"123456789", "?"},
        {"12345", "?"},
    };
    for (const auto &[text, expected] : table)
        EXPECT_EQ(brief(text), expected) << text;
}

TEST(DrawQueryText, IsReadAsFarAsItIsTyped) {
    const std::vector<std::pair<const char *, const char *>> table = {
        {"15/", "d 15 0"},
        {"15/0", "d 15 0"},
        {"15/03", "d 15 3"},
        {"15/03/", "d 15 3"},
        {"15/03/2", "d 15 3 2000-2999"},
        {"15/03/20", "d 15 3 2000-2099 2020-2020"},
        {"15/03/200", "d 15 3 2000-2009"},
        {"15/03/03", "d 15 3 300-399 2003-2003"},
        {"15/03/76", "d 15 3 7600-7699 1976-1976"},
        {"15/03/75", "d 15 3 7500-7599 2075-2075"},
        {"3/20", "d 0 3 2000-2099 2020-2020"},
        {"200", "d 0 0 2000-2009"},
    };
    for (const auto &[text, expected] : table)
        EXPECT_EQ(brief(text), expected) << text;
}

class DrawSearch : public DrawsTest {
  protected:
    static Positions find(const std::string &text) {
        return findDraws(*gDbCombs, parseDrawQuery(text));
    }
    static std::int32_t nearest(const std::string &text) {
        return nearestDraw(*gDbCombs, parseDrawQuery(text));
    }
};

const DrawOf drawA = {37632, 1, {2, 3, 5, 7, 11, 13, 17}, 41, 58};    // 11 January 2003
const DrawOf drawB = {37636, 1, {1, 4, 22, 30, 41, 49, 8}, 147, 155}; // 15 January 2003
const DrawOf drawC = {37636, 2, {7, 4, 22, 30, 41, 48, 13}, 0, 0};    // the same day

TEST_F(DrawSearch, FindsTheDrawsThatHoldAllTheNumbersTheComplementaryAmongThem) {
    for (const DrawOf &draw : {drawA, drawB, drawC})
        add(draw);
    EXPECT_EQ(find("7"), (Positions{1, 3}));
    EXPECT_EQ(find("13 7"), (Positions{1, 3}));
    EXPECT_EQ(find("7 13 22"), (Positions{3}));
    EXPECT_EQ(find("7 49"), Positions{});
    EXPECT_EQ(find("50"), Positions{});
    EXPECT_EQ(find(""), Positions{});
}

TEST_F(DrawSearch, FindsTheDrawsOfADayOfAMonthAndOfAYear) {
    for (const DrawOf &draw : {drawA, drawB, drawC})
        add(draw);
    EXPECT_EQ(find("15/1/2003"), (Positions{2, 3}));
    EXPECT_EQ(find("1/2003"), (Positions{1, 2, 3}));
    EXPECT_EQ(find("2003"), (Positions{1, 2, 3}));
    EXPECT_EQ(find("11 janvier"), (Positions{1}));
    EXPECT_EQ(find("15/1/03"), (Positions{2, 3}));
    EXPECT_EQ(find("15/1/2004"), Positions{});
    EXPECT_EQ(find("2004"), Positions{});
}

TEST_F(DrawSearch, FindsInABaseWithDamagedDrawsToo) {
    add(drawA);
    add({37640, 1, {7, 7, 7, 0, -3, 99, 22}, 0, 0});
    gDbCombs->Item(1).day(std::nan(""));
    EXPECT_EQ(find("7"), (Positions{1, 2}));
    EXPECT_EQ(find("7 22"), (Positions{2}));
    EXPECT_EQ(find("2003"), (Positions{2}));
}

TEST_F(DrawSearch, AnEmptyBaseHasNothingToFind) {
    EXPECT_EQ(find("7"), Positions{});
    EXPECT_EQ(find("2003"), Positions{});
    EXPECT_EQ(nearest("15/1/2003"), 0);
}

TEST_F(DrawSearch, TheNearestDrawIsTheLaterOneOfTwo) {
    for (const DrawOf &draw : {drawA, drawB, drawC})
        add(draw);
    EXPECT_EQ(nearest("1/1/1990"), 1);
    EXPECT_EQ(nearest("12/1/2003"), 1);
    EXPECT_EQ(nearest("13/1/2003"), 3) << "two days to either side";
    EXPECT_EQ(nearest("1/1/2030"), 3);
    EXPECT_EQ(nearest("31/2/2003"), 3) << "a day that no month has";
}

/// Looks at each cell of the list, as a user would.
bool holdsAll(const dbComb &draw, const std::vector<int> &numbers) {
    std::set<int> cells = {draw.comb().compl_()};
    for (int i = 1; i <= lotoComb::size; ++i)
        cells.insert(draw.comb().num(i));
    return std::all_of(numbers.begin(), numbers.end(), [&](int n) { return cells.count(n) > 0; });
}

TEST_F(DrawSearch, AgreesWithAPlainLookAtTheCells) {
    std::mt19937 random{2003};
    for (const int draws : {1, 63, 64, 65, 700}) {
        gDbCombs->clear();
        addRandomDraws(draws, random);
        for (int time = 0; time < 200; ++time) {
            std::vector<int> numbers(std::uniform_int_distribution<std::size_t>(1, 4)(random));
            std::string text;
            for (int &n : numbers) {
                n = std::uniform_int_distribution<int>(1, 49)(random);
                text += std::to_string(n) + " ";
            }
            Positions expected;
            for (std::int32_t i = 1; i <= gDbCombs->Count(); ++i)
                if (holdsAll(gDbCombs->Item(i), numbers))
                    expected.push_back(i);
            ASSERT_EQ(find(text), expected) << text << "in " << draws << " draws";
        }
    }
}

TEST_F(DrawSearch, AgreesWithAPlainLookAtTheDates) {
    std::mt19937 random{1976};
    std::uniform_int_distribution<int> day(28000, 40000);
    for (int i = 0; i < 500; ++i)
        add({static_cast<Date>(day(random)), 1, {1, 2, 3, 4, 5, 6, 7}, 0, 0});
    for (int time = 0; time < 300; ++time) {
        const std::string date = longDate(day(random)); // dd/mm/yyyy
        const std::size_t cut =
            std::vector<std::size_t>{0, 3, 6}[static_cast<std::size_t>(time % 3)];
        Positions expected;
        for (std::int32_t i = 1; i <= gDbCombs->Count(); ++i)
            if (longDate(gDbCombs->Item(i).day()).substr(cut) == date.substr(cut))
                expected.push_back(i);
        ASSERT_EQ(find(date.substr(cut)), expected) << date.substr(cut);
    }
}

} // namespace
} // namespace boulix
