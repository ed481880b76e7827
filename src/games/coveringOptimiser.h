// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/setCoverSearch.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace boulix {

/// Makes a covering smaller, for as long as one likes. It prescribes groups of symmetry, one after
/// the other, and searches each of the set cover problems that arise for a short time; the better
/// half of the groups goes on to the next round, with twice the time, until few are left and all
/// of them come in again. Between them the search without any symmetry works on the best covering.
///
/// Work is counted in table entries, not in time: with the same seed the same work gives the same
/// blocks, in however many pieces it is done.
class CoveringOptimiser {
  public:
    /// Begins with `blocks`, which cover what they must.
    CoveringOptimiser(const CoveringDesign &design, Blocks blocks, std::uint64_t seed);
    CoveringOptimiser(const CoveringOptimiser &) = delete;
    CoveringOptimiser &operator=(const CoveringOptimiser &) = delete;

    /// Works on for about `work` entries, some hundred millions of which take a second.
    void run(std::int64_t work);
    /// Whether no better covering can be found: the lower bound is reached.
    bool finished() const { return size() <= floor_; }

    /// Whether there is no way to search: every problem is too large. `run` does nothing then.
    bool exhausted() const { return collected_ && round_.empty(); }
    /// Takes these blocks, which cover what they must, where they are fewer.
    void offer(const Blocks &blocks);

    const CoveringDesign &design() const { return design_; }
    /// The best covering so far.
    const Blocks &best() const { return best_; }
    std::int64_t size() const { return static_cast<std::int64_t>(best_.size()); }
    /// See `covering::lowerBound`.
    std::int64_t lowerBound() const { return floor_; }

  private:
    struct Candidate {
        PointGroup group;
        std::int64_t entries; // of its problem, at most
        Blocks found;         // one block of each orbit chosen
        std::int64_t cost;
    };

    void collect();
    void enterAll();
    void addCandidate(const PointGroup &group, const Blocks &found);
    std::int64_t step(std::int64_t work);
    void open();
    void startSearch();
    void close();
    void nextRound();
    void keep();
    void improve(Blocks blocks);

    CoveringDesign design_;
    std::int64_t floor_;
    Blocks best_;
    bool collected_ = false;
    SearchRandom random_;
    std::vector<Candidate> candidates_;
    std::vector<std::size_t> round_; // who takes part
    std::size_t turn_ = 0;
    std::int64_t seasonShare_; // of work, for each of them in a first round
    std::int64_t share_;       // the same in this round
    std::int64_t left_ = 0;
    std::unique_ptr<SetCover> problem_;
    std::unique_ptr<SetCoverSearch> search_;
};

} // namespace boulix
