// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/numbers.h"

#include "core/text.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace boulix {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

template <class Integer>
Integer narrowRounded(double value) {
    const double rounded = roundHalfEven(value);
    const bool fits = rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
                      rounded <= static_cast<double>(std::numeric_limits<Integer>::max());
    if (!fits)
        fail(Failure::overflow);
    return static_cast<Integer>(rounded);
}

/// How many characters of `text` belong to a number at its very start: sign, digits, one dot.
std::size_t numberLength(std::string_view text) {
    std::size_t at = 0;
    if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        ++at;
    const std::size_t digitsFrom = at;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    std::size_t digits = at - digitsFrom;
    if (at < text.size() && text[at] == '.') {
        std::size_t behind = at + 1;
        while (behind < text.size() && isDigit(text[behind]))
            ++behind;
        digits += behind - at - 1;
        if (digits > 0)
            at = behind;
    }
    return digits > 0 ? at : 0;
}

double toDouble(std::string_view number) {
    if (!number.empty() && number.front() == '+')
        number.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value,
                                        std::chars_format::fixed);
    if (result.ec != std::errc::result_out_of_range)
        return value + 0.0; // "-0" is plain zero
    // Too large for a double, or, with nothing but zeros before the dot, too small.
    if (number.find_first_of("123456789") < number.find('.'))
        fail(Failure::overflow);
    return 0;
}

} // namespace

double roundHalfEven(double value) {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5)
        return below;
    if (rest > 0.5)
        return below + 1;
    return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

std::int16_t toInt16(double value) {
    return narrowRounded<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return narrowRounded<std::int32_t>(value);
}

double numericPrefix(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    return toDouble(text.substr(0, numberLength(text)));
}

double wholeNumberText(std::string_view text) {
    std::string number = trimmed(text);
    for (char &c : number)
        if (c == ',')
            c = '.';
    if (number.empty() || numberLength(number) != number.size())
        fail(Failure::typeMismatch);
    return toDouble(number);
}

} // namespace boulix
