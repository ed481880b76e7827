// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/orbitNumbering.h"

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace boulix {

/// The search for a covering with a group of symmetry, as a set cover problem with costs. A row
/// is an orbit of the sets that must be covered, a column an orbit of blocks; a column costs as
/// many blocks as it has, and covers a row when its blocks cover the orbit.
class SetCover {
  public:
    using Index = OrbitNumbering::Index;

    /// The problem of `design` under `group`, which `build` sets up. Columns of more than
    /// `dearest` blocks are left out.
    SetCover(const CoveringDesign &design, PointGroup group, std::int64_t dearest);
    SetCover(const SetCover &) = delete;
    SetCover &operator=(const SetCover &) = delete;

    /// How many sets must be given to an orbit, whichever the group.
    static std::int64_t sets(const CoveringDesign &design);
    /// How many entries the table gets at most when the orbits of blocks have `orbit` members.
    static std::int64_t entries(const CoveringDesign &design, std::int64_t orbit);

    /// Goes on setting up for about `work` table entries; gives what was done. The rest is there
    /// once `built` says so.
    std::int64_t build(std::int64_t work);
    bool built() const { return built_; }

    Index rows() const { return rowNumbers_.count(); }
    Index columns() const { return static_cast<Index>(representative_.size()); }
    std::span<const Index> rowsOf(Index column) const {
        return part(rowsOfColumn_, columnStart_, column);
    }
    std::span<const Index> columnsOf(Index row) const {
        return part(columnsOfRow_, rowStart_, row);
    }
    std::uint32_t cost(Index column) const { return cost_[column]; }
    /// One of the column's blocks.
    PointSet representative(Index column) const { return representative_[column]; }
    /// The column that `block` belongs to; `columns()` for one that was left out.
    Index columnOf(PointSet block) const;

  private:
    static std::span<const Index> part(const std::vector<Index> &entries,
                                       const std::vector<std::size_t> &starts, Index i) {
        return {entries.data() + starts[i], starts[i + 1] - starts[i]};
    }
    void addColumn(const OrbitNumbering::Orbit &orbit);
    void turnOver();

    CoveringDesign design_;
    std::int64_t dearest_;
    bool built_ = false;
    OrbitNumbering rowNumbers_;
    OrbitNumbering blockNumbers_;
    std::vector<Index> columnOfOrbit_;
    std::vector<std::size_t> columnStart_{0};
    std::vector<Index> rowsOfColumn_;
    std::vector<std::size_t> rowStart_;
    std::vector<Index> columnsOfRow_;
    std::vector<std::uint32_t> cost_;
    std::vector<PointSet> representative_;
};

} // namespace boulix
