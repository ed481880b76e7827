// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"

#include <cstdint>
#include <string>
#include <vector>

namespace boulix {
class selector;
}

/// How the result of a statistic reads: its rows of numbers and its sentence.
namespace boulix::modStats {

/// A copy of a result as rows of numbers, so that it stays as it is when the stores change.
struct StatTable {
    std::vector<ReportColumn> columns;
    std::vector<int> digits;         ///< by column: filled with zeros to so many
    std::vector<std::int32_t> cells; ///< row by row

    std::int64_t rowCount() const;
    std::int32_t value(std::int64_t row, int column) const;
    std::string text(std::int64_t row, int column) const;
};

/// The largest value of a result, and the entry that holds it; of equal ones the last.
struct Best {
    std::int32_t value = 0;
    std::int32_t at = 0;
};

/// The best entry of the stores for `type`: a number, a sum, a period, a class of even numbers.
Best bestOf(std::int16_t type);

/// The stores as rows for `type`. Types 2 to 5 have neither columns nor rows when `chooser`
/// holds no number.
StatTable statTable(std::int16_t type, const selector &chooser);

/// The sentence under the list for `type`. A number that `chooser` does not hold is reported by
/// it and reads as 0. Types 2 to 5 without a hit have an empty one.
std::string statSummary(std::int16_t type, const selector &chooser);

/// The name and the description of `type` with the suffix that tells whether the complementary
/// number counts (`withCompl` 1) or not.
std::string statTitle(std::int16_t type, std::int16_t withCompl);
std::string statDescription(std::int16_t type, std::int16_t withCompl);

} // namespace boulix::modStats
