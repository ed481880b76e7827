// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace boulix {

/// Which file the user's game belongs to, and whether that file holds the game as it is now. Every
/// change makes a new state of the game; a change that is taken back gives it its old state again,
/// and with it the answer whether that is saved.
class gameDocument {
  public:
    /// What one command did to the document, so that it can be taken back.
    struct Step {
        std::string file; ///< on the other side of the command
        std::int64_t number = 0;
        bool renamed = false; ///< the command gave the game another file
    };

    /// The full name of the file, empty for a game that has none yet.
    const std::string &file() const { return file_; }
    /// The file without its folder.
    std::string name() const;
    /// Whether the file holds what the game holds; no file holds nothing.
    bool isSaved() const;

    /// The grids have changed. An emptied game is a new one: it belongs to no file.
    void changed();
    void emptied();
    /// The game was written to `file`, or is what was read from it.
    void saved(const std::string &file);
    void loaded(const std::string &file);

    /// Notes what is before a command that may change the grids; `close` comes behind one that did,
    /// `exchange` with each undo and redo of it. A game that the command gave no other file keeps
    /// the one that it has then, which may have been chosen since.
    Step step() const { return {file_, number_}; }
    void close(Step &step);
    void exchange(Step &step);

  private:
    std::string file_;
    std::int64_t number_ = 0;                  // of the state that the game is in
    std::int64_t last_ = 0;                    // of the newest state
    std::map<std::string, std::int64_t> held_; // of the state that each file holds
};

/// "mardi.lst", with a mark while the game is not saved there: what stands under a game of `grids`
/// grids. Nothing under a game that has neither grids nor a file.
std::string documentText(const gameDocument &document, std::int32_t grids);

} // namespace boulix
