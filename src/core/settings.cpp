// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/settings.h"

#include "core/failure.h"
#include "core/fileAccess.h"
#include "core/platform.h"
#include "core/profileText.h"
#include "core/text.h"

#include <filesystem>
#include <system_error>

namespace boulix::settings {

namespace {

/// The longest value that a reader takes, in characters; the rest is cut off.
constexpr std::size_t longestValue = 1023;

std::string fileName() {
    return platform().applicationFolder() + pathSeparator + "boulix.ini";
}

/// The file as it stands, empty where there is none.
std::string contents() {
    std::error_code ignored;
    const bool there = std::filesystem::exists(fileName(), ignored);
    return there ? readFile(fileName()) : "";
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
    replaceFile(fileName(), profileText::withValue(contents(), section, key, value));
}

void remove(const std::string &section, const std::string &key) {
    const std::string text = contents();
    const std::string shorter = profileText::withoutKey(text, section, key);
    if (shorter != text)
        replaceFile(fileName(), shorter);
}

} // namespace boulix::settings
