// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/setCoverSearch.h"

namespace boulix {

namespace {

constexpr std::int64_t veryHigh = std::int64_t{1} << 40U;
/// Of more chosen columns than these, so many are looked at by chance.
constexpr std::uint32_t sample = 60;
/// The same for the columns that cover a row.
constexpr std::uint32_t columnSample = 500;

} // namespace

SetCoverSearch::SetCoverSearch(const SetCover &problem, SearchRandom &random)
    : problem_(problem), random_(random), placeInChosen_(problem.columns()),
      coverers_(problem.rows()), coverersXor_(problem.rows()), weight_(problem.rows(), 1),
      loss_(problem.columns()), lastMove_(problem.columns()), placeInOpen_(problem.rows()),
      lastAdded_(problem.columns()), lastRemoved_(problem.columns()), bestCost_(veryHigh) {
    for (Index row = 0; row < problem.rows(); ++row)
        open(row);
}

void SetCoverSearch::start(const std::vector<Index> &columns) {
    for (const Index column : columns)
        if (column < problem_.columns() && placeInChosen_[column] == 0)
            add(column);
    while (coverOneMore()) {
    }
    keepIfCover();
}

void SetCoverSearch::onlyBelow(std::int64_t cost) {
    if (cost < bestCost_) {
        bestCost_ = cost;
        best_.clear();
    }
}

std::int64_t SetCoverSearch::run(std::int64_t work, std::int64_t floor) {
    work_ = 0;
    while (work_ < work && bestCost_ > floor) {
        if (chosen_.size() < 2 && open_.empty())
            break;
        exchange();
    }
    return work_;
}

void SetCoverSearch::open(Index row) {
    placeInOpen_[row] = static_cast<Index>(open_.size());
    open_.push_back(row);
}

void SetCoverSearch::close(Index row) {
    const Index place = placeInOpen_[row];
    open_[place] = open_.back();
    placeInOpen_[open_[place]] = place;
    open_.pop_back();
}

void SetCoverSearch::add(Index column) {
    chosen_.push_back(column);
    placeInChosen_[column] = static_cast<Index>(chosen_.size());
    cost_ += problem_.cost(column);
    std::uint64_t alone = 0;
    const auto rows = problem_.rowsOf(column);
    for (const Index row : rows) {
        if (coverers_[row] == 0) {
            close(row);
            alone += weight_[row];
        } else if (coverers_[row] == 1) {
            loss_[coverersXor_[row]] -= weight_[row];
        }
        ++coverers_[row];
        coverersXor_[row] ^= column;
    }
    loss_[column] = alone;
    lastMove_[column] = ++move_;
    work_ += static_cast<std::int64_t>(rows.size());
}

void SetCoverSearch::remove(Index column) {
    const Index place = placeInChosen_[column] - 1;
    chosen_[place] = chosen_.back();
    placeInChosen_[chosen_[place]] = place + 1;
    chosen_.pop_back();
    placeInChosen_[column] = 0;
    cost_ -= problem_.cost(column);
    const auto rows = problem_.rowsOf(column);
    for (const Index row : rows) {
        --coverers_[row];
        coverersXor_[row] ^= column;
        if (coverers_[row] == 0)
            open(row);
        else if (coverers_[row] == 1)
            loss_[coverersXor_[row]] += weight_[row];
    }
    lastMove_[column] = ++move_;
    work_ += static_cast<std::int64_t>(rows.size());
}

/// Whether `a` is the better choice than `b`: more gain for its cost, of equal ones the one that
/// has rested longer.
bool SetCoverSearch::better(std::uint64_t gain, Index a, std::uint64_t otherGain, Index b) const {
    const std::uint64_t mine = gain * problem_.cost(b);
    const std::uint64_t other = otherGain * problem_.cost(a);
    return mine > other || (mine == other && lastMove_[a] < lastMove_[b]);
}

/// Whether `a` is the better one to take out: less loss for its cost, of equal ones the older.
bool SetCoverSearch::lessMissed(Index a, Index b) const {
    const std::uint64_t mine = loss_[a] * problem_.cost(b);
    const std::uint64_t other = loss_[b] * problem_.cost(a);
    return mine < other || (mine == other && lastMove_[a] < lastMove_[b]);
}

SetCoverSearch::Index SetCoverSearch::leastLoss() {
    const auto count = static_cast<std::uint32_t>(chosen_.size());
    const bool all = count <= sample;
    const std::uint32_t looks = all ? count : sample;
    Index found = problem_.columns();
    for (std::uint32_t i = 0; i < looks; ++i) {
        const Index column = chosen_[all ? i : random_.below(count)];
        if (column == lastAdded_)
            continue;
        if (found == problem_.columns() || lessMissed(column, found))
            found = column;
    }
    work_ += looks;
    return found == problem_.columns() ? chosen_[random_.below(count)] : found;
}

void SetCoverSearch::keepIfCover() {
    while (open_.empty() && cost_ < bestCost_) {
        best_ = chosen_;
        bestCost_ = cost_;
        if (!chosen_.empty())
            remove(leastLoss());
    }
}

/// Covers one open row, chosen by chance, by the column that gains most. False when there is no
/// open row, or no column for it that keeps the cost below the best.
bool SetCoverSearch::coverOneMore() {
    if (open_.empty())
        return false;
    const Index row = open_[random_.below(static_cast<std::uint32_t>(open_.size()))];
    Index found = problem_.columns();
    std::uint64_t most = 0;
    const auto columns = problem_.columnsOf(row);
    const auto count = static_cast<std::uint32_t>(columns.size());
    const bool all = count <= 2 * columnSample;
    for (std::uint32_t i = 0; i < (all ? count : columnSample); ++i) {
        const Index column = columns[all ? i : random_.below(count)];
        if (column == lastRemoved_ || cost_ + problem_.cost(column) >= bestCost_)
            continue;
        std::uint64_t gain = 0;
        for (const Index r : problem_.rowsOf(column))
            if (coverers_[r] == 0)
                gain += weight_[r];
        work_ += static_cast<std::int64_t>(problem_.rowsOf(column).size());
        if (found == problem_.columns() || better(gain, column, most, found)) {
            found = column;
            most = gain;
        }
    }
    if (found == problem_.columns())
        return false;
    add(found);
    lastAdded_ = found;
    return true;
}

void SetCoverSearch::exchange() {
    keepIfCover();
    if (!chosen_.empty()) {
        const Index out = leastLoss();
        remove(out);
        lastRemoved_ = out;
    }
    while (coverOneMore()) {
    }
    for (const Index row : open_)
        ++weight_[row];
    work_ += static_cast<std::int64_t>(open_.size());
    keepIfCover();
}

} // namespace boulix
