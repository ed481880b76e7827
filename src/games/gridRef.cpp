// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gridRef.h"

#include <algorithm>
#include <new>

namespace boulix {

GridStore &gridStore = *new GridStore;

void GridStore::Free::operator()(gameComb *grids) const {
    ::operator delete (grids, std::align_val_t{largePage});
}

void GridStore::openChunk() {
    void *memory = ::operator new (largePage, std::align_val_t{largePage});
    wantLargePages(memory, largePage);
    Chunk chunk{decltype(Chunk::grids)(static_cast<gameComb *>(memory))};
    if (free_.empty()) {
        chunks_.push_back(std::move(chunk));
        current_ = static_cast<std::uint32_t>(chunks_.size() - 1);
    } else {
        current_ = free_.back();
        free_.pop_back();
        chunks_[current_] = std::move(chunk);
    }
}

void GridStore::closeChunk(std::uint32_t number) {
    if (number == current_) {
        chunks_[number].used = 0; // nobody refers to its grids: it starts afresh
        return;
    }
    free_.push_back(number);
    chunks_[number].grids.reset();
}

std::vector<GridRef> GridRef::copyOf(const std::vector<GridRef> &refs) {
    const std::size_t size = refs.size();
    std::vector<GridRef> copy;
    copy.reserve(size);
    wantLargePages(copy.data(), size * sizeof(GridRef));
    copy.resize(size); // from here on nothing can fail
    for (std::size_t i = 0; i < size; ++i)
        copy[i].place_ = refs[i].place_;
    for (std::size_t first = 0; first < size;) {
        std::size_t next = first + 1;
        while (next < size && GridStore::inOneChunk(refs[first].place_, refs[next].place_))
            ++next;
        gridStore.refer(refs[first].place_, static_cast<std::uint32_t>(next - first));
        first = next;
    }
    return copy;
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
