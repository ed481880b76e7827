// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/setCover.h"

#include <algorithm>
#include <utility>

namespace boulix {

using namespace covering;

namespace {

/// How many of the sets that must be covered one block covers.
std::int64_t servedByBlock(const CoveringDesign &d) {
    std::int64_t served = 0;
    for (int i = d.strength; i <= std::min(d.blockSize, d.drawn); ++i)
        served += binomial(d.blockSize, i) * binomial(d.points - d.blockSize, d.drawn - i);
    return served;
}

} // namespace

SetCover::SetCover(const CoveringDesign &design, PointGroup group, std::int64_t dearest)
    : design_(design), dearest_(dearest), rowNumbers_(design.points, design.drawn, group),
      blockNumbers_(design.points, design.blockSize, std::move(group)) {}

std::int64_t SetCover::sets(const CoveringDesign &d) {
    return binomial(d.points, d.drawn) + binomial(d.points, d.blockSize);
}

std::int64_t SetCover::entries(const CoveringDesign &d, std::int64_t orbit) {
    return servedByBlock(d) * (binomial(d.points, d.blockSize) / orbit + 1);
}

std::int64_t SetCover::build(std::int64_t work) {
    std::int64_t done = 0;
    if (!rowNumbers_.complete())
        done += rowNumbers_.run(work);
    if (done < work && rowNumbers_.complete() && !blockNumbers_.complete())
        done += blockNumbers_.run(work - done);
    if (done < work && blockNumbers_.complete() && !built_) {
        const std::int64_t perColumn = servedByBlock(design_) * 10;
        while (done < work && columnOfOrbit_.size() < blockNumbers_.count()) {
            addColumn(blockNumbers_.orbits()[columnOfOrbit_.size()]);
            done += perColumn;
        }
        if (columnOfOrbit_.size() == blockNumbers_.count()) {
            turnOver();
            done += static_cast<std::int64_t>(rowsOfColumn_.size());
            built_ = true;
        }
    }
    return done;
}

void SetCover::addColumn(const OrbitNumbering::Orbit &orbit) {
    if (orbit.size > dearest_) {
        columnOfOrbit_.push_back(~Index{0});
        return;
    }
    const auto from = static_cast<std::ptrdiff_t>(rowsOfColumn_.size());
    const PointSet outside = ((PointSet{1} << design_.points) - 1) & ~orbit.first;
    for (int i = design_.strength; i <= std::min(design_.blockSize, design_.drawn); ++i)
        for (const PointSet inner : subsetsOf(orbit.first, i))
            for (const PointSet outer : subsetsOf(outside, design_.drawn - i))
                rowsOfColumn_.push_back(rowNumbers_.of(inner | outer));
    std::sort(rowsOfColumn_.begin() + from, rowsOfColumn_.end());
    rowsOfColumn_.erase(std::unique(rowsOfColumn_.begin() + from, rowsOfColumn_.end()),
                        rowsOfColumn_.end());
    columnOfOrbit_.push_back(columns());
    columnStart_.push_back(rowsOfColumn_.size());
    cost_.push_back(orbit.size);
    representative_.push_back(orbit.first);
}

SetCover::Index SetCover::columnOf(PointSet block) const {
    return std::min(columnOfOrbit_[blockNumbers_.of(block)], columns());
}

void SetCover::turnOver() {
    rowStart_.assign(std::size_t{rows()} + 1, 0);
    for (const Index row : rowsOfColumn_)
        ++rowStart_[row + 1];
    for (Index row = 0; row < rows(); ++row)
        rowStart_[row + 1] += rowStart_[row];
    columnsOfRow_.resize(rowsOfColumn_.size());
    std::vector<std::size_t> at(rowStart_.begin(), rowStart_.end() - 1);
    for (Index column = 0; column < columns(); ++column)
        for (const Index row : rowsOf(column))
            columnsOfRow_[at[row]++] = column;
}

} // namespace boulix
