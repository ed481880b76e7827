// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/coveringOptimiser.h"

#include "games/coveringReduction.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>
#include <utility>

namespace boulix {

using namespace covering;

namespace {

/// What a problem may have: sets to give to orbits, entries in its table.
constexpr std::int64_t mostSets = 20'000'000;
constexpr std::int64_t mostEntries = 6'000'000;
/// So many groups stay before all of them come in again.
constexpr std::size_t finalists = 5;
constexpr std::int64_t firstShare = 8'000'000;
/// What the problems of the first round may cost in all.
constexpr std::int64_t firstRound = 4'000'000'000;
constexpr std::int64_t unknown = std::int64_t{1} << 40U;

/// The length of most orbits of blocks.
std::int64_t usualOrbit(const CoveringDesign &design, const PointGroup &group) {
    SearchRandom random(1);
    std::size_t longest = 1;
    for (int i = 0; i < 3; ++i) {
        PointSet block = 0;
        while (std::popcount(block) < design.blockSize)
            block |= PointSet{1} << random.below(static_cast<std::uint32_t>(design.points));
        longest = std::max(longest, orbitOf(block, group, 100'000).size());
    }
    return static_cast<std::int64_t>(longest);
}

int fixedPoints(const PointGroup &group, int points) {
    int count = 0;
    for (int i = 0; i < points; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (std::all_of(group.begin(), group.end(),
                        [at](const Permutation &p) { return p[at] == at; }))
            ++count;
    }
    return count;
}

/// What it costs to set a problem up, about.
std::int64_t effort(const CoveringDesign &design) {
    return SetCover::sets(design) * 20;
}

} // namespace

CoveringOptimiser::CoveringOptimiser(const CoveringDesign &design, Blocks blocks,
                                     std::uint64_t seed)
    : design_(design), floor_(covering::lowerBound(design)), best_(std::move(blocks)),
      random_(seed), seasonShare_(std::max(firstShare, effort(design))), share_(seasonShare_) {
    improve(best_);
}

void CoveringOptimiser::run(std::int64_t work) {
    if (!collected_ && !finished())
        collect();
    while (work > 0 && !finished() && !round_.empty())
        work -= step(work);
}

/// The first candidate is the search without symmetry. Of the others those come first whose
/// problem is of a middling size and that move all points.
void CoveringOptimiser::collect() {
    collected_ = true;
    if (SetCover::sets(design_) > mostSets)
        return;
    addCandidate({}, best_);
    const std::size_t plain = candidates_.size(); // 0 where that problem is too large
    for (const PointGroup &group : symmetryGroups(design_.points))
        addCandidate(group, {});
    const double middling = std::max(100'000.0, static_cast<double>(SetCover::sets(design_)) / 10);
    const auto oddity = [=, points = design_.points](const Candidate &c) {
        return std::abs(std::log(static_cast<double>(c.entries) / middling)) +
               fixedPoints(c.group, points);
    };
    std::stable_sort(candidates_.begin() + static_cast<std::ptrdiff_t>(plain), candidates_.end(),
                     [&](const Candidate &a, const Candidate &b) { return oddity(a) < oddity(b); });
    const std::int64_t most = firstRound / (effort(design_) + share_);
    if (std::ssize(candidates_) > most)
        candidates_.resize(static_cast<std::size_t>(most));
    enterAll();
}

void CoveringOptimiser::enterAll() {
    round_.resize(candidates_.size());
    std::iota(round_.begin(), round_.end(), std::size_t{0});
}

void CoveringOptimiser::addCandidate(const PointGroup &group, const Blocks &found) {
    const std::int64_t entries = SetCover::entries(design_, usualOrbit(design_, group));
    if (entries <= mostEntries)
        candidates_.push_back({group, entries, found, found.empty() ? unknown : size()});
}

std::int64_t CoveringOptimiser::step(std::int64_t work) {
    if (!problem_)
        open();
    if (!problem_->built())
        return problem_->build(work) + 1;
    if (!search_)
        startSearch();
    const std::int64_t done = search_->run(std::min(work, left_), floor_);
    left_ -= done;
    keep();
    if (left_ <= 0 || done == 0)
        close();
    return done + 1;
}

void CoveringOptimiser::open() {
    const Candidate &candidate = candidates_[round_[turn_]];
    problem_ = std::make_unique<SetCover>(design_, candidate.group, size());
    left_ = share_;
}

void CoveringOptimiser::startSearch() {
    Candidate &candidate = candidates_[round_[turn_]];
    if (candidate.group.empty()) {
        candidate.found = best_;
        candidate.cost = size();
    }
    search_ = std::make_unique<SetCoverSearch>(*problem_, random_);
    std::vector<SetCover::Index> columns;
    for (const PointSet block : candidate.found)
        columns.push_back(problem_->columnOf(block));
    search_->start(columns);
    // A small problem is soon searched through.
    left_ = std::min(left_, std::int64_t{20'000} * problem_->columns());
}

/// Takes over what the search has found.
void CoveringOptimiser::keep() {
    Candidate &candidate = candidates_[round_[turn_]];
    if (search_->bestCost() >= candidate.cost)
        return;
    candidate.cost = search_->bestCost();
    candidate.found.clear();
    for (const SetCover::Index column : search_->best())
        candidate.found.push_back(problem_->representative(column));
    if (candidate.cost >= size())
        return;
    Blocks blocks;
    for (const PointSet block : candidate.found)
        for (const PointSet member :
             orbitOf(block, candidate.group, static_cast<std::size_t>(candidate.cost)))
            blocks.push_back(member);
    improve(std::move(blocks));
}

void CoveringOptimiser::improve(Blocks blocks) {
    removeRedundant(design_, blocks);
    std::sort(blocks.begin(), blocks.end());
    best_ = std::move(blocks);
}

void CoveringOptimiser::offer(const Blocks &blocks) {
    if (std::ssize(blocks) < size())
        improve(blocks);
}

void CoveringOptimiser::close() {
    search_.reset();
    problem_.reset();
    if (++turn_ == round_.size())
        nextRound();
}

void CoveringOptimiser::nextRound() {
    turn_ = 0;
    share_ *= 2;
    if (round_.size() <= finalists) {
        seasonShare_ *= 4;
        share_ = seasonShare_;
        enterAll();
        return;
    }
    // The search without symmetry stays in every round.
    const auto rank = [this](std::size_t i) {
        return candidates_[i].group.empty() ? 0 : candidates_[i].cost;
    };
    std::stable_sort(round_.begin(), round_.end(),
                     [&](std::size_t a, std::size_t b) { return rank(a) < rank(b); });
    round_.resize(std::max(finalists, (round_.size() + 1) / 2));
}

} // namespace boulix
