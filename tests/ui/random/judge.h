// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <utility>

class QWidget;

namespace boulix::testing_support {

/// How the failure begins with which a system of fixed positions stops the next start.
inline constexpr const char *fixedSystem = "Jeu à positions fixes sans définition";

/// What makes a box a matter of course.
struct Circumstances {
    bool fileWasBad = false;    ///< the last file chosen was one that cannot be used
    bool printerBreaks = false; ///< in the middle of a document
    bool oddDraws = false;      ///< the base is empty, or holds numbers that no draw can have
    bool rulesMissing = false;  ///< some of the eight elimination rules are gone
    bool unfinished = false;    ///< a cancelled import left draws that no control counts
    bool graphShown = false;    ///< the graph window is open
    std::string place;          ///< the dialog on top, or else the visible page, by its name
};

/// Whether the base in memory is empty or holds numbers that no draw can have.
bool drawsAreOdd();

/// Whether the program may show a box with this title and text now.
bool mayAppear(const std::string &title, const std::string &text, const Circumstances &now);

/// Whether the program's windows and its data agree with each other; what does not, in words, or
/// nothing. To be asked while no command is under way. `unfinished` says that a command was cut
/// short since they last agreed: draws may then stand in the base that no list shows.
std::string disagreement(const QWidget &mainWindow, bool unfinished);

/// Watches the base and the game on their way to the disk.
class DiskWatch {
  public:
    /// `base` is the file of the draw base.
    explicit DiskWatch(std::string base) : base_(std::move(base)) {}

    /// A box told of a failure: what it cut short need not be on the disk.
    void commandFailed() { failed_ = true; }
    /// What lies on the disk now is taken as it is.
    void begin();
    /// The player has named this file for a save.
    void fileNamed(const std::string &file);
    /// What was saved since the last look and is not what memory holds, in words, or nothing.
    std::string disagreement();

  private:
    static std::string stampOf(const std::string &file);

    std::string base_;
    std::string baseStamp_;
    std::string game_; ///< the file last named for a game
    std::string gameStamp_;
    bool failed_ = false;
};

} // namespace boulix::testing_support
