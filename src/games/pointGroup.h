// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/coveringDesign.h"

#include <array>
#include <cstdint>
#include <vector>

namespace boulix {

/// Where each point goes.
using Permutation = std::array<std::uint8_t, covering::maxPoints>;

/// A group of permutations of the points, by generators; none for the group of the identity.
using PointGroup = std::vector<Permutation>;

namespace covering {

/// The image of a set.
PointSet image(PointSet set, const Permutation &permutation);

/// The sets that the group makes of `set`, `set` first; with more than `limit` of them, only the
/// first ones.
std::vector<PointSet> orbitOf(PointSet set, const PointGroup &group, std::size_t limit);

/// Groups of symmetry that good coverings of so many points are known to have: cyclic and affine
/// groups on one or several copies of a ring or a field, and projective groups of the line; the
/// points that are left stay fixed. No group comes twice.
std::vector<PointGroup> symmetryGroups(int points);

} // namespace covering
} // namespace boulix
