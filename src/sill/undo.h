// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace boulix {

/// A command of the user that can be taken back.
struct UndoStep {
    std::string name; ///< as on the button or in the menu: "Effacer"
    /// Exchanges what is in memory with what the step keeps: the way back and the way forth again
    /// in turn. Where it throws, everything is as it was before.
    std::function<void()> exchange;
    std::size_t bytes = 0; ///< how much memory the step holds
};

/// The commands that can be taken back, and those that were and can be done again. Nothing else
/// may change what the steps exchange. The oldest steps go when all hold more than `mostBytes`;
/// the newest one stays, however much it holds.
class UndoList {
  public:
    static constexpr std::size_t mostBytes = std::size_t{128} << 20;

    /// A command was carried out. What was taken back before can no longer be done again.
    void record(UndoStep step);

    /// Forgets all of them.
    void clear();

    bool canUndo() const { return !done_.empty(); }
    bool canRedo() const { return !undone_.empty(); }
    /// The name of the command that `undo` takes back, and that `redo` does again; empty where
    /// there is none.
    std::string undoName() const { return done_.empty() ? "" : done_.back().name; }
    std::string redoName() const { return undone_.empty() ? "" : undone_.back().name; }

    /// Takes the last command back, does the last one that was taken back again. Nothing where
    /// there is none; a failure of the exchange comes through, and the step stays where it is.
    void undo();
    void redo();

    /// Called after any change of the names.
    std::function<void()> changed;

  private:
    void exchange(std::vector<UndoStep> &from, std::vector<UndoStep> &to);
    void dropOldest();
    void notify() const;

    std::vector<UndoStep> done_;
    std::vector<UndoStep> undone_;
};

} // namespace boulix
