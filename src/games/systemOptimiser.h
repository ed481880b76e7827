// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/coveringCheck.h"
#include "games/coveringOptimiser.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace boulix {

class gameDef;

/// Copies of the rows of a system.
std::vector<gameComb> systemRows(const gameDef &def);
/// The systems that the program carries for so many numbers, whatever they guarantee.
std::vector<std::vector<gameComb>> carriedSystems(const Guarantee &guarantee);

/// Searches for a system with fewer rows for the same guarantee. Behind the fixed ranks a system
/// is a covering design or, with `nCond` above `nWin`, a lotto design.
///
/// A lotto design is also looked for in parts: with the ranks cut into two parts, a drawn numbers
/// fall into the one or b into the other as soon as a + b - 1 are drawn; so designs of the parts
/// serve together, and each number drawn beyond that allows a rank to be left unplayed.
class SystemOptimiser {
  public:
    /// Begins with the smallest of the given systems that keep the guarantee; one of them must.
    SystemOptimiser(const Guarantee &guarantee, const std::vector<std::vector<gameComb>> &systems,
                    std::uint64_t seed);

    /// Works on for about `work` table entries, see `CoveringOptimiser`.
    void run(std::int64_t work);
    /// Whether the search has come to its end: the lower bound is reached, or the problem is too
    /// large for every way there is.
    bool finished() const;

    /// How many rows the best system has.
    std::int64_t size() const { return direct_.size(); }
    /// The best system: its rows ascend and stand in lexicographic order.
    std::vector<gameComb> rows() const;
    const Guarantee &guarantee() const { return guarantee_; }
    /// No system can have fewer rows.
    std::int64_t lowerBound() const { return direct_.lowerBound(); }
    /// The published record, where there is one.
    std::optional<std::int64_t> record() const;

  private:
    /// Blocks of a part of the points, which begin at `offset`.
    struct Part {
        int offset;
        std::unique_ptr<CoveringOptimiser> search;
    };
    using Division = std::vector<Part>;

    void divide(std::uint64_t seed);
    void runParts(std::int64_t work);

    Guarantee guarantee_;
    CoveringOptimiser direct_;
    std::vector<Division> divisions_;
    std::size_t turn_ = 0;
};

} // namespace boulix
