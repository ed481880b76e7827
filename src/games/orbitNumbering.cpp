// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/orbitNumbering.h"

#include <utility>

namespace boulix {

using namespace covering;

namespace {

constexpr OrbitNumbering::Index none = ~OrbitNumbering::Index{0};

} // namespace

OrbitNumbering::OrbitNumbering(int points, int size, PointGroup group)
    : group_(std::move(group)), next_(firstSubset(size)), end_(PointSet{1} << points),
      numbers_(static_cast<std::size_t>(binomial(points, size)), none) {}

std::int64_t OrbitNumbering::run(std::int64_t work) {
    std::int64_t done = 0;
    for (; done < work && !complete(); next_ = nextSubset(next_), ++nextRank_, ++done)
        if (numbers_[nextRank_] == none)
            done += addOrbit(next_);
    return done;
}

std::int64_t OrbitNumbering::addOrbit(PointSet first) {
    const Index number = count();
    members_.assign(1, first);
    numbers_[nextRank_] = number;
    for (std::size_t i = 0; i < members_.size(); ++i)
        for (const Permutation &p : group_) {
            const PointSet member = image(members_[i], p);
            Index &its = numbers_[rankOf(member)];
            if (its == none) {
                its = number;
                members_.push_back(member);
            }
        }
    orbits_.push_back({first, static_cast<Index>(members_.size())});
    // An image costs about as much as ten table entries.
    return static_cast<std::int64_t>(10 * members_.size() * group_.size());
}

} // namespace boulix
