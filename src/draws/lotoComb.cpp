// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/lotoComb.h"

#include <algorithm>

namespace boulix {

void lotoComb::sort() {
    std::sort(num_.begin(), num_.end());
}

bool lotoComb::isInside(std::int16_t n, bool withCompl) const {
    const bool drawn = std::find(num_.begin(), num_.end(), n) != num_.end();
    return drawn || (withCompl && complementary_ == n);
}

} // namespace boulix
