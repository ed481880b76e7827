// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/gameResult.h"

#include "core/numbers.h"

namespace boulix {

std::size_t gameResult::place(std::int16_t rank) {
    return static_cast<std::size_t>(checkedIndex(rank, 1, ranks) - 1);
}

} // namespace boulix
