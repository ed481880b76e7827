// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/gameCommand.h"

#include "core/globals.h"

#include <new>
#include <utility>

namespace boulix {

GameCommand::GameCommand(game &grids, const std::string &name, GameStep step,
                         const std::function<void()> &exchanged)
    : grids_(grids),
      step_(std::make_shared<GameStep>(std::move(step))), undo_{name,
                                                                [step = step_, &grids, exchanged] {
                                                                    step->exchange(grids);
                                                                    exchanged();
                                                                }} {}

void GameCommand::run(const Command &command, const std::function<void()> &changed) {
    try {
        command(*step_);
    } catch (...) {
        record(changed);
        throw;
    }
    record(changed);
}

void GameCommand::record(const std::function<void()> &changed) {
    if (!step_->close(grids_))
        return;
    if (changed)
        changed();
    undo_.bytes = step_->bytes();
    try {
        gUndo->record(std::move(undo_));
    } catch (const std::bad_alloc &) {
        gUndo->clear();
    }
}

} // namespace boulix
