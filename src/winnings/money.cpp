// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/money.h"

#include "core/failure.h"
#include "core/numbers.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace boulix {

float toSingle(double amount) {
    const auto single = static_cast<float>(amount);
    if (std::isinf(single) && !std::isinf(amount))
        fail(Failure::overflow);
    return single;
}

float moneyText(std::string_view text) {
    std::string number(text);
    std::replace(number.begin(), number.end(), ',', '.');
    return toSingle(numericPrefix(number));
}

} // namespace boulix
