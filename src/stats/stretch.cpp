// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/stretch.h"

#include "core/globals.h"
#include "draws/dbCombs.h"

#include <algorithm>

namespace boulix::modStats {

std::span<const dbComb> stretch(std::int32_t first, std::int32_t last) {
    const dbCombs &base = *gDbCombs;
    if (first > last || base.Count() == 0)
        return {};
    const dbComb *oldest = &base.Item(first);
    return {oldest, &base.Item(last) + 1};
}

bool isIndexed(std::span<const dbComb> draws) {
    return !draws.empty() && gDbCombs->index().isRegular();
}

void storeByNumber(const ByNumber &values) {
    std::copy(values.begin() + 1, values.end(), statResult.begin());
}

} // namespace boulix::modStats
