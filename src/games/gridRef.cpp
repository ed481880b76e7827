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
    constexpr std::size_t step = 64; // so many at a time, as the compiler can compare them at once
    const GridStore::Place start = first->place_;
    const std::size_t room = std::min(count, GridStore::room(start));
    const auto stepFollows = [&](std::size_t begin) {
        GridStore::Place strays = 0;
        for (std::size_t i = begin; i < begin + step; ++i)
            strays |= first[i].place_ ^ (start + static_cast<GridStore::Place>(i));
        return strays == 0;
    };
    std::size_t length = 1;
    while (length < room && first[length].place_ == start + length) {
        ++length;
        if (length % step == 0)
            while (length + step <= room && stepFollows(length))
                length += step;
    }
    return length;
}

} // namespace boulix
