// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/coveringReduction.h"

#include <algorithm>

namespace boulix::covering {

void removeRedundant(const CoveringDesign &design, Blocks &blocks) {
    std::vector<std::uint32_t> coverers(
        static_cast<std::size_t>(binomial(design.points, design.strength)));
    for (const PointSet block : blocks)
        for (const PointSet set : subsetsOf(block, design.strength))
            ++coverers[rankOf(set)];
    for (std::size_t i = blocks.size(); i-- > 0;) {
        const std::vector<PointSet> sets = subsetsOf(blocks[i], design.strength);
        if (std::any_of(sets.begin(), sets.end(),
                        [&](PointSet set) { return coverers[rankOf(set)] == 1; }))
            continue;
        for (const PointSet set : sets)
            --coverers[rankOf(set)];
        blocks.erase(blocks.begin() + static_cast<std::ptrdiff_t>(i));
    }
}

} // namespace boulix::covering
