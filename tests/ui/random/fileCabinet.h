// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/random/dice.h"

#include <filesystem>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// The files of the player: a folder of good, broken and forbidden ones, from which every file
/// dialog is answered. No name that it hands out lies outside that folder.
class FileCabinet {
  public:
    /// Fills `folder`/fichiers with the samples of the fuzz targets and things of its own.
    FileCabinet(const std::filesystem::path &folder, Dice &dice);

    /// The answer to a question for a file to read, empty for a cancel. `filter` is that of the
    /// dialog.
    std::string toRead(const std::string &filter);
    /// The answer to a question for a file to write.
    std::string toWrite(const std::string &filter);

    /// Whether a system failure over a file is to be expected now: the last answer was a file
    /// that cannot be used, or one with bad contents.
    bool lastAnswerWasBad() const { return lastWasBad_; }
    const std::filesystem::path &folder() const { return folder_; }

  private:
    void takeSamples();
    std::filesystem::path named(const std::string &extension, bool anyKind);
    std::filesystem::path damaged(const std::filesystem::path &original);
    std::filesystem::path unusable(const std::string &extension);
    std::string handOut(const std::filesystem::path &file) const;
    void tidy();

    std::filesystem::path folder_;
    Dice &dice_;
    bool lastWasBad_ = false;
};

} // namespace boulix::testing_support
