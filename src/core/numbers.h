// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/failure.h"

#include <cstdint>
#include <string_view>

namespace boulix {

/// `value` rounded to the nearest whole number, ties to the even one. NaN stays NaN.
double roundHalfEven(double value);

/// `value` rounded as above and narrowed; what does not fit fails with `Failure::overflow`.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// Integer arithmetic keeps 16 bits as the stored width does: a sum beyond it is an overflow.
inline std::int16_t narrow16(std::int64_t value) {
    const auto narrow = static_cast<std::int16_t>(value);
    if (narrow != value)
        fail(Failure::overflow);
    return narrow;
}

/// `index` when it lies in `first` to `last`, otherwise `Failure::subscriptOutOfRange`.
inline std::int64_t checkedIndex(std::int64_t index, std::int64_t first, std::int64_t last) {
    if (index < first || index > last)
        fail(Failure::subscriptOutOfRange);
    return index;
}

/// The number at the start of `text`: leading blanks, a sign, digits, a decimal part with a dot;
/// no exponent, no hexadecimal. 0 where the text does not begin with a number: a tab is no blank.
/// A zero never has a sign.
double numericPrefix(std::string_view text);

/// The whole of `text`, trimmed, as a decimal number (a comma counts as the dot); an empty text
/// or anything else fails with `Failure::typeMismatch`. A zero never has a sign.
double wholeNumberText(std::string_view text);

} // namespace boulix
