// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

class dbComb;
class dbCombs;

/// What a search line asks of the base: a day or a part of one, or numbers.
struct DrawQuery {
    enum class Kind { nothing, date, numbers, unclear };
    struct Years {
        int first = 0;
        int last = -1;
        bool hold(int year) const { return year >= first && year <= last; }
    };

    Kind kind = Kind::nothing;
    std::uint64_t numbers = 0; ///< a mask; all of them are wanted
    int day = 0;               ///< 1 to 31, 0 for any
    int month = 0;             ///< 1 to 12, 0 for any
    /// The years that are meant; with neither of them any year is.
    std::array<Years, 2> years;

    /// Whether one day is meant, and no other.
    bool isOneDay() const;
};

/// Reads a search line. Numbers of 1 to 49 are parted by blanks, commas, "+" or "et". A day is
/// "15/3/2003", "2003-03-15", "20030315" or "15 mars 2003"; what stays open is left out
/// ("3/2003", "mars 2003", "2003", "15/3"), and a year that is being typed stands for all that
/// begin so. Of two digits it is also the one nearest to the lottery's times: 76 is 1976.
DrawQuery parseDrawQuery(const std::string &text);

/// Whether the draw is one that `query` asks for. A number that is asked for can be the
/// complementary one.
bool matches(const dbComb &draw, const DrawQuery &query);

/// The positions of all draws that `query` asks for, ascending.
std::vector<std::int32_t> findDraws(const dbCombs &base, const DrawQuery &query);

/// The position of the draw nearest to the one day that `query` means, of two the later one; 0 in
/// a base without draws.
std::int32_t nearestDraw(const dbCombs &base, const DrawQuery &query);

} // namespace boulix
