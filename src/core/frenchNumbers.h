// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace boulix {

/// A number as it is written in a French sentence: groups of three digits, parted by no-break
/// spaces.
std::string groupedNumber(std::uint64_t value);

/// `value` with so many decimals behind a comma, its whole part in groups.
std::string commaNumber(double value, int decimals);

/// `part` of `all` in percent, never more than `all`: with two decimals, with three digits that
/// say something below one percent, and with so many that "100" is all and nothing less.
std::string percentText(std::uint64_t part, std::uint64_t all);

/// The n of "1 chance sur n", where `part` of `all` are lucky; a dash where none is. Below a
/// hundred it has two decimals, unless it is whole.
std::string oneInText(std::uint64_t part, std::uint64_t all);

/// An amount of money: whole, with cents, or below one with three digits that say something.
std::string amountText(double amount);

/// The same with the unit behind it: "2 euros", "1,50 euro", "3 €". From two on a unit that is a
/// word takes an s, unless it ends in s, x or z.
std::string amountWithUnit(double amount, const std::string &unit);

} // namespace boulix
