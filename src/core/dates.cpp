// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/dates.h"

#include "core/failure.h"
#include "core/text.h"

#include <chrono>
#include <cmath>

namespace boulix {

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

year_month_day yearMonthDay(const CalendarDay &day) {
    return {std::chrono::year(day.year), std::chrono::month(static_cast<unsigned>(day.month)),
            std::chrono::day(static_cast<unsigned>(day.day))};
}

const sys_days firstDay = yearMonthDay({1899, 12, 30});

} // namespace

Date dateOf(CalendarDay day) {
    // A month or day beyond a byte would be cut by the calendar type and pass for another one.
    const bool plausible = day.year >= 100 && day.year <= 9999 && day.month >= 1 &&
                           day.month <= 12 && day.day >= 1 && day.day <= 31;
    if (!plausible || !yearMonthDay(day).ok())
        fail(Failure::typeMismatch);
    return static_cast<Date>((sys_days(yearMonthDay(day)) - firstDay).count());
}

bool isValidDate(Date date) {
    static const Date first = dateOf({100, 1, 1});
    static const Date last = dateOf({9999, 12, 31});
    return date >= first && date < last + 1;
}

CalendarDay calendarDay(Date date) {
    if (!isValidDate(date))
        fail(Failure::overflow);
    const auto whole = static_cast<int>(std::floor(date));
    const year_month_day day(firstDay + std::chrono::days(whole));
    return {int(day.year()), static_cast<int>(unsigned(day.month())),
            static_cast<int>(unsigned(day.day()))};
}

std::string longDate(Date date) {
    const CalendarDay day = calendarDay(date);
    return zeroPadded(day.day, 2) + "/" + zeroPadded(day.month, 2) + "/" + zeroPadded(day.year, 4);
}

} // namespace boulix
