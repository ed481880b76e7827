// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawQuery.h"

#include "core/numberMask.h"
#include "core/text.h"
#include "draws/dbCombs.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace boulix {

namespace {

using Words = std::vector<std::string>;

constexpr std::array<const char *, 12> monthNames = {
    "JANVIER", "FEVRIER", "MARS",      "AVRIL",   "MAI",      "JUIN",
    "JUILLET", "AOUT",    "SEPTEMBRE", "OCTOBRE", "NOVEMBRE", "DECEMBRE"};

void replaceAll(std::string &text, const std::string &from, const std::string &to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at))
        text.replace(at, from.size(), to);
}

/// The pieces of `text` between any of the separators, empty ones left out.
Words wordsOf(const std::string &text, const char *separators) {
    Words words;
    for (std::size_t at = text.find_first_not_of(separators); at != std::string::npos;) {
        const std::size_t end = text.find_first_of(separators, at);
        words.push_back(text.substr(at, end - at));
        at = text.find_first_not_of(separators, end);
    }
    return words;
}

bool isDigits(const std::string &word) {
    return !word.empty() && word.size() <= 8 &&
           word.find_first_not_of("0123456789") == std::string::npos;
}

/// The month that a name begins, 0 where it begins none. Three letters are the fewest.
int monthNamed(const std::string &word) {
    for (std::size_t i = 0; i < monthNames.size(); ++i)
        if (word.size() >= 3 && std::string(monthNames[i]).rfind(word, 0) == 0)
            return static_cast<int>(i) + 1;
    return 0;
}

DrawQuery unclear() {
    DrawQuery query;
    query.kind = DrawQuery::Kind::unclear;
    return query;
}

/// The years that begin with the digits of `word`, 1 to 4 of them.
DrawQuery::Years yearsFrom(const std::string &word) {
    int unit = 1;
    for (std::size_t digits = word.size(); digits < 4; ++digits)
        unit *= 10;
    const int first = std::stoi(word) * unit;
    return {first, first + unit - 1};
}

/// The year of two digits that lies nearest to the times of the lottery, which began in 1976.
DrawQuery::Years shortYear(const std::string &word) {
    const int year = std::stoi(word) + (std::stoi(word) < 76 ? 2000 : 1900);
    return {year, year};
}

/// Reads a day or a month, 1 to `last`; an empty word leaves it open.
bool readPart(const std::string &word, int last, int &part) {
    if (word.empty())
        return true;
    part = word.size() <= 2 ? std::stoi(word) : 0;
    return part >= 1 && part <= last;
}

/// A query for day, month and year, each a word of digits or empty for any.
DrawQuery dateQuery(const std::string &day, const std::string &month, const std::string &year) {
    DrawQuery query;
    query.kind = DrawQuery::Kind::date;
    if (!readPart(day, 31, query.day) || !readPart(month, 12, query.month))
        return unclear();
    if (year.size() > 4)
        return unclear();
    if (!year.empty())
        query.years[0] = yearsFrom(year);
    if (year.size() == 2)
        query.years[1] = shortYear(year);
    return query;
}

/// The pieces of a date in figures, in the order of a French one or the year first.
DrawQuery dateOfPieces(Words pieces) {
    if (pieces.size() > 1 && std::stoi(pieces.back()) == 0)
        pieces.pop_back(); // a "0" that waits for its second digit
    if (pieces.size() > 3)
        return unclear();
    const bool yearFirst = pieces.front().size() == 4;
    if (yearFirst)
        std::reverse(pieces.begin(), pieces.end());
    const std::string &last = pieces.back();
    if (pieces.size() == 1)
        return yearFirst ? dateQuery("", "", last) : dateQuery(last, "", "");
    if (pieces.size() == 3)
        return dateQuery(pieces[0], pieces[1], last);
    const bool endsInYear = last.size() > 2 || std::stoi(last) > 12;
    return endsInYear ? dateQuery("", pieces[0], last) : dateQuery(pieces[0], last, "");
}

/// A date with the name of its month: "15 mars 2003", "mars 2003", "1er mars".
DrawQuery dateInWords(const Words &words) {
    std::string day;
    std::string month;
    std::string year;
    for (const std::string &word : words) {
        const std::string number = word == "1ER" ? "1" : word;
        if (isDigits(number) && month.empty() && day.empty())
            day = number;
        else if (isDigits(number) && !month.empty() && year.empty())
            year = number;
        else if (const int named = monthNamed(word); named != 0 && month.empty())
            month = std::to_string(named);
        else
            return unclear();
    }
    return dateQuery(day, month, year);
}

