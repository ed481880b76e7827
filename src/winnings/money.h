// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace boulix {

/// `amount` rounded to the single precision in which money is kept. A finite amount beyond it
/// fails with `Failure::overflow`.
float toSingle(double amount);

/// The sum of two amounts, rounded likewise.
inline float addMoney(float a, float b) {
    return toSingle(static_cast<double>(a) + b);
}

/// The amount that a user typed: the number at the start of the text, with a dot or a comma. A
/// word counts as 0.
float moneyText(std::string_view text);

} // namespace boulix
