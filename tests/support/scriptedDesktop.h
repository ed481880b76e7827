// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "support/numberScript.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// A message box, a yes/no question or an input box as it was shown; the last has no icon.
struct ShownBox {
    std::string text;
    Icon icon = Icon::none;
    std::string title;
    bool operator==(const ShownBox &) const = default;
};
std::ostream &operator<<(std::ostream &stream, const ShownBox &box);

/// A box with a button for each answer.
struct ShownChoice {
    ShownBox box;
    std::vector<std::string> answers;
    bool operator==(const ShownChoice &) const = default;
};
std::ostream &operator<<(std::ostream &stream, const ShownChoice &choice);

/// The progress window over one job.
struct ProgressRun {
    std::vector<frmProgress> steps; ///< the window at each turn of the event queue, 100 000 at most
    std::int64_t turns = 0;         ///< how often the queue ran meanwhile
    frmProgress last;               ///< the window as it was unloaded
    bool unloaded = false;
};

struct ShownHelp {
    std::string target;
    std::optional<std::int32_t> context;
};

/// A desktop without a screen. It writes down what it is asked to show and gives the answers
/// that a test laid down beforehand. A question without an answer fails the test and is answered
/// as if its window had been closed, so that nothing ever waits.
class ScriptedDesktop : public Desktop {
  public:
    // What was shown, oldest first.
    std::vector<ShownBox> messages;
    std::vector<ShownBox> questions;
    std::vector<ShownChoice> choices;
    std::vector<ShownBox> erasing; ///< those of the questions that Enter answers with no
    std::vector<ShownBox> inputs;
    std::vector<std::string> presentTexts; ///< what stood in each input box at first
    std::vector<std::size_t> inputLengths; ///< how many characters each input box would take
    std::vector<FileQuestion> openQuestions;
    std::vector<FileQuestion> saveQuestions;
    std::vector<NumberShowing> numberShowings;
    std::vector<std::string> announcements; ///< what the status bar said
    std::vector<std::string> focusedFields; ///< the boxes that a failure gave the focus to
    int dateShowings = 0;
    std::optional<DrawDate> changedDraw; ///< what the last date dialog was asked with
    std::vector<ProgressRun> progressRuns;
    std::vector<SplashTexts> splashes;
    bool splashVisible = false;
    bool mainWindowShown = false;
    int otherWindowsUnloaded = 0; ///< how often all windows but the main one were closed
    std::vector<ShownHelp> helpCalls;
    std::int64_t eventTurns = 0; ///< how often the event queue ran in all

    // The answers to come, each kind in its own queue.
    void answerYes() { yesNo_.push_back(true); }
    void answerNo() { yesNo_.push_back(false); }
    void choose(std::size_t answer) { choices_.push_back(answer); }
    void answerText(const std::string &text) { texts_.emplace_back(text); }
    void cancelText() { texts_.emplace_back(std::nullopt); }
    void answerOpen(const std::string &fullName) { openNames_.push_back(fullName); }
    void cancelOpen() { openNames_.emplace_back(); }
    void answerSave(const std::string &fullName) { saveNames_.push_back(fullName); }
    void cancelSave() { saveNames_.emplace_back(); }
    void answerNumbers(const NumberScript &script) { numbers_.push_back(script); }
    void answerDate(DrawDate date) { dates_.emplace_back(date); }
    void leaveDate() { dates_.emplace_back(std::nullopt); }
    /// The answers that nobody asked for, in words; empty when all were used.
    std::string unusedAnswers() const;

    /// Called at each turn of the event queue, after the progress window was written down.
    std::function<void()> onEvents;
    /// Called when a message box is up.
    std::function<void(const ShownBox &)> onMessage;
    /// Clicks the cancel button at the `turn`-th turn of the event queue, counted from 1, of the
    /// next progress window.
    void cancelProgressAt(std::int64_t turn) { cancelAt_ = turn; }

    /// The progress window while it is up, otherwise nothing.
    frmProgress *progress() { return progress_; }
    /// Whether the main window takes clicks.
    bool mainWindowEnabled() const { return progress_ == nullptr; }

    void showMessage(const std::string &text, Icon icon, const std::string &title) override;
    bool askYesNo(const std::string &text, Icon icon, const std::string &title) override;
    bool askToErase(const std::string &text, Icon icon, const std::string &title) override;
    std::size_t askChoice(const std::string &text, Icon icon, const std::string &title,
                          const std::vector<std::string> &answers) override;
    std::optional<std::string> askText(const std::string &prompt, const std::string &title,
                                       const std::string &present, std::size_t maxLength) override;
    void announce(const std::string &text) override { announcements.push_back(text); }
    void focusField(const std::string &name) override { focusedFields.push_back(name); }
    std::string openFile(const FileQuestion &question) override;
    std::string saveFile(const FileQuestion &question) override;
    void runNumberDialog(frmNbrSelector &dialog) override;
    std::optional<DrawDate> runDateDialog(const std::optional<DrawDate> &changed) override;
    void progressLoaded(frmProgress &progress) override;
    void progressUnloaded() override;
    void runEvents() override;
    void showSplash(const SplashTexts &texts) override;
    void unloadSplash() override { splashVisible = false; }
    void showMainWindow() override { mainWindowShown = true; }
    void unloadOtherWindows() override { ++otherWindowsUnloaded; }
    void showHelp(const std::string &target, std::optional<std::int32_t> context) override;

  private:
    std::deque<bool> yesNo_;
    std::deque<std::size_t> choices_;
    std::deque<std::optional<std::string>> texts_;
    std::deque<std::string> openNames_;
    std::deque<std::string> saveNames_;
    std::deque<NumberScript> numbers_;
    std::deque<std::optional<DrawDate>> dates_;
    frmProgress *progress_ = nullptr;
    std::optional<std::int64_t> cancelAt_;
};

} // namespace boulix::testing_support
