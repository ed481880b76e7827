// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace boulix {

namespace {

constexpr char32_t noCharacter = 0xFFFD;

/// The characters of bytes 0x80 to 0x9F; all other bytes stand for the code point of their value.
constexpr std::array<char32_t, 32> westernHigh = {
    0x20AC,      noCharacter, 0x201A, 0x0192, 0x201E, 0x2026,      0x2020, 0x2021,
    0x02C6,      0x2030,      0x0160, 0x2039, 0x0152, noCharacter, 0x017D, noCharacter,
    noCharacter, 0x2018,      0x2019, 0x201C, 0x201D, 0x2022,      0x2013, 0x2014,
    0x02DC,      0x2122,      0x0161, 0x203A, 0x0153, noCharacter, 0x017E, 0x0178};

/// Whether `point` is a character that really takes `length` bytes.
bool isCodePoint(char32_t point, std::size_t length) {
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    return point >= smallest[length] && point <= 0x10FFFF && !surrogate;
}

/// Takes one code point off the front of `text`; a broken byte gives `noCharacter`.
char32_t nextCodePoint(std::string_view &text) {
    const auto byteAt = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    std::size_t length = 1;
    char32_t point = lead;
    if (lead >= 0xF0 && lead < 0xF8) {
        length = 4;
        point = lead & 0x07U;
    } else if (lead >= 0xE0) {
        length = 3;
        point = lead & 0x0FU;
    } else if (lead >= 0xC2) {
        length = 2;
        point = lead & 0x1FU;
    } else if (lead >= 0x80) {
        point = noCharacter;
    }
    bool whole = lead < 0xF8 && text.size() >= length;
    for (std::size_t i = 1; whole && i < length; ++i) {
        whole = (byteAt(i) & 0xC0U) == 0x80U;
        point = (point << 6) | (byteAt(i) & 0x3FU);
    }
    if (!whole || !isCodePoint(point, length)) {
        text.remove_prefix(1);
        return noCharacter;
    }
    text.remove_prefix(length);
    return point;
}

void appendUtf8(std::string &text, char32_t point) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | (point >> 6));
        put(0x80 | (point & 0x3F));
    } else if (point < 0x10000) {
        put(0xE0 | (point >> 12));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xF0 | (point >> 18));
        put(0x80 | ((point >> 12) & 0x3F));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    }
}

char westernByte(char32_t point) {
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF))
        return static_cast<char>(point);
    for (std::size_t i = 0; i < westernHigh.size(); ++i)
        if (westernHigh[i] == point && point != noCharacter)
            return static_cast<char>(0x80 + i);
    return '?';
}

/// Zero has no sign, be it a negative zero or a value that rounding has made one.
std::string unsignedZero(const std::string &number) {
    return number == "-0" ? "0" : number;
}

char32_t upperCodePoint(char32_t point) {
    if ((point >= 'a' && point <= 'z') || (point >= 0xE0 && point <= 0xFE && point != 0xF7))
        return point - 0x20;
    if (point == 0x0153 || point == 0x0161 || point == 0x017E) // oe, s and z with caron
        return point - 1;
    if (point == 0xFF) // y with diaeresis
        return 0x0178;
    return point;
}

} // namespace

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string upperCased(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty())
        appendUtf8(result, upperCodePoint(nextCodePoint(text)));
    return result;
}

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    while (true) {
        const std::size_t end = text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

std::string zeroPadded(std::int64_t value, int width) {
    std::string digits = std::to_string(value < 0 ? -value : value);
    const auto wanted = static_cast<std::size_t>(width);
    if (digits.size() < wanted)
        digits.insert(0, wanted - digits.size(), '0');
    return value < 0 ? "-" + digits : digits;
}

std::string plainDecimal(float value) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed);
    return unsignedZero({buffer.data(), end.ptr});
}

std::string plainAmount(float value) {
    constexpr int digits = 7;
    int decimals = digits - 1;
    for (double rest = std::abs(double{value}); rest >= 10 && decimals > 0; rest /= 10)
        --decimals;
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals);
    std::string text(buffer.data(), end.ptr);
    if (decimals > 0) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
    }
    return unsignedZero(text);
}

std::string toWestern(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty())
        bytes += westernByte(nextCodePoint(utf8));
    return bytes;
}

std::string fromWestern(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool high = byte >= 0x80 && byte < 0xA0;
        appendUtf8(utf8, high ? westernHigh[byte - 0x80U] : byte);
    }
    return utf8;
}

} // namespace boulix
