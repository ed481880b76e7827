// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/frame/qtDesktop.h"
#include "ui/random/dice.h"
#include "ui/random/fileCabinet.h"

#include <QPointer>

#include <cstdint>
#include <functional>
#include <string>

namespace boulix::testing_support {

/// The program's own desktop, except that files come from the cabinet, that every box is told to
/// the judge, and that long jobs are cancelled: no step of the player lasts.
class PlayerDesktop : public QtDesktop {
  public:
    PlayerDesktop(const MainParts &parts, Dice &dice, FileCabinet &files);

    /// Told of each box before it appears: its title and text.
    std::function<void(const std::string &title, const std::string &text)> boxShown;
    /// Told of what must never be.
    std::function<void(const std::string &what)> broken;
    /// Told of the answer to each question for a file to write.
    std::function<void(const std::string &file)> fileNamed;
    /// Told when a job is cancelled.
    std::function<void()> jobCancelled;
    /// Called now and then while a job is under way and the main window is disabled.
    std::function<void()> knockWhileBusy;

    /// Whether a job lets the queue run right now and waits for no answer.
    bool busy() const;

    void showMessage(const std::string &text, Icon icon, const std::string &title) override;
    bool askYesNo(const std::string &text, Icon icon, const std::string &title) override;
    bool askToErase(const std::string &text, Icon icon, const std::string &title) override;
    std::optional<std::string> askText(const std::string &prompt, const std::string &title,
                                       const std::string &present, std::size_t longest) override;
    std::string openFile(const FileQuestion &question) override;
    std::string saveFile(const FileQuestion &question) override;
    void progressLoaded(frmProgress &progress) override;
    void progressUnloaded() override;
    void runEvents() override;

  private:
    void followJob();
    void cancelJob();

    Dice &dice_;
    FileCabinet &files_;
    int jobs_ = 0;
    std::int64_t turns_ = 0; ///< of the event queue, since the job began
    std::int64_t cancelAt_ = 0;
    std::int64_t knockAt_ = 0;
    int inEvents_ = 0;
    const QWidget *modalAtTurn_ = nullptr;
};

} // namespace boulix::testing_support
