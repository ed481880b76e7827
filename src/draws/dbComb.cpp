// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/dbComb.h"

#include "core/failure.h"
#include "core/numbers.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace boulix {

namespace {

constexpr std::size_t complementaryColumn = 7;
constexpr std::size_t dayColumn = 8;
constexpr std::size_t idColumn = 9;

bool isEven(std::int16_t n) {
    return (n & 1) == 0;
}

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The first `wanted` fields of `line`, fewer where it has no more. A semicolon ends a field, so
/// that one at the very end opens no further field.
std::vector<std::string_view> fieldsOf(std::string_view line, std::size_t wanted) {
    std::vector<std::string_view> fields;
    while (!line.empty() && fields.size() < wanted) {
        const std::size_t end = std::min(line.find(';'), line.size());
        fields.push_back(line.substr(0, end));
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return fields;
}

std::string_view fieldAt(const std::vector<std::string_view> &fields, std::int16_t position) {
    const auto count = static_cast<std::int64_t>(fields.size());
    return fields[static_cast<std::size_t>(checkedIndex(position, 1, count) - 1)];
}

std::int16_t numberOf(std::string_view field) {
    return toInt16(numericPrefix(field));
}

int digitsOf(std::string_view text) {
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            fail(Failure::typeMismatch);
        value = value * 10 + (c - '0');
    }
    return value;
}

/// The day of a text in the form YYYYMMDD. A day that does not exist is refused: nothing is
/// swapped or carried over to find one that does.
Date dayOf(std::string_view text) {
    constexpr std::size_t yearAndMonth = 6;
    if (text.size() < yearAndMonth)
        fail(Failure::typeMismatch);
    return dateOf({digitsOf(text.substr(0, 4)), digitsOf(text.substr(4, 2)),
                   digitsOf(text.substr(text.size() - 2))});
}

} // namespace

std::int16_t dbComb::countPair(std::int16_t mode) const {
    int even = mode == 1 && isEven(comb_.compl_()) ? 1 : 0;
    for (int i = 1; i <= lotoComb::size; ++i)
        even += isEven(comb_.num(i)) ? 1 : 0;
    return static_cast<std::int16_t>(even);
}

void dbComb::fromString(const std::string &line, const ColumnPositions &columns) {
    const std::int16_t last = *std::max_element(columns.begin(), columns.end());
    const auto fields = fieldsOf(withoutBlanks(line), static_cast<std::size_t>(last));
    for (int i = 1; i <= lotoComb::size; ++i)
        comb_.num(i, numberOf(fieldAt(fields, columns[static_cast<std::size_t>(i)])));
    comb_.compl_(numberOf(fieldAt(fields, columns[complementaryColumn])));
    day_ = dayOf(fieldAt(fields, columns[dayColumn]));
    id_ = numberOf(fieldAt(fields, columns[idColumn]));
}

} // namespace boulix
