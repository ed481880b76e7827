// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/statMeasure.h"

#include "core/frenchNumbers.h"
#include "stats/statTypes.h"

#include <algorithm>
#include <cmath>

namespace boulix::modStats {

namespace {

/// The chance that all of `k` given numbers are among `drawn` ones out of `from`.
double chanceOfAll(int k, int drawn, int from) {
    double chance = 1;
    for (int i = 0; i < k; ++i)
        chance *= static_cast<double>(drawn - i) / (from - i);
    return chance;
}

} // namespace

std::optional<StatMeasure> statMeasure(std::int16_t type, const StatTable &table) {
    const std::int64_t rows = table.rowCount();
    if (!isStatType(type) || type == 11 || type == 12 || rows == 0)
        return std::nullopt;
    StatMeasure measure;
    measure.column = static_cast<int>(table.columns.size()) - 1;
    double sum = 0;
    for (std::int64_t row = 0; row < rows; ++row) {
        const std::int32_t value = table.value(row, measure.column);
        measure.largest = std::max(measure.largest, value);
        sum += value;
    }
    measure.mean = sum / static_cast<double>(rows);
    return measure;
}

std::optional<double> expectedFrequency(std::int16_t type, std::int16_t withCompl,
                                        std::int64_t draws) {
    if (type < 1 || type > 5)
        return std::nullopt;
    const auto count = static_cast<double>(draws);
    if (type == 1)
        return count * (withCompl == 1 ? 7 : 6) / 49;
    // The partner is always one of the six; the complementary can stand for a chosen number only.
    const int chosen = type - 1;
    const int others = withCompl == 1 ? 6 : 5;
    return count * 6 / 49 * chanceOfAll(chosen, others, 48);
}

std::string measureText(double value) {
    if (value <= 0 || value >= 1)
        return commaNumber(value, 1);
    const int zeros = static_cast<int>(std::floor(-std::log10(value))); // behind the comma
    return commaNumber(value, zeros + 2);
}

} // namespace boulix::modStats
