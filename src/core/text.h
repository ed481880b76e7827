// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace boulix {

/// The line end of messages and text files.
inline constexpr const char *crlf = "\r\n";

/// `text` without the blanks at its two ends. Only the blank counts, no other white space.
std::string trimmed(std::string_view text);

/// `text` in capitals, the accented letters of code page 1252 included (UTF-8).
std::string upperCased(std::string_view text);

/// The pieces of `text` between the separators: an empty text gives one empty piece, a separator
/// at the end an empty last piece.
std::vector<std::string> split(std::string_view text, char separator);

/// `value` with at least `width` digits, filled with zeros on the left; the sign comes before.
std::string zeroPadded(std::int64_t value, int width);

/// `value` as the plain decimal that settings and amounts use: shortest form that reads back as
/// the same single-precision value, with a dot, never an exponent; zero has no sign.
std::string plainDecimal(float value);

/// A computed amount as it is shown: a plain decimal with the digits that single precision can
/// vouch for, seven, or all of them before the dot; no zeros at its end, no sign before a zero.
std::string plainAmount(float value);

/// UTF-8 to the single bytes of the Windows Western code page (1252); a character that does not
/// exist there becomes "?", and so does a byte that is no UTF-8.
std::string toWestern(std::string_view utf8);

/// Bytes of code page 1252 as UTF-8. The five bytes without a character become U+FFFD.
std::string fromWestern(std::string_view bytes);

} // namespace boulix
