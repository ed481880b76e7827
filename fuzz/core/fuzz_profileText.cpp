// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/profileText.h"
#include "core/text.h"
#include "support/demand.h"

#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

namespace {

constexpr const char *section = "impression";
constexpr const char *key = "imprimante";

} // namespace

// The input is a settings file; its first bytes, up to a line end, are also the value that is
// written into it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::string line = text.substr(0, text.find_first_of(std::string("\r\n\0", 3)));
    const std::string value = fromWestern(toWestern(fromWestern(line)));

    const std::string written = profileText::withValue(text, section, key, value);
    demand(profileText::value(written, section, key) == value, "a value written is read back");
    demand(profileText::withValue(written, section, key, value) == written,
           "writing it again changes nothing");

    const auto before = profileText::value(text, section, key);
    if (!before) {
        demand(written.size() > text.size(), "a new key leaves what was there");
        demand(!profileText::value(profileText::withoutKey(written, section, key), section, key),
               "a key taken out is gone");
    }
    return 0;
}
