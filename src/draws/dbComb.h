// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/dates.h"
#include "draws/lotoComb.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <string>

namespace boulix {

/// Where each datum stands among the fields of a line of the operator's file, counted from 1;
/// 0 for a column that was not found. Index 1 to 6: the numbers, 7: the complementary, 8: the
/// date, 9: the draw of the day.
using ColumnPositions = std::array<std::int16_t, 10>;

/// One draw: its day, the draw of that day, its numbers.
class dbComb {
  public:
    dbComb() = default;
    dbComb(Date day, std::int16_t id, const lotoComb &comb) : day_(day), id_(id), comb_(comb) {}

    const lotoComb &comb() const { return comb_; }
    lotoComb &comb() { return comb_; }
    void comb(const lotoComb &comb) { comb_ = comb; }
    std::int16_t id() const { return id_; }
    void id(std::int16_t id) { id_ = id; }
    Date day() const { return day_; }
    void day(Date day) { day_ = day; }

    bool operator==(const dbComb &) const = default;
    /// Overwrites this draw with the contents of `other`.
    void copy(const dbComb &other) { *this = other; }
    /// How many of the six numbers are even; the complementary counts only with `mode` 1.
    std::int16_t countPair(std::int16_t mode) const;
    /// Whether this draw is later than `other`: by day, then by draw of the day.
    bool isGreater(const dbComb &other) const {
        const double wholeDay = std::floor(day_);
        const double otherWholeDay = std::floor(other.day_);
        return wholeDay > otherWholeDay || (wholeDay == otherWholeDay && id_ > other.id_);
    }
    /// Fills day, draw of the day and the seven numbers from a line of the operator's file; the
    /// sums stay. Too few fields, an impossible date or a value beyond 16 bits is a run-time
    /// failure, and the draw is then as far filled as the line was read.
    void fromString(const std::string &line, const ColumnPositions &columns);
    /// Lets the user change the draw through the number dialog and the date dialog.
    void modify();

  private:
    Date day_ = 0;
    std::int16_t id_ = 0;
    lotoComb comb_;
};

} // namespace boulix
