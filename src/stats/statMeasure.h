// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stats/statTable.h"

#include <cstdint>
#include <optional>
#include <string>

/// What the values of a result can be compared with: one another, and chance.
namespace boulix::modStats {

/// The column of a result that counts draws, and its values over all rows.
struct StatMeasure {
    int column = 0;
    std::int32_t largest = 0;
    double mean = 0;
};

/// The measure of `table`, the result of `type`: its last column. Nothing for the lists of
/// triplets, and where there are no rows.
std::optional<StatMeasure> statMeasure(std::int16_t type, const StatTable &table);

/// How often chance lets each entry of types 1 to 5 come out in so many draws: a number, or a
/// partner together with the chosen ones. `withCompl` as in `ComputeStat`. Nothing for the others.
std::optional<double> expectedFrequency(std::int16_t type, std::int16_t withCompl,
                                        std::int64_t draws);

/// A mean or an expected value as it is shown: with one decimal, and below one with two figures
/// that say something.
std::string measureText(double value);

} // namespace boulix::modStats
