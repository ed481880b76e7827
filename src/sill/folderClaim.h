// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

/// The claim of one running program on its folder, where all of its data lie: two of them there
/// would each write over the other's files.
class FolderClaim {
  public:
    /// Who works in the folder after a try to claim it.
    enum class Holder {
        thisProgram,
        nobody, ///< the folder takes no claim: nothing can be written there either
        sameMachine,
        otherMachine,
    };

    virtual ~FolderClaim() = default;

    /// Tries to claim the folder. A claim that a program left behind when it was killed on this
    /// machine does not count.
    virtual Holder take() = 0;
    /// The name of the other machine.
    virtual std::string machine() const = 0;
    /// Asks the program that holds the folder to bring its window to the front; whether it has.
    virtual bool callHolder() = 0;
    /// Claims the folder whatever stands against it, as far as the system allows.
    virtual void takeOver() = 0;
};

/// Whether the program may start in its folder. Where another one works there, that one's window
/// comes to the front and this start is over. Where it does not come, or is on another machine,
/// the user decides.
bool claimFolder(FolderClaim &claim);

} // namespace boulix
