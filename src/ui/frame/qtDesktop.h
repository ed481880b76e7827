// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/desktop.h"
#include "ui/frame/mainWindow.h"

#include <QPointer>

#include <chrono>
#include <memory>

class QWidget;

namespace boulix {

class frmSplash;
class HandsOff;
class HelpWindow;
class ProgressWindow;

/// The dialogs and windows of the logic, in Qt.
class QtDesktop : public Desktop {
  public:
    /// `parts` are what the main window will be made of.
    explicit QtDesktop(const MainParts &parts);
    ~QtDesktop() override;

    void showMessage(const std::string &text, Icon icon, const std::string &title) override;
    bool askYesNo(const std::string &text, Icon icon, const std::string &title) override;
    bool askToErase(const std::string &text, Icon icon, const std::string &title) override;
    std::size_t askChoice(const std::string &text, Icon icon, const std::string &title,
                          const std::vector<std::string> &answers) override;
    std::optional<std::string> askText(const std::string &prompt, const std::string &title,
                                       const std::string &present, std::size_t maxLength) override;

    void announce(const std::string &text) override;
    void focusField(const std::string &name) override;

    std::string openFile(const FileQuestion &question) override;
    std::string saveFile(const FileQuestion &question) override;

    void runNumberDialog(frmNbrSelector &dialog) override;
    std::optional<DrawDate> runDateDialog(const std::optional<DrawDate> &changed) override;

    void progressLoaded(frmProgress &progress) override;
    void progressUnloaded() override;
    void runEvents() override;

    void showSplash(const SplashTexts &texts) override;
    void unloadSplash() override;
    void showMainWindow() override;
    void unloadOtherWindows() override;
    void showHelp(const std::string &target, std::optional<std::int32_t> context) override;

    /// `Main` has returned: a splash window that is still there can be closed by the user. False
    /// when there is no window at all.
    bool startEnded();
    /// Brings the main window, and the dialog over it where there is one, to the front.
    void comeToFront();
    /// Opens the files in the main window, if there is one.
    void openFiles(const QStringList &fullNames);
    /// The main window while there is one.
    QWidget *mainWidget() const;

  private:
    using Clock = std::chrono::steady_clock;

    QWidget *parentForDialog() const;
    void followProgress(Clock::time_point now);

    MainParts parts_;
    std::unique_ptr<MainWindow> main_;
    std::unique_ptr<ProgressWindow> progress_;
    std::unique_ptr<frmSplash> splash_;
    QPointer<HelpWindow> help_;
    std::unique_ptr<HandsOff> handsOff_; ///< while a job is under way
    Clock::time_point nextEvents_;
    Clock::time_point progressDue_;
};

} // namespace boulix
