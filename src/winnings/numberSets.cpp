// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/numberSets.h"

#include "core/numberMask.h"
#include "games/game.h"

#include <bit>

namespace boulix {

using numberSets::choose;

TopFour::TopFour(const std::array<int, count> &numbers) : numbers_(numbers) {
    for (int below = 0; below < 4; ++below)
        for (unsigned subset = 0; subset < subsets; ++subset) {
            int position = below;
            std::size_t at = 0;
            for (unsigned i = 0; i < count; ++i)
                if ((subset >> i & 1U) != 0 && position < numberSets::largest)
                    at += choose(numbers_[i], ++position);
            offsets_[static_cast<std::size_t>(below)][subset] = at;
        }
}

bool GridSets::fill(const game &grids, CountWatch &watch) {
    for (int size = 1; size <= numberSets::largest; ++size) {
        counts_[place(size)] = numberSets::table<std::uint32_t>(numbers_, size);
        if (size < numberSets::largest)
            covers_[place(size)] = numberSets::table<std::uint64_t>(numbers_, size);
    }
    std::size_t told = 0;
    for (const gameComb &grid : grids) {
        add(maskOf(grid.numbers()) >> 1U);
        if (++told % CountWatch::rhythm == 0 && !watch.advance(CountWatch::rhythm))
            return false;
    }
    for (int size = numberSets::largest; size > 1; --size)
        if (!fillSmaller(size, watch))
            return false;
    return true;
}

/// Counts a grid, given as a mask, as a set of six.
void GridSets::add(std::uint64_t grid) {
    std::size_t at = 0;
    int position = 0;
    for (; grid != 0; grid &= grid - 1)
        at += choose(std::countr_zero(grid), ++position);
    ++counts_[numberSets::largest][at];
}

/// From the sets of `size` numbers to those with one number less. Each grid that holds the smaller
/// set reaches it by as many larger ones as it has numbers beside it.
bool GridSets::fillSmaller(int size, CountWatch &watch) {
    const std::uint32_t *counts = counts_[place(size)].data();
    const std::size_t sets = choose(numbers_, size);
    std::array<int, 7> set{};
    for (int i = 0; i < size; ++i)
        set[place(i)] = i;
    set[place(size)] = numbers_; // never reached
    for (std::size_t at = 0; at < sets; ++at) {
        if (counts[at] != 0)
            addToSmaller(size, at, set);
        std::size_t i = 0;
        for (; set[i] + 1 == set[i + 1] && i + 1 < place(size); ++i)
            set[i] = static_cast<int>(i);
        ++set[i];
        if ((at + 1) % CountWatch::rhythm == 0 && !watch.advance(CountWatch::rhythm))
            return false;
    }
    const auto ways = static_cast<std::uint32_t>(numberSets::largest + 1 - size);
    for (std::uint32_t &count : counts_[place(size - 1)])
        count /= ways;
    return true;
}

/// Adds the set of `size` numbers at the place `at` to those that lack one of its numbers.
void GridSets::addToSmaller(int size, std::size_t at, const std::array<int, 7> &set) {
    const std::uint32_t count = counts_[place(size)][at];
    std::uint64_t cover = 0;
    if (size < numberSets::largest)
        cover = covers_[place(size)][at];
    else
        for (int i = 0; i < size; ++i)
            cover |= std::uint64_t{1} << static_cast<unsigned>(set[place(i)]);
    std::size_t lower = at; // what the numbers below the missing one add to its place
    std::size_t upper = 0;  // and those above it, each one position lower
    for (int i = size - 1; i >= 0; --i) {
        lower -= choose(set[place(i)], i + 1);
        counts_[place(size - 1)][lower + upper] += count;
        covers_[place(size - 1)][lower + upper] |= cover;
        if (i > 0)
            upper += choose(set[place(i)], i);
    }
}

} // namespace boulix
