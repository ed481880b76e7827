// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gameStep.h"

#include <algorithm>
#include <iterator>

namespace boulix {

namespace {

/// How many grids two lists have in common at their start, or at their end.
template <class Iterator>
std::size_t commonRun(Iterator one, Iterator oneEnd, Iterator other, Iterator otherEnd) {
    return static_cast<std::size_t>(std::mismatch(one, oneEnd, other, otherEnd).first - one);
}

} // namespace

GameStep GameStep::adding(const game &before) {
    GameStep step;
    step.first_ = static_cast<std::size_t>(before.Count());
    step.kept_.keys = before.keys();
    step.adds_ = true;
    return step;
}

void GameStep::empty(game &grids) {
    grids.exchange(0, grids.refs().size(), kept_);
}

bool GameStep::close(const game &after) {
    const std::vector<GridRef> &is = after.refs();
    if (adds_) {
        count_ = is.size() - first_;
        return count_ > 0;
    }
    const std::vector<GridRef> &was = kept_.grids;
    const std::size_t front = commonRun(was.begin(), was.end(), is.begin(), is.end());
    if (front == was.size() && front == is.size())
        return false;
    const auto frontEnd = static_cast<std::ptrdiff_t>(front);
    const std::size_t back =
        commonRun(was.rbegin(), was.rend() - frontEnd, is.rbegin(), is.rend() - frontEnd);
    const std::size_t changed = was.size() - front - back;
    // The whole list changes places at once, a stretch in the time that a move of all grids takes:
    // it is worth it where it saves much memory.
    if (changed <= was.size() / 8) {
        first_ = front;
        count_ = is.size() - front - back;
        keepStretch(front, changed);
    } else {
        count_ = is.size();
    }
    return true;
}

void GameStep::keepStretch(std::size_t first, std::size_t count) {
    const auto begin = kept_.grids.begin() + static_cast<std::ptrdiff_t>(first);
    kept_.grids =
        std::vector<GridRef>(std::make_move_iterator(begin),
                             std::make_move_iterator(begin + static_cast<std::ptrdiff_t>(count)));
}

void GameStep::exchange(game &grids) {
    const std::size_t count = kept_.grids.size();
    grids.exchange(first_, count_, kept_);
    count_ = count;
}

std::size_t GameStep::bytes() const {
    const std::size_t kept = kept_.grids.size();
    const std::size_t gone = kept > count_ ? kept - count_ : 0;
    return kept_.grids.capacity() * sizeof(GridRef) + gone * sizeof(gameComb);
}

} // namespace boulix
