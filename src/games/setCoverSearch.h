// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/setCover.h"

#include <cstdint>
#include <random>
#include <vector>

namespace boulix {

/// Where the searches take their chance from: the same seed gives the same numbers everywhere.
class SearchRandom {
  public:
    explicit SearchRandom(std::uint64_t seed) : generator_(seed) {}
    /// A number from 0 to `n` - 1; n from 1 to 2^32 - 1.
    std::uint32_t below(std::uint32_t n) {
        return static_cast<std::uint32_t>(((generator_() >> 32U) * n) >> 32U);
    }

  private:
    std::mt19937_64 generator_;
};

/// A local search with row weights for a cheap cover. It holds a set of columns that costs less
/// than the best cover found, takes one out and puts another one in, which covers a row that lies
/// open. Rows that stay open gain weight, which drives the search out of where it is stuck.
class SetCoverSearch {
  public:
    using Index = SetCover::Index;

    /// Keeps a reference to the problem.
    SetCoverSearch(const SetCover &problem, SearchRandom &random);

    /// Begins with these columns; where they leave rows open, greedily chosen ones are added.
    void start(const std::vector<Index> &columns);
    /// From now on only covers below `cost` are looked for.
    void onlyBelow(std::int64_t cost);
    /// Searches until about `work` table entries were read or `floor` is reached; gives what
    /// was read. Where no cover can be cheaper it returns at once.
    std::int64_t run(std::int64_t work, std::int64_t floor);

    /// The cheapest cover so far and its cost; empty and a very high cost before there is one.
    const std::vector<Index> &best() const { return best_; }
    std::int64_t bestCost() const { return bestCost_; }

  private:
    void add(Index column);
    void remove(Index column);
    void keepIfCover();
    void exchange();
    Index leastLoss();
    bool coverOneMore();
    bool better(std::uint64_t gain, Index a, std::uint64_t otherGain, Index b) const;
    bool lessMissed(Index a, Index b) const;
    void open(Index row);
    void close(Index row);

    const SetCover &problem_;
    SearchRandom &random_;
    std::vector<Index> chosen_;
    std::vector<Index> placeInChosen_; // one more than the place; 0 for a column that is out
    std::vector<std::uint32_t> coverers_;
    std::vector<Index> coverersXor_; // the only coverer, where there is one
    std::vector<std::uint32_t> weight_;
    std::vector<std::uint64_t> loss_; // of a chosen column: the weight of what only it covers
    std::vector<std::uint32_t> lastMove_;
    std::vector<Index> open_;
    std::vector<Index> placeInOpen_;
    std::uint32_t move_ = 0;
    Index lastAdded_;
    Index lastRemoved_;
    std::int64_t cost_ = 0;
    std::int64_t bestCost_;
    std::int64_t work_ = 0;
    std::vector<Index> best_;
};

} // namespace boulix
