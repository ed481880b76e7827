// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/failure.h"
#include "games/gameComb.h"
#include "games/gameDef.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// The systems of play that the player can choose from, and two tables of positions and couples.
namespace boulix::modGame {

/// Definitions by position from 1; element 0 is not used.
using GameList = std::vector<gameDef>;

inline constexpr std::int32_t nPredefReduced = 9;
inline constexpr std::int32_t nPredefFixed = 1;

/// The reduced systems and those of fixed positions, the carried ones first, then the user's.
/// The list a carried system stands in says its kind; `nFixed` is 0 in all of them.
inline GameList reducedGames(1);
inline GameList fixedGames(1);
/// How many entries a list has.
inline std::int32_t count(const GameList &list) {
    return static_cast<std::int32_t>(list.size()) - 1;
}
inline std::int32_t nReducedGames() {
    return count(reducedGames);
}
inline std::int32_t nFixedGames() {
    return count(fixedGames);
}

/// Choices of positions of a grid: for `f` leading positions that are fixed (0 to 5) and a size
/// `s` (1 to 6), the `r`-th choice of `s` of the positions behind, `r` from 1 to
/// `subsetCount[f][s]`, in lexicographic order. Its first `s` numbers are the positions.
inline constexpr int maxFixed = 5;
inline constexpr int maxSubsets = 20;
inline std::array<std::array<std::int16_t, 7>, maxFixed + 1> subsetCount{};
inline std::array<std::array<std::array<gameComb, maxSubsets + 1>, 7>, maxFixed + 1> subsetList{};

/// All pairs of different numbers, the smaller one in row 0, the larger one in row 1, by index
/// from 1, in lexicographic order.
inline constexpr std::int32_t coupleCount = 1176;
inline std::array<std::array<std::int16_t, coupleCount + 1>, 2> coupleTable{};

/// Start-up: fills both lists with the systems that the program carries, and the tables.
void init();
/// What an entry of a fixed-position game does to the start: the program writes such entries and
/// cannot read them back.
class FixedGameFailure : public RuntimeFailure {
  public:
    FixedGameFailure(const std::string &key, const std::string &fileName);

    /// Offers the user to take the entry out of the settings, which is what lets the program start
    /// again. True when it is out.
    bool offerRemoval() const;

  private:
    std::string key_;
    std::string fileName_;
};

/// Start-up: adds the reduced systems that the settings file names, up to the first number
/// missing there, and reads them. One that cannot be read stays in the list without rows, after a
/// message. An entry of a fixed-position game fails with `FixedGameFailure`, before any file is
/// read.
void loadUserGames();

/// Asks for a name and adds a definition that shares the rows of `source`. Always true.
bool addUserGame(const gameDef &source, GameList &list);
/// Saves the system that `addUserGame` has just put at the end of `list` under the number that
/// the lists gave before it was added. When that fails, the entry leaves the list and its key the
/// settings again: the next system gets the same number, and the chain of keys no hole.
void saveNewGame(GameList &list, std::int16_t nReduced, std::int16_t nFixedGame);
/// Takes the user system at `position` out: keys and files from there to the end of the list go,
/// the entries behind move down by one and are saved anew, all under the number of the next new
/// system. The list keeps its length until the next start, and the key of the entry itself stays.
void removeUserGame(std::int32_t position, GameList &list);

} // namespace boulix::modGame
