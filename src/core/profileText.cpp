// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/profileText.h"

#include "core/text.h"

#include <algorithm>

namespace boulix::profileText {

namespace {

constexpr const char *blanks = " \t";

/// A stretch of the text, from the first byte to the one behind the last.
struct Stretch {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Where a key stands in the text, or where it would go.
struct Place {
    std::optional<Stretch> line;         ///< the line of the key, with its line end
    Stretch value;                       ///< its value, with its quotes
    std::optional<std::size_t> freeLine; ///< behind the last key of the section, if it is there
};

std::string_view withoutBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

bool sameName(std::string_view bytes, const std::string &wanted) {
    const std::string_view name = withoutBlanks(bytes);
    return name.size() == toWestern(wanted).size() &&
           upperCased(fromWestern(name)) == upperCased(wanted);
}

/// The first line of `text`, without its line end.
std::string_view lineBody(std::string_view text) {
    std::string_view body = text.substr(0, text.find('\n'));
    if (!body.empty() && body.back() == '\r')
        body.remove_suffix(1);
    return body;
}

/// The stretch of the value in a line that stands at `lineAt` and has its "=" at `equals`.
Stretch valueStretch(std::string_view body, std::size_t lineAt, std::size_t equals) {
    const std::size_t begin = std::min(body.find_first_not_of(blanks, equals + 1), body.size());
    const std::size_t length = withoutBlanks(body.substr(begin)).size();
    return {lineAt + begin, lineAt + begin + length};
}

Place find(std::string_view text, const std::string &section, const std::string &key) {
    Place place;
    int sections = 0; // how many of that name have begun
    bool inside = false;
    std::size_t next = 0;
    for (std::size_t at = 0; at < text.size(); at = next) {
        next = std::min(text.find('\n', at), text.size() - 1) + 1;
        const std::string_view body = lineBody(text.substr(at));
        const std::string_view line = withoutBlanks(body);
        if (line.empty() || line.front() == ';')
            continue;
        if (line.front() == '[') {
            inside = sameName(line.substr(1, line.find(']') - 1), section);
            sections += inside ? 1 : 0;
        } else {
            const std::size_t equals = body.find('=');
            if (equals == std::string_view::npos)
                continue;
            if (inside && sameName(body.substr(0, equals), key)) {
                place.line = {at, next};
                place.value = valueStretch(body, at, equals);
                return place;
            }
        }
        if (inside && sections == 1)
            place.freeLine = next;
    }
    return place;
}

std::string unquoted(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return std::string(quoted ? value.substr(1, value.size() - 2) : value);
}

/// `value` as it is written: between quotes where its own ends would be taken for something else.
std::string stored(const std::string &value) {
    std::string bytes = toWestern(value);
    for (char &c : bytes)
        if (c == '\r' || c == '\n' || c == '\0')
            c = ' ';
    const bool plain = unquoted(withoutBlanks(bytes)) == bytes;
    return plain ? bytes : '"' + bytes + '"';
}

/// The line end that the text uses.
std::string lineEnd(std::string_view text) {
    const std::size_t at = text.find('\n');
    const bool lineFeedOnly = at != std::string_view::npos && (at == 0 || text[at - 1] != '\r');
    return lineFeedOnly ? "\n" : crlf;
}

/// Puts whole lines, each with its line end, at `at`; a last line without one gets it before, and
/// one that was cut in the middle of it gets the missing half.
std::string withLines(std::string_view text, std::size_t at, const std::string &lines) {
    std::string result(text.substr(0, at));
    if (!result.empty() && result.back() == '\r')
        result += '\n';
    if (!result.empty() && result.back() != '\n')
        result += lineEnd(text);
    return result + lines + std::string(text.substr(at));
}

} // namespace

std::optional<std::string> value(std::string_view text, const std::string &section,
                                 const std::string &key) {
    const Place place = find(text, section, key);
    if (!place.line)
        return std::nullopt;
    const auto bytes = text.substr(place.value.begin, place.value.end - place.value.begin);
    return fromWestern(unquoted(bytes));
}

std::string withValue(std::string_view text, const std::string &section, const std::string &key,
                      const std::string &value) {
    const Place place = find(text, section, key);
    if (place.line) {
        std::string result(text);
        return result.replace(place.value.begin, place.value.end - place.value.begin,
                              stored(value));
    }
    const std::string end = lineEnd(text);
    const std::string line = toWestern(key) + "=" + stored(value) + end;
    if (place.freeLine)
        return withLines(text, *place.freeLine, line);
    return withLines(text, text.size(), "[" + toWestern(section) + "]" + end + line);
}

std::string withoutKey(std::string_view text, const std::string &section, const std::string &key) {
    std::string result(text);
    if (const auto line = find(text, section, key).line)
        result.erase(line->begin, line->end - line->begin);
    return result;
}

} // namespace boulix::profileText
