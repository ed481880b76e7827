// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/literalCompute.h"

#include "core/modMaths.h"
#include "games/modGame.h"

#include <stdexcept>
#include <utility>

namespace boulix::literal {

namespace {

using Codes = std::vector<std::int32_t>; // used from index 1

/// Fills positions `at` to `last` of `row` with ascending numbers up to `nSelect` in all ways, in
/// lexicographic order, and adds the code of each row.
void enumerate(gameComb &row, int at, int last, int from, std::int16_t nSelect, Codes &codes) {
    if (at > last) {
        codes.push_back(modMaths::combRank(row, static_cast<std::int16_t>(last)));
        return;
    }
    for (int n = from; n <= nSelect - (last - at); ++n) {
        row.num(at, static_cast<std::int16_t>(n));
        enumerate(row, at + 1, last, n + 1, nSelect, codes);
    }
}

Codes enumerate(std::int16_t nFixed, int last, std::int16_t nSelect) {
    Codes codes(1);
    gameComb row;
    for (int i = 1; i <= nFixed; ++i)
        row.num(i, static_cast<std::int16_t>(i));
    enumerate(row, nFixed + 1, last, nFixed + 1, nSelect, codes);
    return codes;
}

class Computation {
  public:
    Computation(std::int16_t nFixed, std::int16_t nWin, std::int16_t nSelect)
        : fixed_(nFixed), win_(nWin), grids_(enumerate(nFixed, 6, nSelect)),
          puplets_(enumerate(nFixed, nWin, nSelect)) {}

    std::vector<gameComb> rows() {
        sortPuplets();
        covered_.assign(puplets_.size(), 0);
        finished_.assign(grids_.size(), 0);
        std::vector<gameComb> rows;
        for (std::size_t t = 1; t < puplets_.size(); ++t) {
            if (covered_[t] != 0)
                continue;
            const std::size_t best = bestGrid(t);
            finished_[best] = -1;
            for (const std::int32_t p : expand(grids_[best]))
                covered_[static_cast<std::size_t>(p)] = -1;
            rows.push_back(modMaths::combFromRank(grids_[best], 6));
        }
        return rows;
    }

  private:
    void sortPuplets() {
        const std::size_t count = puplets_.size() - 1;
        order_.resize(count + 1);
        for (std::size_t i = 1; i <= count; ++i)
            order_[i] = static_cast<std::int32_t>(i);
        for (std::size_t i = 1; i <= count; ++i)
            for (std::size_t j = 1; j + i <= count; ++j)
                if (sorted(j) > sorted(j + 1))
                    std::swap(order_[j], order_[j + 1]);
    }

    std::int32_t sorted(std::size_t i) const {
        return puplets_[static_cast<std::size_t>(order_[i])];
    }

    std::size_t bestGrid(std::size_t t) {
        int best = 0;
        std::size_t bestGrid = 0;
        for (std::size_t g = 1; g < grids_.size(); ++g) {
            if (finished_[g] != 0)
                continue;
            int fresh = 0;
            bool holds = false;
            for (const std::int32_t p : expand(grids_[g])) {
                fresh += covered_[static_cast<std::size_t>(p)] == 0;
                holds = holds || static_cast<std::size_t>(p) == t;
            }
            if (fresh == 0)
                finished_[g] = -1;
            else if (holds && fresh >= best) {
                best = fresh;
                bestGrid = g;
            }
        }
        if (bestGrid == 0)
            throw std::logic_error("no grid holds the p-uplet");
        return bestGrid;
    }

    /// The p-uplets of a grid, by their index in the list.
    std::vector<std::int32_t> expand(std::int32_t code) const {
        const gameComb grid = modMaths::combFromRank(code, 6);
        const auto f = static_cast<std::size_t>(fixed_);
        const auto s = static_cast<std::size_t>(win_ - fixed_);
        std::vector<std::int32_t> indices;
        for (std::size_t r = 1; r <= static_cast<std::size_t>(modGame::subsetCount[f][s]); ++r) {
            gameComb row;
            for (int i = 1; i <= fixed_; ++i)
                row.num(i, static_cast<std::int16_t>(i));
            for (int i = 1; i <= win_ - fixed_; ++i)
                row.num(fixed_ + i, grid.num(modGame::subsetList[f][s][r].num(i)));
            indices.push_back(find(modMaths::combRank(row, win_)));
        }
        return indices;
    }

    std::int32_t find(std::int32_t key) const {
        std::size_t low = 0;
        std::size_t high = puplets_.size() - 1;
        while (high - low >= 2) {
            const std::size_t middle = (low + high) / 2;
            if (key <= sorted(middle))
                high = middle;
            else
                low = middle;
        }
        if (sorted(high) != key)
            throw std::logic_error("no such p-uplet");
        return order_[high];
    }

    std::int16_t fixed_;
    std::int16_t win_;
    Codes grids_;
    Codes puplets_;
    Codes order_;
    std::vector<std::int16_t> covered_;
    std::vector<std::int16_t> finished_;
};

} // namespace

std::vector<gameComb> compute(std::int16_t nFixed, std::int16_t nWin, std::int16_t nSelect) {
    return Computation(nFixed, nWin, nSelect).rows();
}

} // namespace boulix::literal
