// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/settingValue.h"

#include "core/failure.h"
#include "core/numbers.h"
#include "core/settings.h"

#include <cmath>
#include <limits>

namespace boulix {

namespace {

bool fitsSingle(double value) {
    return std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max());
}

} // namespace

float settingNumber(const std::string &section, const std::string &key,
                    const std::string &defaultValue) {
    try {
        const double value = numericPrefix(settings::read(section, key, defaultValue));
        return fitsSingle(value) ? static_cast<float>(value) : 0.0F;
    } catch (const RuntimeFailure &) {
        return 0; // beyond any number: the start is never stopped by a setting
    }
}

float typedNumber(const std::string &text) {
    const double value = wholeNumberText(text);
    if (!fitsSingle(value))
        fail(Failure::overflow);
    return static_cast<float>(value);
}

} // namespace boulix
