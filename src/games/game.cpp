// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/game.h"

#include "core/failure.h"
#include "core/platform.h"

#include <algorithm>
#include <iterator>

namespace boulix {

gameComb &game::Add(const GridRef &item, const std::string &key) {
    keys_.add(key, Count() + 1);
    grids_.push_back(item ? item : GridRef(gameComb()));
    return *grids_.back();
}

void game::Remove(std::int64_t index) {
    grids_.erase(grids_.begin() + static_cast<std::ptrdiff_t>(place(index)));
    keys_.removed(index);
}

void game::Remove(const std::vector<std::int64_t> &ascending) {
    // All grids removed before stand in front of the next one: it has moved down by their count.
    std::int64_t removed = 0;
    std::size_t kept = 0;
    std::size_t next = 0;
    for (const std::int64_t index : ascending) {
        if (index < 1 || index > Count() - removed)
            break;
        keys_.removed(index);
        const auto at = static_cast<std::size_t>(index - 1 + removed);
        while (next < at)
            grids_[kept++] = std::move(grids_[next++]);
        ++next;
        ++removed;
    }
    grids_.erase(std::move(grids_.begin() + static_cast<std::ptrdiff_t>(next), grids_.end(),
                           grids_.begin() + static_cast<std::ptrdiff_t>(kept)),
                 grids_.end());
    if (removed < static_cast<std::int64_t>(ascending.size()))
        fail(Failure::subscriptOutOfRange);
}

void game::reserve(std::size_t more) {
    if (grids_.size() + more <= grids_.capacity())
        return;
    grids_.reserve(grids_.size() + more);
    wantLargePages(grids_.data() + grids_.size(), more * sizeof(GridRef));
}

void game::clear() {
    grids_.clear();
    grids_.shrink_to_fit();
    keys_.clear();
}

void game::exchange(std::size_t first, std::size_t count, GridList &other) {
    if (first > grids_.size() || count > grids_.size() - first)
        fail(Failure::subscriptOutOfRange);
    if (count == grids_.size()) {
        grids_.swap(other.grids);
    } else {
        std::vector<GridRef> taken;
        taken.reserve(count);
        grids_.reserve(grids_.size() - count + other.grids.size()); // from here on nothing can fail
        const auto begin = grids_.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end = begin + static_cast<std::ptrdiff_t>(count);
        std::move(begin, end, std::back_inserter(taken));
        grids_.insert(grids_.erase(begin, end), std::make_move_iterator(other.grids.begin()),
                      std::make_move_iterator(other.grids.end()));
        other.grids.swap(taken);
    }
    std::swap(keys_, other.keys);
}

} // namespace boulix
