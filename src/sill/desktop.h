// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/dates.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace boulix {

class frmNbrSelector;
class frmProgress;

enum class Icon { none, information, question, critical };

/// What a file dialog is asked with. `filter` has the form "description|pattern".
struct FileQuestion {
    std::string filter;
    std::string title;
    std::string folder;    ///< where the dialog opens
    std::string name = {}; ///< the name that a save dialog proposes
};

/// The answer of the date dialog.
struct DrawDate {
    Date day;
    std::int16_t id; ///< draw of the day, 1 or 2
};

/// The texts of the splash window, by label.
struct SplashTexts {
    std::string lblVersion;
    std::string lblProductName;
    std::string lblCompany;
    std::string lblCopyright;
    std::string lblPlatform;
    std::string lblWarning;
};

/// The dialogs and windows that the logic may ask for. The screens give one, the tests a
/// scripted one. All texts are UTF-8; lines are parted by CR LF.
class Desktop {
  public:
    virtual ~Desktop() = default;

    /// A box with one OK button.
    virtual void showMessage(const std::string &text, Icon icon, const std::string &title) = 0;
    /// A box with yes and no; true for yes.
    virtual bool askYesNo(const std::string &text, Icon icon, const std::string &title) = 0;
    /// The same before something is erased: Enter chooses no.
    virtual bool askToErase(const std::string &text, Icon icon, const std::string &title) = 0;
    /// A box with a button for each of `answers`; the index of the one chosen. The last one is
    /// what Enter, Escape and the close box of the window choose.
    virtual std::size_t askChoice(const std::string &text, Icon icon, const std::string &title,
                                  const std::vector<std::string> &answers) = 0;
    /// A box with one line to fill in, which holds `present` at first, selected, and takes no more
    /// than `maxLength` characters; nothing when it was cancelled.
    virtual std::optional<std::string> askText(const std::string &prompt, const std::string &title,
                                               const std::string &present,
                                               std::size_t maxLength) = 0;

    /// Says in the status bar of the main window, behind its panels, what was done. It stands there
    /// until the next one.
    virtual void announce(const std::string &text) = 0;
    /// Gives the focus to the box with that object name in the window in front, its text selected.
    /// Nothing where there is none.
    virtual void focusField(const std::string &name) = 0;

    /// The full name of an existing file, empty when none was chosen.
    virtual std::string openFile(const FileQuestion &question) = 0;
    /// The full name of a file in an existing folder, empty when none was chosen. The dialog
    /// itself asks nothing about a file that is already there.
    virtual std::string saveFile(const FileQuestion &question) = 0;

    /// Shows the number dialog modally until its tag says that it was confirmed or cancelled.
    virtual void runNumberDialog(frmNbrSelector &dialog) = 0;
    /// Shows the date dialog modally, opened on today and draw 1. `changed` is the draw that is
    /// being changed, where there is one: the dialog names it and offers its date. Nothing when
    /// the dialog was left without an answer.
    virtual std::optional<DrawDate> runDateDialog(const std::optional<DrawDate> &changed) = 0;

    /// The progress window appears and the main window is disabled, until it is unloaded.
    virtual void progressLoaded(frmProgress &progress) = 0;
    virtual void progressUnloaded() = 0;
    /// Lets the event queue run. Cheap enough to be called at each step of a long loop: windows
    /// are repainted and clicks are taken about 60 times a second.
    virtual void runEvents() = 0;

    virtual void showSplash(const SplashTexts &texts) = 0;
    virtual void unloadSplash() = 0;
    /// Shows the main window, whose state the logic has loaded before, without blocking.
    virtual void showMainWindow() = 0;
    /// Closes every window but the main one.
    virtual void unloadOtherWindows() = 0;
    /// Opens the help file. `target` is the file, or "file>window"; `context` selects a page.
    virtual void showHelp(const std::string &target, std::optional<std::int32_t> context) = 0;
};

/// The desktop in use; `setDesktop` comes first, and keeps a reference only.
Desktop &desktop();
void setDesktop(Desktop *desktop);

} // namespace boulix
