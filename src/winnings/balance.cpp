// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/balance.h"

#include "core/numbers.h"
#include "core/text.h"
#include "winnings/gameResult.h"

namespace boulix {

namespace {

/// A single-precision setting as the user wrote it: 0.6, not 0.60000002.
double asWritten(float value) {
    return wholeNumberText(plainDecimal(value));
}

} // namespace

Balance balanceOf(const gameResult &result, std::int64_t grids, std::int64_t draws, float price) {
    Balance balance;
    for (std::int16_t rank = 1; rank <= gameResult::ranks; ++rank)
        balance.won += result.price(rank);
    balance.stake = static_cast<double>(grids) * static_cast<double>(draws) * asWritten(price);
    return balance;
}

} // namespace boulix
