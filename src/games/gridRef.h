// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/platform.h"
#include "games/gameComb.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace boulix {

/// Where the grids of all games and the rows of all definitions lie: in chunks, each of which
/// counts how many references point into it and goes when there are none left.
class GridStore {
  public:
    using Place = std::uint32_t;
    static constexpr Place nowhere = 0xFFFFFFFF;

    /// Grids that lie one behind the other, each referred to once.
    struct Stretch {
        Place first;
        gameComb *grids;
        std::uint32_t count;
    };
    /// New grids for the caller to fill: `count` of them, or as many as fit behind one another,
    /// at least one.
    Stretch make(std::uint32_t count) {
        if (current_ == noChunk || chunks_[current_].used == chunkSize)
            openChunk();
        Chunk &chunk = chunks_[current_];
        count = std::min(count, chunkSize - chunk.used);
        const Stretch made{current_ * chunkSize + chunk.used, &chunk.grids[chunk.used], count};
        chunk.used += count;
        chunk.references += count;
        return made;
    }
    gameComb &at(Place place) { return chunkOf(place).grids[place % chunkSize]; }
    void refer(Place place, std::uint32_t times = 1) { chunkOf(place).references += times; }
    /// Whether both places lie in the same chunk.
    static bool inOneChunk(Place one, Place other) { return one / chunkSize == other / chunkSize; }
    void release(Place place) {
        if (--chunkOf(place).references == 0)
            closeChunk(place / chunkSize);
    }
    /// How many grids from `place` on lie one behind the other in memory.
    static std::size_t room(Place place) { return chunkSize - place % chunkSize; }
    /// How many chunks are held.
    std::size_t chunkCount() const { return chunks_.size() - free_.size(); }

  private:
    static constexpr std::uint32_t chunkSize = largePage / sizeof(gameComb);
    static constexpr std::uint32_t noChunk = nowhere / chunkSize;
    struct Free {
        void operator()(gameComb *grids) const;
    };
    struct Chunk {
        std::unique_ptr<gameComb[], Free> grids;
        std::uint32_t used = 0;
        std::uint32_t references = 0;
    };

    Chunk &chunkOf(Place place) { return chunks_[place / chunkSize]; }
    void openChunk();
    void closeChunk(std::uint32_t number);

    std::vector<Chunk> chunks_;
    std::vector<std::uint32_t> free_; // numbers of chunks that went
    std::uint32_t current_ = noChunk; // the one that new grids go into
};

/// The one store. It is never destroyed: games that live to the end of the process refer to it.
extern GridStore &gridStore;

/// A reference to a grid that several games and definitions may share: whoever changes the grid
/// changes it for all who refer to it.
///
/// A game can hold fourteen million grids. An object of its own for each, with its count of users
/// and a pointer to it, would cost some 50 bytes; a grid in a chunk costs its 14 bytes, and each
/// place that refers to it 4. The count of users is kept for the chunk, not for the grid: a chunk
/// stays while any of its grids is referred to.
class GridRef {
  public:
    /// Refers to nothing.
    GridRef() = default;
    /// A new grid with these contents.
    explicit GridRef(const gameComb &contents) : GridRef(contents.numbers(), contents.sum()) {}
    GridRef(const gameComb::Numbers &numbers, std::int16_t sum) {
        const GridStore::Stretch made = gridStore.make(1);
        *made.grids = gameComb(numbers, sum);
        place_ = made.first;
    }
    /// Takes over a reference that the store has counted when it made the grid.
    static GridRef adopt(GridStore::Place place) {
        GridRef ref;
        ref.place_ = place;
        return ref;
    }
    /// `refs` once more, each of which refers to a grid. Much quicker than one copy after the
    /// other: in a large game this is little more than the copy of its bytes.
    static std::vector<GridRef> copyOf(const std::vector<GridRef> &refs);
    GridRef(const GridRef &other) : place_(other.place_) {
        if (place_ != GridStore::nowhere)
            gridStore.refer(place_);
    }
    GridRef(GridRef &&other) noexcept : place_(std::exchange(other.place_, GridStore::nowhere)) {}
    GridRef &operator=(GridRef other) noexcept {
        std::swap(place_, other.place_);
        return *this;
    }
    ~GridRef() {
        if (place_ != GridStore::nowhere)
            gridStore.release(place_);
    }

    friend void swap(GridRef &one, GridRef &other) noexcept { std::swap(one.place_, other.place_); }

    explicit operator bool() const { return place_ != GridStore::nowhere; }
    gameComb &operator*() const { return gridStore.at(place_); }
    gameComb *operator->() const { return &gridStore.at(place_); }
    /// How many of the `count` references from `first` on, at least one, have their grids one
    /// behind the other in memory.
    static std::size_t stretch(const GridRef *first, std::size_t count);
    /// Whether both refer to the same grid, not to equal ones.
    bool operator==(const GridRef &other) const { return place_ == other.place_; }

  private:
    GridStore::Place place_ = GridStore::nowhere;
};

} // namespace boulix
