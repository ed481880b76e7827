// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/frenchNumbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace boulix {

namespace {

constexpr const char *noBreakSpace = "\u00a0";
constexpr const char *dash = "\u2014";
constexpr int mostDecimals = 12;

std::string grouped(const std::string &digits) {
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            text += noBreakSpace;
        text += digits[i];
    }
    return text;
}

/// So many decimals that three digits of a value below one say something.
int decimalsOfSmall(double value) {
    const int zeros = static_cast<int>(std::floor(-std::log10(value)));
    return std::min(zeros + 3, mostDecimals);
}

} // namespace

std::string groupedNumber(std::uint64_t value) {
    return grouped(std::to_string(value));
}

std::string commaNumber(double value, int decimals) {
    std::array<char, 400> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                   std::chars_format::fixed, decimals);
    const std::string digits(buffer.data(), end.ptr);
    const std::size_t dot = digits.find('.');
    std::string text = grouped(digits.substr(0, dot));
    if (dot != std::string::npos)
        text += "," + digits.substr(dot + 1);
    const bool isZero = digits.find_first_not_of("0.") == std::string::npos;
    return value < 0 && !isZero ? "-" + text : text;
}

std::string percentText(std::uint64_t part, std::uint64_t all) {
    if (part == 0 || part == all)
        return part == 0 ? "0" : "100";
    const double percent = 100 * static_cast<double>(part) / static_cast<double>(all);
    if (percent < 1)
        return commaNumber(percent, decimalsOfSmall(percent));
    int decimals = 2;
    while (decimals < mostDecimals && commaNumber(percent, decimals).rfind("100", 0) == 0)
        ++decimals;
    return commaNumber(percent, decimals);
}

std::string oneInText(std::uint64_t part, std::uint64_t all) {
    if (part == 0)
        return dash;
    if (all % part == 0)
        return groupedNumber(all / part);
    const double n = static_cast<double>(all) / static_cast<double>(part);
    return commaNumber(n, n < 100 ? 2 : 0);
}

std::string amountText(double amount) {
    const double size = std::abs(amount);
    if (size == std::floor(size))
        return commaNumber(amount, 0);
    return commaNumber(amount, size < 0.1 ? decimalsOfSmall(size) : 2);
}

std::string amountWithUnit(double amount, const std::string &unit) {
    std::string text = amountText(amount) + " " + unit;
    const bool word = unit.size() > 1 && unit.back() >= 'a' && unit.back() <= 'z';
    if (std::abs(amount) >= 2 && word && std::string("sxz").find(unit.back()) == std::string::npos)
        text += "s";
    return text;
}

} // namespace boulix
