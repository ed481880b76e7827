// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/pointGroup.h"

#include <cstdint>
#include <vector>

namespace boulix {

/// The orbits of all sets of one size under a group, numbered from 0.
class OrbitNumbering {
  public:
    using Index = std::uint32_t;
    struct Orbit {
        PointSet first; ///< the member of the lowest rank
        Index size;
    };

    /// The sets of `size` out of `points` points. `run` does the work.
    OrbitNumbering(int points, int size, PointGroup group);

    /// Goes on until about `work` images were made, and gives how many. Long orbits are not
    /// left half done.
    std::int64_t run(std::int64_t work);
    bool complete() const { return next_ >= end_; }

    /// The orbits found so far.
    const std::vector<Orbit> &orbits() const { return orbits_; }
    Index count() const { return static_cast<Index>(orbits_.size()); }
    /// The number of the orbit that `set` lies in.
    Index of(PointSet set) const { return numbers_[covering::rankOf(set)]; }

  private:
    std::int64_t addOrbit(PointSet first);

    PointGroup group_;
    PointSet next_;
    PointSet end_;
    std::size_t nextRank_ = 0;
    std::vector<Index> numbers_; // by rank
    std::vector<Orbit> orbits_;
    std::vector<PointSet> members_; // of the present orbit
};

} // namespace boulix
