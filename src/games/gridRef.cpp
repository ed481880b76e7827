// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gridRef.h"

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

} // namespace boulix
