// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

namespace boulix {

/// A set of points: bit i stands for point i, from 0.
using PointSet = std::uint64_t;
using Blocks = std::vector<PointSet>;

/// What a set of blocks must do: among any `drawn` of the `points` points, `strength` lie together
/// in one block. With `drawn` = `strength` this is a covering design, above it a lotto design.
/// 1 <= strength <= blockSize <= 6, strength <= drawn <= points, blockSize <= points <= 49.
struct CoveringDesign {
    int points;
    int blockSize;
    int strength;
    int drawn;

    bool operator==(const CoveringDesign &) const = default;
};

namespace covering {

inline constexpr int maxPoints = 49;
inline constexpr int maxSubset = 6;

/// The number of choices of `k` out of `n`; 0 for n < k or k < 0. The result fits for n <= 49.
std::int64_t binomial(int n, int k);

/// The rank of a set among those of its size, in the combinatorial number system.
std::uint32_t rankOf(PointSet set);

/// The sets of `size` points out of the first `points` in the order of their ranks: the first one,
/// and the one behind `set`. Behind the last one comes a set that is not below 2^points.
PointSet firstSubset(int size);
PointSet nextSubset(PointSet set);

/// All subsets of `size` points of `set`.
std::vector<PointSet> subsetsOf(PointSet set, int size);

/// No covering with fewer blocks exists. For a covering design this is Schönheim's bound; for a
/// lotto design each block is counted with all the choices of `drawn` points that it serves.
std::int64_t lowerBound(const CoveringDesign &design);

} // namespace covering
} // namespace boulix