DrawQuery numbersOf(const Words &words) {
    DrawQuery query;
    query.kind = DrawQuery::Kind::numbers;
    for (const std::string &word : words) {
        const std::uint64_t bit =
            word.size() <= 2 ? numberBit(static_cast<std::int16_t>(std::stoi(word))) : 0;
        if (bit == 0)
            return unclear();
        query.numbers |= bit;
    }
    return query;
}

/// One word of figures that is no number of the lottery: a year, or a date as the operator
/// writes it, as far as it is typed.
std::optional<DrawQuery> dateInOneWord(const std::string &word) {
    if (word.size() == 3 || word.size() == 4)
        return dateQuery("", "", word);
    if (word.size() == 6)
        return dateQuery("", word.substr(4, 2), word.substr(0, 4));
    if (word.size() == 8)
        return dateQuery(word.substr(6, 2), word.substr(4, 2), word.substr(0, 4));
    return std::nullopt;
}

DrawQuery figuresOf(const Words &words) {
    if (!std::all_of(words.begin(), words.end(), isDigits))
        return unclear();
    if (words.size() == 1)
        if (const std::optional<DrawQuery> date = dateInOneWord(words.front()))
            return *date;
    const bool endsInYear = words.back().size() == 4 && words.size() <= 3;
    return endsInYear ? dateOfPieces(words) : numbersOf(words);
}

} // namespace

bool DrawQuery::isOneDay() const {
    return kind == Kind::date && day != 0 && month != 0 && years[0].first == years[0].last &&
           years[0].first >= 100;
}

DrawQuery parseDrawQuery(const std::string &text) {
    std::string plain = upperCased(text);
    replaceAll(plain, "É", "E");
    replaceAll(plain, "Û", "U");
    Words words = wordsOf(plain, " ,;+");
    words.erase(std::remove(words.begin(), words.end(), "ET"), words.end());
    if (words.empty())
        return {};
    if (words.size() == 1 && words.front().find_first_of("/-.") != std::string::npos) {
        const Words pieces = wordsOf(words.front(), "/-.");
        const bool figures = !pieces.empty() && std::all_of(pieces.begin(), pieces.end(), isDigits);
        return figures ? dateOfPieces(pieces) : unclear();
    }
    const bool hasMonth = std::any_of(words.begin(), words.end(), monthNamed);
    return hasMonth ? dateInWords(words) : figuresOf(words);
}

bool matches(const dbComb &draw, const DrawQuery &query) {
    if (query.kind == DrawQuery::Kind::numbers) {
        const std::uint64_t held = draw.comb().mask() | numberBit(draw.comb().compl_());
        return (held & query.numbers) == query.numbers;
    }
    if (query.kind != DrawQuery::Kind::date || !isValidDate(draw.day()))
        return false;
    const CalendarDay day = calendarDay(draw.day());
    const auto &[years, others] = query.years;
    const bool anyYear = years.last < years.first && others.last < others.first;
    return (query.day == 0 || day.day == query.day) &&
           (query.month == 0 || day.month == query.month) &&
           (anyYear || years.hold(day.year) || others.hold(day.year));
}

std::vector<std::int32_t> findDraws(const dbCombs &base, const DrawQuery &query) {
    std::vector<std::int32_t> found;
    if (query.kind == DrawQuery::Kind::numbers && base.Count() > 0 && base.index().isRegular()) {
        const DrawSet set = base.index().draws(1, base.Count(), query.numbers, true);
        forEachDraw(set, [&](std::int32_t position) { found.push_back(position); });
        return found;
    }
    for (std::int32_t position = 1; position <= base.Count(); ++position)
        if (matches(base.Item(position), query))
            found.push_back(position);
    return found;
}

std::int32_t nearestDraw(const dbCombs &base, const DrawQuery &query) {
    const CalendarDay first{query.years[0].first, query.month, 1};
    const Date day = dateOf(first) + query.day - 1; // a 31st of a short month falls into the next
    std::int32_t nearest = 0;
    double least = 0;
    for (std::int32_t position = 1; position <= base.Count(); ++position) {
        const double distance = std::abs(base.Item(position).day() - day);
        if (nearest == 0 ? !std::isnan(distance) : distance <= least) {
            nearest = position;
            least = distance;
        }
    }
    return nearest;
}

} // namespace boulix
