// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/countAndPrice.h"

#include "core/frenchNumbers.h"
#include "core/globals.h"
#include "core/numbers.h"
#include "core/text.h"
#include "printing/gridConfig.h"

#include <cmath>

namespace boulix {

std::string gridCount(std::int64_t grids) {
    return groupedNumber(static_cast<std::uint64_t>(grids)) + (grids < 2 ? " grille" : " grilles");
}

std::string countAndPrice(std::int64_t grids) {
    constexpr double precision = 1e9; // thirty times a tenth makes three
    const double price = numericPrefix(plainDecimal(gGridConfig->price()));
    const double cost = std::round(price * static_cast<double>(grids) * precision) / precision;
    return gridCount(grids) + ", " + amountWithUnit(cost, gGridConfig->monneyUnit());
}

} // namespace boulix
