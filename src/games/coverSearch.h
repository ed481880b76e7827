// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameComb.h"

#include <array>
#include <cstdint>
#include <vector>

namespace boulix {

/// The greedy search behind computed systems. It walks over all p-uplets, the choices of `nWin`
/// ranks that contain the fixed ones, in lexicographic order. For one that no chosen grid covers
/// yet, it finds the grid that covers the most p-uplets not covered so far, among the grids that
/// hold the p-uplet; of equal ones the last in lexicographic order.
///
/// Only grids that hold the present p-uplet can win, and they need no list: each is the p-uplet
/// and some more numbers, its extras. The uncovered p-uplets of such a grid fall into classes by
/// the extras they use. So for one p-uplet the search first counts, for each single number and
/// each pair of numbers, the uncovered p-uplets that are made of them and of part of the present
/// one; a grid's worth is then a sum over its extras. The order of grids with the same p-uplet is
/// the order of their extras.
///
/// In here the ranks behind the fixed ones count from 0, and a p-uplet's code is its place in the
/// combinatorial number system.
class CoverSearch {
  public:
    using Index = std::size_t;

    /// `puplets` is the count of p-uplets; `nWin` - `nFixed` lies between 1 and 6 - `nFixed`.
    CoverSearch(Index nFixed, Index nWin, Index nSelect, std::int32_t puplets);

    /// Whether a chosen grid covers the present p-uplet, at the start the first one.
    bool covered() const { return covered_[code()] != 0; }
    /// The best grid for the present p-uplet, which is not covered.
    gameComb bestGrid();
    /// The p-uplets of a grid become covered one by one: `code` as `modComb::expand` gives it.
    void cover(std::int32_t code) { covered_[static_cast<Index>(code)] = 1; }
    /// Goes on to the next p-uplet; behind the last one it stays.
    void next();

  private:
    static constexpr Index maxFree = 49;
    using Counts = std::array<std::uint8_t, maxFree>;
    // A term alone can be negative; unsigned arithmetic makes the sums come out right.
    using Terms = std::array<std::array<Index, maxFree>, 3>;

    Index code() const;
    void findOthers();
    void countParts();
    void countPart(unsigned part);
    Index fillTerms(unsigned part, Index inserted);
    void extend(Index depth, Index first, int worth);
    void extendLast(Index first, int worth);
    int uncovered(Index code) const { return covered_[code] ^ 1; }
    std::uint8_t plusUncovered(std::uint8_t count, Index code) const {
        return static_cast<std::uint8_t>(count + uncovered(code));
    }
    bool tripleCounts() const { return size_ == 3 && extras_ == 3; }

    Index fixed_;
    Index free_;   // ranks behind the fixed ones
    Index size_;   // of a p-uplet, without the fixed ranks
    Index extras_; // what a grid has beyond fixed ranks and p-uplet
    std::vector<std::uint8_t> covered_;
    std::array<Index, 6> puplet_{};

    // For the present p-uplet. Numbers stand for places in `others_`.
    std::array<Index, maxFree> others_{}; // the free ranks that are not in it
    Index othersCount_ = 0;
    Counts singles_{};                    // uncovered p-uplets of one other rank and part of it
    std::array<Counts, maxFree> pairs_{}; // the same of two other ranks, the smaller one first
    Terms terms_{};
    std::array<Counts, 6> gains_{}; // by depth: what a rank adds to the extras chosen before it
    std::array<Index, 6> chosen_{};
    std::array<Index, 6> best_{};
    int bestWorth_ = 0;
};

} // namespace boulix
