// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/collectionKeys.h"
#include "games/gridRef.h"

#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace boulix {

class gameDef;
class gameResult;
class lotoComb;
class Picture;
class selector;
struct progressBar;

/// What has become of a load.
struct GameLoad {
    std::string file; ///< its full name; empty when none was chosen, or its header was refused
    std::int32_t added = 0;
    bool cancelled = false; ///< on the way: the game is empty
};

/// The list of a game without the game: which grids, in which order, under which keys.
struct GridList {
    std::vector<GridRef> grids;
    collectionKeys keys;
};

/// The grids that a player intends to play, in the order in which they were added. The grids are
/// shared objects: a grid can stand in two games, and a change of it shows in both. A reference
/// to a grid holds as long as the grid is in a game or a `GridRef` to it is kept.
class game {
  public:
    game() = default;
    /// A game of the same grids, not of copies of them.
    game(const game &other) : grids_(GridRef::copyOf(other.grids_)), keys_(other.keys_) {}
    game(game &&other) = default;
    game &operator=(game other) noexcept {
        grids_.swap(other.grids_);
        std::swap(keys_, other.keys_);
        return *this;
    }
    ~game() = default;

    /// Walks the grids in order.
    template <class Comb>
    class Walker {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = gameComb;
        using difference_type = std::ptrdiff_t;
        using pointer = Comb *;
        using reference = Comb &;

        Walker() = default;
        explicit Walker(const GridRef *at) : at_(at) {}
        Comb &operator*() const { return **at_; }
        Comb *operator->() const { return &**at_; }
        Walker &operator++() {
            ++at_;
            return *this;
        }
        Walker operator++(int) { return Walker(at_++); }
        bool operator==(const Walker &) const = default;

      private:
        const GridRef *at_ = nullptr;
    };
    auto begin() { return Walker<gameComb>(grids_.data()); }
    auto end() { return Walker<gameComb>(grids_.data() + grids_.size()); }
    auto begin() const { return Walker<const gameComb>(grids_.data()); }
    auto end() const { return Walker<const gameComb>(grids_.data() + grids_.size()); }

    /// Calls `use(grids, count)` for each stretch of grids that lie one behind the other in
    /// memory, in order. This is the quickest way through a large game.
    template <class Use>
    void forEachStretch(Use use) const {
        for (std::size_t first = 0; first < grids_.size();) {
            const std::size_t count =
                GridRef::stretch(grids_.data() + first, grids_.size() - first);
            use(&*grids_[first], count);
            first += count;
        }
    }

    /// Puts a grid at the end, under `key` when that is not empty, and gives it back. Without
    /// `item` it is a new grid of zeros; otherwise it is the caller's grid itself, not a copy.
    gameComb &Add(const GridRef &item = {}, const std::string &key = {});
    /// Makes room for so many grids more: adding grids that are there already cannot fail then.
    void reserve(std::size_t more);
    /// The grid at a position from 1, or under a key. A position that does not exist fails with
    /// `Failure::subscriptOutOfRange`, an unknown key with `Failure::invalidCall`.
    gameComb &Item(std::int64_t index) { return *grids_[place(index)]; }
    const gameComb &Item(std::int64_t index) const { return *grids_[place(index)]; }
    gameComb &Item(const std::string &key) { return Item(keys_.position(key)); }
    /// The grid at a position from 1, to be shared with another game.
    const GridRef &shared(std::int64_t index) const { return grids_[place(index)]; }
    std::int32_t Count() const { return static_cast<std::int32_t>(grids_.size()); }
    void Remove(std::int64_t index);
    void Remove(const std::string &key) { Remove(keys_.position(key)); }
    /// The same as `Remove` of each of these positions, one after the other, in one pass. They
    /// ascend; each one counts the grids as they are when its turn comes.
    void Remove(const std::vector<std::int64_t> &ascending);
    /// Removes all grids.
    void clear();

    /// The references to the grids, in order.
    const std::vector<GridRef> &refs() const { return grids_; }
    const collectionKeys &keys() const { return keys_; }
    /// The list as it stands, four bytes a grid.
    GridList list() const { return {GridRef::copyOf(grids_), keys_}; }
    /// Puts the grids of `other` in the place of `count` of those here, counted from place `first`
    /// on, which `other` gets in return; all keys change places, too. Where that is the whole
    /// list, it costs nothing, whatever its size. A stretch beyond the list fails with
    /// `Failure::subscriptOutOfRange`, which like a want of memory leaves both as they were.
    void exchange(std::size_t first, std::size_t count, GridList &other);

    /// Asks for a file, proposing `name`, and writes the grids to it. The full name of the file,
    /// empty when the user has thought better of it.
    std::string save(const std::string &name = {}) const;
    /// Asks for a file and adds its grids, numbers only, to those already here. A file of one
    /// grid adds none. A cancel empties the game; a failure leaves it as it was.
    GameLoad load();

    /// Draws one slip of the grids `first` to `last` on the preview; `page` counts from 1.
    void DisplayGrid(std::int32_t first, std::int32_t last, std::int32_t page,
                     Picture &picture) const;
    /// Prints the grids onto bet slips, or onto plain sheets with two slips each, after the
    /// preview was confirmed.
    void PrintGameGrid() const;
    void PrintGameGridCanvas() const;
    /// Prints the grids as a list.
    void PrintGameList() const;

    /// Removes every grid that an active rule of `gEliminators` condemns, then tells how many are
    /// left. False when there was nothing to judge, or a rule is beyond its range.
    bool EliminComb();

    /// How many grids win at each rank, and what: against one draw, and summed over the first
    /// `count` of `draws`.
    gameResult verify(const lotoComb &draw) const;
    gameResult verifyCombList(const std::vector<lotoComb> &draws, std::int16_t count,
                              progressBar &bar) const;

    /// Adds a grid for each row of `def`, its ranks replaced by the selected numbers. False, with
    /// number 3101, when another count of numbers is selected than the definition asks for.
    bool ComputeDefinedGame(const gameDef &def, const selector &sel);
    /// Adds every combination of six selected numbers. A cancel empties the game and gives false.
    bool ComputeManualGame(const selector &sel);
    /// Adds random grids, each different from all others, until the game holds `count`. False,
    /// with number 3102 or 3103, when `count` is negative or more than the selection can give.
    bool ComputeRandomGame(std::int32_t count, const selector &sel);

  private:
    std::size_t place(std::int64_t index) const {
        return static_cast<std::size_t>(checkedIndex(index, 1, Count()) - 1);
    }
    void sweep(const std::vector<std::uint8_t> &flags, progressBar &bar);

    std::vector<GridRef> grids_;
    collectionKeys keys_;
};

} // namespace boulix
