// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/settings.h"

#include "core/failure.h"
#include "core/fileAccess.h"
#include "core/platform.h"
#include "core/profileText.h"
#include "core/text.h"

#include <filesystem>
#include <optional>
#include <system_error>

namespace boulix::settings {

namespace {

/// The longest value that a reader takes, in characters; the rest is cut off.
constexpr std::size_t longestValue = 1023;

std::string fileName() {
    return platform().applicationFolder() + pathSeparator + "boulix.ini";
}

/// The settings of a file whose last write failed. It may be gone or incomplete on the disk, so
/// they are kept here until a later write brings them back.
struct Rescued {
    std::string fileName;
    std::string text;
};
std::optional<Rescued> rescued;

/// The file as it stands, empty where there is none.
std::string contents() {
    if (rescued && rescued->fileName == fileName())
        return rescued->text;
    std::error_code ignored;
    const bool there = std::filesystem::exists(fileName(), ignored);
    return there ? readFile(fileName()) : "";
}

void replace(const std::string &before, const std::string &after) {
    rescued = {fileName(), before};
    replaceFile(fileName(), after);
    rescued.reset();
}

} // namespace

std::string read(const std::string &section, const std::string &key,
                 const std::string &defaultValue) {
    try {
        const auto value = profileText::value(contents(), section, key);
        if (!value)
            return defaultValue;
        const std::string bytes = toWestern(*value).substr(0, longestValue);
        return fromWestern(bytes.substr(0, bytes.find('\0')));
    } catch (const RuntimeFailure &) {
        return defaultValue; // a reader of settings is never stopped by them
    }
}

void write(const std::string &section, const std::string &key, const std::string &value) {
    const std::string text = contents();
    replace(text, profileText::withValue(text, section, key, value));
}

void write(const std::vector<Entry> &entries) {
    const std::string before = contents();
    std::string after = before;
    for (const Entry &entry : entries)
        after = profileText::withValue(after, entry.section, entry.key, entry.value);
    if (after != before)
        replace(before, after);
}

void remove(const std::string &section, const std::string &key) {
    const std::string text = contents();
    const std::string shorter = profileText::withoutKey(text, section, key);
    if (shorter != text)
        replace(text, shorter);
}

} // namespace boulix::settings
