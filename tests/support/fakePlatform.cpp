// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakePlatform.h"

#include <algorithm>

namespace boulix::testing_support {

std::string dashedDate(Date date) {
    std::string text = longDate(date);
    std::replace(text.begin(), text.end(), '/', '-');
    return text;
}

void FakePlatform::scriptRandom(const std::vector<float> &values) {
    scripted_.insert(scripted_.end(), values.begin(), values.end());
}

void FakePlatform::seedRandomFromClock() {
    ++seedings;
    generator_.seed(clockSeed);
}

float FakePlatform::nextRandom() {
    if (scripted_.empty())
        return static_cast<float>(generator_() >> 8) * 0x1p-24F; // 24 bits: never rounds up to 1
    const float value = scripted_.front();
    scripted_.pop_front();
    return value;
}

} // namespace boulix::testing_support
