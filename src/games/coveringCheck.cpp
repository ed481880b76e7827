// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/coveringCheck.h"

#include <algorithm>

namespace boulix {

namespace {

using Mask = std::uint64_t;

bool isProper(const gameComb &row, const Guarantee &guarantee) {
    std::int16_t last = 0;
    for (const std::int16_t n : row.numbers()) {
        if (n <= last || n > guarantee.nSelect)
            return false;
        last = n;
    }
    return guarantee.nFixed == 0 || row.num(guarantee.nFixed) == guarantee.nFixed;
}

/// Looks for a draw of which no row holds enough numbers. The rows are turned into the list of
/// all choices of `nWin` numbers that they hold; such a draw is a set of numbers none of whose
/// choices is in the list. It is put together number by number, downwards, behind the fixed
/// numbers, and given up as soon as one of its choices is in the list.
class FailedDrawSearch {
  public:
    FailedDrawSearch(const std::vector<gameComb> &rows, const Guarantee &guarantee)
        : guarantee_(guarantee), size_(guarantee.nWin - guarantee.nFixed) {
        for (const gameComb &row : rows) {
            drawn_.assign(row.numbers().begin() + guarantee.nFixed, row.numbers().end());
            addChoices(0, 0, 0);
        }
        std::sort(held_.begin(), held_.end());
        held_.erase(std::unique(held_.begin(), held_.end()), held_.end());
        drawn_.clear();
    }

    /// Whether a draw can be put together of what is drawn and of numbers up to `highest`.
    bool exists(std::int16_t highest) {
        if (static_cast<int>(drawn_.size()) == guarantee_.nCond - guarantee_.nFixed)
            return true;
        for (std::int16_t n = highest; n > guarantee_.nFixed; --n) {
            if (servedWith(Mask{1} << n, 1, 0))
                continue;
            drawn_.push_back(n);
            const bool found = exists(static_cast<std::int16_t>(n - 1));
            drawn_.pop_back();
            if (found)
                return true;
        }
        return false;
    }

  private:
    void addChoices(Mask chosen, int count, std::size_t from) {
        if (count == size_) {
            held_.push_back(chosen);
            return;
        }
        for (std::size_t i = from; i < drawn_.size(); ++i)
            addChoices(chosen | Mask{1} << drawn_[i], count + 1, i + 1);
    }

    /// Whether a choice that holds `chosen`, and the rest of it from what is drawn, is held.
    bool servedWith(Mask chosen, int count, std::size_t from) const {
        if (count == size_)
            return std::binary_search(held_.begin(), held_.end(), chosen);
        for (std::size_t i = from; i < drawn_.size(); ++i)
            if (servedWith(chosen | Mask{1} << drawn_[i], count + 1, i + 1))
                return true;
        return false;
    }

    Guarantee guarantee_;
    int size_; // of a choice, behind the fixed numbers
    std::vector<std::int16_t> drawn_;
    std::vector<Mask> held_;
};

} // namespace

bool keepsGuarantee(const std::vector<gameComb> &rows, const Guarantee &guarantee) {
    const auto proper = [&](const gameComb &row) { return isProper(row, guarantee); };
    return std::all_of(rows.begin(), rows.end(), proper) &&
           !FailedDrawSearch(rows, guarantee).exists(guarantee.nSelect);
}

} // namespace boulix
