// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/game.h"

#include <cstddef>

namespace boulix {

/// What one command did to the list of a game, so that it can be taken back and done again. It is
/// made before the command and closed behind it. Where the command changed no more than a stretch
/// of the list, the step keeps no more than that.
class GameStep {
  public:
    /// Notes the list as it is before the command.
    explicit GameStep(const game &before) : kept_(before.list()) {}
    /// The same for a command that does no more than add grids at the end: nothing is noted but
    /// where that is.
    static GameStep adding(const game &before);
    /// The same for a command that empties the game by `empty`.
    GameStep() = default;

    /// Empties the game. No grid needs to be copied for that, and it cannot fail.
    void empty(game &grids);

    /// Looks at the list behind the command; false when it is as it was.
    bool close(const game &after);
    /// Gives the game the list that it had before the command, and at the next call the one that
    /// it had behind it. The game has to be as the last call, or the command, left it. A failure
    /// changes nothing.
    void exchange(game &grids);
    /// The memory that the step keeps from others: its list, and the grids that the command took
    /// out of the game, which may be in no other.
    std::size_t bytes() const;

  private:
    void keepStretch(std::size_t first, std::size_t count);

    std::size_t first_ = 0; // the stretch of the game, by place from 0, that the step is about
    std::size_t count_ = 0;
    bool adds_ = false;
    GridList kept_; // what stood there on the other side of the command
};

} // namespace boulix
