// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/exactAmounts.h"

#include "core/numbers.h"
#include "core/text.h"
#include "winnings/rapport.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace boulix {

namespace {

constexpr std::int64_t highestSum = std::int64_t{1} << 62U;

std::size_t decimalsOf(const std::string &amount) {
    const std::size_t dot = amount.find('.');
    return dot == std::string::npos ? 0 : amount.size() - dot - 1;
}

/// `value` times ten plus `digit`, unless that is beyond `limit`.
bool append(std::int64_t &value, int digit, std::int64_t limit) {
    if (value > (limit - digit) / 10)
        return false;
    value = value * 10 + digit;
    return true;
}

/// The plain decimal `amount` in units of which ten to the `decimals` make one of money.
std::optional<std::int64_t> inUnits(std::string amount, std::size_t decimals, std::int64_t limit) {
    amount.append(decimals - decimalsOf(amount), '0');
    std::int64_t value = 0;
    for (const char c : amount)
        if (c >= '0' && c <= '9' && !append(value, c - '0', limit))
            return std::nullopt;
    return amount.front() == '-' ? -value : value;
}

} // namespace

std::optional<ExactAmounts> exactAmounts(const rapport &prizes, float price, std::int64_t grids) {
    std::vector<std::string> texts;
    for (std::int16_t index = -1; index < rapport::size; ++index) {
        const float amount = index < 0 ? price : prizes.Value(index);
        if (!std::isfinite(amount))
            return std::nullopt;
        texts.push_back(plainDecimal(amount));
    }
    std::size_t decimals = 0;
    for (const std::string &text : texts)
        decimals = std::max(decimals, decimalsOf(text));
    const std::int64_t limit = (highestSum - 1) / std::max<std::int64_t>(grids, 1);
    ExactAmounts amounts;
    for (std::size_t i = 0; i < decimals; ++i)
        if (!append(amounts.unit, 0, limit))
            return std::nullopt;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto value = inUnits(texts[i], decimals, limit);
        if (!value)
            return std::nullopt;
        (i == 0 ? amounts.price : amounts.prizes[i]) = *value;
    }
    return amounts;
}

} // namespace boulix
