// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/dates.h"

#include "core/platform.h"
#include "support/boulixTest.h"

#include <cstdio>
#include <limits>

namespace boulix {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

bool isLeap(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int daysIn(int month, int year) {
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && isLeap(year) ? 29 : days[month - 1];
}

TEST(Dates, EveryDayFrom1899To2100HasItsPlaceInTheCount) {
    Date expected = dateOf({1899, 1, 1});
    for (int year = 1899; year <= 2100; ++year)
        for (int month = 1; month <= 12; ++month)
            for (int day = 1; day <= daysIn(month, year); ++day, ++expected) {
                const Date date = dateOf({year, month, day});
                ASSERT_EQ(date, expected);
                char text[32];
                std::snprintf(text, sizeof text, "%02d/%02d/%04d", day, month, year);
                ASSERT_EQ(longDate(date), text);
                const CalendarDay back = calendarDay(date);
                ASSERT_EQ(back.year, year);
                ASSERT_EQ(back.month, month);
                ASSERT_EQ(back.day, day);
            }
}

TEST(Dates, TheCountStartsOn30December1899) {
    EXPECT_EQ(dateOf({1899, 12, 30}), 0);
    EXPECT_EQ(dateOf({1900, 1, 1}), 2);
    EXPECT_EQ(dateOf({1976, 5, 19}), 27899);
    EXPECT_EQ(dateOf({2008, 10, 4}), 39725);
}

TEST(Dates, ADayThatDoesNotExistIsATypeMismatch) {
    constexpr CalendarDay wrong[] = {{2003, 2, 30},  {2003, 2, 29},  {1900, 2, 29}, {2003, 4, 31},
                                     {2003, 0, 1},   {2003, 13, 1},  {2003, 1, 0},  {2003, 1, 32},
                                     {99, 1, 1},     {10000, 1, 1},  {0, 1, 1},     {-2003, 1, 1},
                                     {2003, 257, 1}, {2003, 1, 257}, {2003, -1, 1}, {2003, 1, -1}};
    for (const CalendarDay &day : wrong)
        EXPECT_EQ(failureNumber([&day] { dateOf(day); }), 13)
            << day.year << '-' << day.month << '-' << day.day;
    EXPECT_EQ(failureNumber([] { dateOf({2000, 2, 29}); }), 0);
}

TEST(Dates, TheFirstAndTheLastDayCanBeShown) {
    EXPECT_EQ(longDate(dateOf({100, 1, 1})), "01/01/0100");
    EXPECT_EQ(longDate(dateOf({9999, 12, 31})), "31/12/9999");
}

TEST(Dates, TheTimeOfDayIsCutOff) {
    EXPECT_EQ(longDate(dateOf({2026, 11, 15}) + 0.75), "15/11/2026");
    EXPECT_EQ(longDate(dateOf({9999, 12, 31}) + 0.999), "31/12/9999");
}

TEST(Dates, ADateThatCannotBeShownIsAnOverflow) {
    const Date wrong[] = {
        nan, infinity, -infinity, 1e300, dateOf({9999, 12, 31}) + 1, dateOf({100, 1, 1}) - 1};
    for (const Date date : wrong) {
        EXPECT_FALSE(isValidDate(date));
        EXPECT_EQ(failureNumber([date] { calendarDay(date); }), 6);
        EXPECT_EQ(failureNumber([date] { longDate(date); }), 6);
        EXPECT_EQ(failureNumber([date] { shortDate(date); }), 6);
    }
}

using ShortDates = FreshProgramTest;

TEST_F(ShortDates, TheShortFormIsTheOneOfTheSystem) {
    EXPECT_EQ(shortDate(dateOf({2008, 10, 4})), "04-10-2008");
    platform.shortForm = [](Date date) { return longDate(date).substr(0, 5); };
    EXPECT_EQ(shortDate(dateOf({2008, 10, 4})), "04/10");
}

} // namespace
} // namespace boulix
