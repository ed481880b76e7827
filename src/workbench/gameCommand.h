// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameStep.h"
#include "sill/undo.h"

#include <functional>
#include <memory>
#include <string>

namespace boulix {

/// A command that changes the list of a game and that can be taken back.
class GameCommand {
  public:
    using Command = std::function<void(GameStep &)>;

    /// `name` is what the button says, `step` notes what the list is before the command.
    /// `exchanged` is called behind each undo and redo; it must not fail.
    GameCommand(game &grids, const std::string &name, GameStep step,
                const std::function<void()> &exchanged);

    /// Runs the command. Where it has changed the list, `changed` is called and it can be taken
    /// back from then on, also where it has failed on the way. Without memory for that all earlier
    /// ones are forgotten, too: what they keep would no longer fit.
    void run(const Command &command, const std::function<void()> &changed = {});

  private:
    void record(const std::function<void()> &changed);

    game &grids_;
    std::shared_ptr<GameStep> step_;
    UndoStep undo_;
};

} // namespace boulix
