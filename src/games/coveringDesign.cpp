// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/coveringDesign.h"

#include <algorithm>
#include <array>
#include <bit>

namespace boulix::covering {

namespace {

using Triangle = std::array<std::array<std::int64_t, maxPoints + 1>, maxPoints + 1>;

constexpr Triangle pascalTriangle() {
    Triangle triangle{};
    for (std::size_t n = 0; n <= maxPoints; ++n) {
        triangle[n][0] = 1;
        for (std::size_t k = 1; k <= n; ++k)
            triangle[n][k] = triangle[n - 1][k - 1] + triangle[n - 1][k];
    }
    return triangle;
}

constexpr Triangle pascal = pascalTriangle();

std::int64_t ratioUp(std::int64_t a, std::int64_t b) {
    return (a + b - 1) / b;
}

std::int64_t schoenheimBound(int points, int blockSize, int strength) {
    std::int64_t bound = 1;
    for (int i = strength - 1; i >= 0; --i)
        bound = ratioUp((points - i) * bound, blockSize - i);
    return bound;
}

/// Each block serves the choices that share at least `strength` points with it.
std::int64_t countingBound(const CoveringDesign &d) {
    std::int64_t served = 0;
    for (int i = d.strength; i <= std::min(d.blockSize, d.drawn); ++i)
        served += binomial(d.blockSize, i) * binomial(d.points - d.blockSize, d.drawn - i);
    return ratioUp(binomial(d.points, d.drawn), served);
}

} // namespace

std::int64_t binomial(int n, int k) {
    if (k < 0 || n < k)
        return 0;
    return pascal[static_cast<std::size_t>(n)][static_cast<std::size_t>(k)];
}

std::uint32_t rankOf(PointSet set) {
    std::int64_t rank = 0;
    for (std::size_t i = 1; set != 0; ++i, set &= set - 1)
        rank += pascal[static_cast<std::size_t>(std::countr_zero(set))][i];
    return static_cast<std::uint32_t>(rank);
}

PointSet firstSubset(int size) {
    return (PointSet{1} << size) - 1;
}

PointSet nextSubset(PointSet set) {
    if (set == 0)
        return ~PointSet{0};
    const PointSet low = set & (~set + 1);
    const PointSet carried = set + low;
    return carried | ((set ^ carried) / low >> 2U);
}

std::vector<PointSet> subsetsOf(PointSet set, int size) {
    std::array<PointSet, 64> bits{};
    std::size_t n = 0;
    for (; set != 0; set &= set - 1)
        bits[n++] = set & (~set + 1);
    std::vector<PointSet> subsets;
    const PointSet end = PointSet{1} << n;
    for (PointSet choice = firstSubset(size); choice < end; choice = nextSubset(choice)) {
        PointSet subset = 0;
        for (PointSet rest = choice; rest != 0; rest &= rest - 1)
            subset |= bits[static_cast<std::size_t>(std::countr_zero(rest))];
        subsets.push_back(subset);
    }
    return subsets;
}

std::int64_t lowerBound(const CoveringDesign &d) {
    if (d.drawn == d.strength)
        return schoenheimBound(d.points, d.blockSize, d.strength);
    return countingBound(d);
}

} // namespace boulix::covering
