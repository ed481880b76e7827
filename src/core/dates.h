// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace boulix {

/// A date: a count of days since 30 December 1899; whole for the day of a draw.
using Date = double;

/// A day of the Gregorian calendar.
struct CalendarDay {
    int year;
    int month; ///< 1 to 12
    int day;   ///< 1 to 31
};

/// The date of a calendar day, years 100 to 9999; a day that does not exist fails with
/// `Failure::typeMismatch`.
Date dateOf(CalendarDay day);

/// Whether `date` is a number within the years 100 to 9999, so that it can be shown.
bool isValidDate(Date date);

/// The calendar day of `date`, its time of day cut off; an invalid date fails with
/// `Failure::overflow`.
CalendarDay calendarDay(Date date);

/// `date` in the form "dd/mm/yyyy".
std::string longDate(Date date);

} // namespace boulix
