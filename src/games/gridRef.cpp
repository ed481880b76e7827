// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gridRef.h"

#include <algorithm>

namespace boulix {

GridStore &gridStore = *new GridStore;

void GridStore::openChunk() {
    auto chunk = std::make_unique<Chunk>();
    current_ = chunk.get();
    if (free_.empty()) {
        currentNumber_ = static_cast<std::uint32_t>(chunks_.size());
        chunks_.push_back(std::move(chunk));
    } else {
        currentNumber_ = free_.back();
        free_.pop_back();
        chunks_[currentNumber_] = std::move(chunk);
    }
}

void GridStore::closeChunk(std::uint32_t number) {
    if (chunks_[number].get() == current_) {
        current_->used = 0; // nobody refers to its grids: it starts afresh
        return;
    }
    free_.push_back(number);
    chunks_[number].reset();
}

std::size_t GridRef::stretch(const GridRef *first, std::size_t count) {
    constexpr std::size_t step = 16; // so many at a time, as the compiler can compare them at once
    const std::size_t room = std::min(count, GridStore::room(first->place_));
    const auto misplaced = [first](std::size_t i) {
        return first[i].place_ ^ (first->place_ + static_cast<GridStore::Place>(i));
    };
    std::size_t length = 1;
    for (; length + step <= room; length += step) {
        GridStore::Place strays = 0;
        for (std::size_t i = 0; i < step; ++i)
            strays |= misplaced(length + i);
        if (strays != 0)
            break;
    }
    while (length < room && misplaced(length) == 0)
        ++length;
    return length;
}

} // namespace boulix
