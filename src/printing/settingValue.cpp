// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/settingValue.h"

#include "core/failure.h"
#include "core/numbers.h"
#include "core/settings.h"
#include "core/text.h"

#include <cmath>
#include <limits>

namespace boulix {

namespace {

/// What the values were read into since the first version, its closing zero byte included.
constexpr std::size_t bufferSize = 1024;

bool fitsSingle(double value) {
    return std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}

} // namespace

std::string settingText(const std::string &section, const std::string &key,
                        const std::string &defaultValue) {
    // Characters are counted in the code page of the file, one byte each.
    const std::string bytes = toWestern(settings::read(section, key, defaultValue));
    return fromWestern(bytes.substr(0, bufferSize - 1));
}

float settingNumber(const std::string &section, const std::string &key,
                    const std::string &defaultValue) {
    const double value = numericPrefix(settingText(section, key, defaultValue));
    return fitsSingle(value) ? static_cast<float>(value) : 0.0F;
}

float typedNumber(const std::string &text) {
    const double value = wholeNumberText(text);
    if (!fitsSingle(value))
        fail(Failure::overflow);
    return static_cast<float>(value);
}

} // namespace boulix
