// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/modMaths.h"
#include "winnings/countWatch.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace boulix {

class game;

/// Tables over all sets of one to six numbers stand here in the order of `modMaths::combRank`: the
/// place of a set is the sum of C(number, position), with the numbers counted from 0, ascending,
/// and the positions from 1. So sets that differ in their smallest number only lie side by side,
/// and so do those that differ in their smallest two or three.
namespace numberSets {

inline constexpr int largest = 6; ///< numbers of a grid, and of a draw

/// C(n, k) for `k` from 1 to 6; wants `modMaths::precomputeCnk`.
inline std::size_t choose(int n, int k) {
    return static_cast<std::size_t>(
        modMaths::cnkTable[static_cast<std::size_t>(k)][static_cast<std::size_t>(n)]);
}

/// What a pass over a table may read behind its end: it takes several places at a time.
inline constexpr std::size_t slack = 8;

/// A table over all sets of `size` of the `numbers` numbers, of zeros.
template <class Value>
std::vector<Value> table(int numbers, int size) {
    return std::vector<Value>(choose(numbers, size) + slack);
}

} // namespace numberSets

/// The four largest numbers of a set, and where the sets begin that hold any of them and some
/// smaller numbers.
class TopFour {
  public:
    static constexpr int count = 4;
    static constexpr unsigned subsets = 16;

    /// Four different numbers, counted from 0, ascending.
    explicit TopFour(const std::array<int, count> &numbers);

    int number(int i) const { return numbers_[static_cast<std::size_t>(i)]; }
    /// How many numbers are smaller than all four.
    int room() const { return numbers_[0]; }
    /// The place of the first set of `below` (0 to 3) smaller numbers and those of the four whose
    /// bits `subset` holds. The others follow as their smaller numbers do.
    std::size_t offset(int below, unsigned subset) const {
        return offsets_[static_cast<std::size_t>(below)][subset];
    }

    /// Calls `use` with the four largest numbers of every set that has `below` smaller ones, and
    /// tells `watch` about the sets that are done each time the three largest ones change. False
    /// when the watch has stopped it.
    template <class Use>
    static bool forEach(int numbers, int below, CountWatch &watch, Use use) {
        for (int d = below + 3; d < numbers; ++d)
            for (int c = below + 2; c < d; ++c)
                for (int b = below + 1; b < c; ++b) {
                    for (int a = below; a < b; ++a)
                        use(TopFour({a, b, c, d}));
                    if (!watch.advance(numberSets::choose(b, below + 1)))
                        return false;
                }
        return true;
    }

  private:
    std::array<int, count> numbers_;
    std::array<std::array<std::size_t, subsets>, 4> offsets_{};
};

/// For every set of one to six numbers: how many grids of a game hold all of it, and which numbers
/// stand in those grids. What a game wins in a draw follows from the subsets of the draw alone, so
/// that the number of its grids makes no difference to the time.
class GridSets {
  public:
    /// For grids of the numbers 1 to `numbers`, 7 to 49.
    explicit GridSets(int numbers) : numbers_(numbers) {}

    int numbers() const { return numbers_; }
    /// Takes over all grids of `grids`, each of six different numbers in any order, told to
    /// `watch` as they come. False when the watch has stopped it.
    bool fill(const game &grids, CountWatch &watch);

    /// By the place of a set of `size` numbers: how many grids hold it.
    const std::uint32_t *counts(int size) const { return counts_[place(size)].data(); }
    /// By the place of a set of `size` numbers, 1 to 5: the numbers of those grids, the lowest
    /// one at bit 0. No bit: no grid.
    const std::uint64_t *covers(int size) const { return covers_[place(size)].data(); }

  private:
    static std::size_t place(int size) { return static_cast<std::size_t>(size); }
    void add(std::uint64_t grid);
    bool fillSmaller(int size, CountWatch &watch);
    void addToSmaller(int size, std::size_t at, const std::array<int, 7> &set);

    int numbers_;
    std::array<std::vector<std::uint32_t>, numberSets::largest + 1> counts_;
    std::array<std::vector<std::uint64_t>, numberSets::largest + 1> covers_;
};

} // namespace boulix
