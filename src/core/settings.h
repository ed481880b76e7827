// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace boulix::settings {

/// The value of `key` in `section` of boulix.ini in the application folder, trimmed;
/// `defaultValue` where key, section or file is missing or the file cannot be read. Names are
/// compared without regard to case, one pair of quotes around the value is taken off, and no more
/// than 1023 characters are given. The file is read anew at each call.
std::string read(const std::string &section, const std::string &key,
                 const std::string &defaultValue);

/// Writes one value and leaves every other line of the file as it is: comments, unknown keys,
/// blanks, line ends. Section, key and file are made when missing. A file that cannot be read or
/// written is a run-time failure; the other values stay as they were for this run, and a later
/// write brings them back to the disk.
void write(const std::string &section, const std::string &key, const std::string &value);

/// One value of the file.
struct Entry {
    std::string section;
    std::string key;
    std::string value;
};

/// The same for several values at once, which the file gets in one go. A file that has them all
/// already is not written.
void write(const std::vector<Entry> &entries);

/// Deletes the line of `key`; nothing happens where it is missing.
void remove(const std::string &section, const std::string &key);

} // namespace boulix::settings
