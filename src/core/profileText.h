// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

// The text of a settings file: sections in square brackets, lines of key, "=" and value, lines of
// comment that begin with ";". `text` is the file as it stands, in code page 1252; names and
// values are UTF-8. Names are compared without regard to case, blanks and tabs around a name or a
// value do not count, and of two equal keys the first one holds. A value may stand between
// quotes, single or double, which do not belong to it.
namespace boulix::profileText {

/// The value of `key` in `section`; nothing where there is no such key.
std::optional<std::string> value(std::string_view text, const std::string &section,
                                 const std::string &key);

/// `text` with one value set, all else as it is. A missing key goes behind the last one of its
/// section, a missing section to the end. Line breaks and zero bytes in `value` become blanks.
std::string withValue(std::string_view text, const std::string &section, const std::string &key,
                      const std::string &value);

/// `text` without the line of `key`.
std::string withoutKey(std::string_view text, const std::string &section, const std::string &key);

} // namespace boulix::profileText
