// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"

#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

struct GameChances;

/// The window that tells the chances of a game: rank by rank as a table and as a picture, what the
/// game gives back on average, and what it guarantees.
class frmChances {
  public:
    static constexpr const char *caption = "Chances du jeu";

    /// A bar of the picture: a rank, its chance (more than 0, at most 1) and what stands beside it.
    struct Bar {
        std::string label;
        double chance;
        std::string text;
    };

    /// `unit` is the name of the user's money, in the singular.
    frmChances(const GameChances &chances, const std::string &unit);
    frmChances(const frmChances &) = delete;
    frmChances &operator=(const frmChances &) = delete;

    std::string lblCases; ///< what is counted, and how the ranks are ordered
    reportList lvwRanks;
    std::vector<Bar> bars; ///< at least this rank, the first rank first
    std::string lblStake;
    std::string lblReturn;
    std::string lblReturnPart;
    std::string lblAboveStake; ///< the chance to win more than the stake
    std::string lblSentence;
    std::string lblGuarantees; ///< what the table below says, or why there is none
    bool hasGuarantees = false;
    reportList lvwGuarantees;

  private:
    using Lines = std::vector<std::vector<std::string>>;

    void fillRanks(const GameChances &chances);
    void fillMoney(const GameChances &chances, const std::string &unit);
    void fillGuarantees(const GameChances &chances);

    Lines ranks_;
    Lines guarantees_;
};

} // namespace boulix
