// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/scriptedDesktop.h"

#include "core/platform.h"

#include <gtest/gtest.h>

#include <ostream>

namespace boulix::testing_support {

namespace {

constexpr std::size_t stepsKept = 100'000;

/// Takes the next answer of a queue; where there is none the test fails and goes on with
/// `otherwise`.
template <class Answer>
Answer nextAnswer(std::deque<Answer> &answers, const std::string &question,
                  const Answer &otherwise) {
    if (answers.empty()) {
        ADD_FAILURE() << "no answer was laid down for " << question;
        return otherwise;
    }
    Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

const char *nameOf(Icon icon) {
    switch (icon) {
    case Icon::none:
        return "none";
    case Icon::information:
        return "information";
    case Icon::question:
        return "question";
    case Icon::critical:
        return "critical";
    }
    return "?";
}

} // namespace

std::ostream &operator<<(std::ostream &stream, const ShownBox &box) {
    return stream << '[' << box.title << "] (" << nameOf(box.icon) << ") " << box.text;
}

std::ostream &operator<<(std::ostream &stream, const ShownChoice &choice) {
    stream << choice.box;
    for (const std::string &answer : choice.answers)
        stream << " [" << answer << ']';
    return stream;
}

std::string ScriptedDesktop::unusedAnswers() const {
    std::string unused;
    const auto add = [&unused](std::size_t count, const char *kind) {
        if (count > 0)
            unused += std::to_string(count) + " of " + kind + "; ";
    };
    add(yesNo_.size(), "a yes/no question");
    add(choices_.size(), "a choice");
    add(texts_.size(), "an input box");
    add(openNames_.size(), "an open dialog");
    add(saveNames_.size(), "a save dialog");
    add(numbers_.size(), "a number dialog");
    add(dates_.size(), "a date dialog");
    add(cancelAt_ ? 1 : 0, "a cancel click on the progress window");
    return unused;
}

void ScriptedDesktop::showMessage(const std::string &text, Icon icon, const std::string &title) {
    messages.push_back({text, icon, title});
    if (onMessage)
        onMessage(messages.back());
}

bool ScriptedDesktop::askYesNo(const std::string &text, Icon icon, const std::string &title) {
    questions.push_back({text, icon, title});
    return nextAnswer(yesNo_, "the question \"" + text + "\"", false);
}

bool ScriptedDesktop::askToErase(const std::string &text, Icon icon, const std::string &title) {
    erasing.push_back({text, icon, title});
    return askYesNo(text, icon, title);
}

std::size_t ScriptedDesktop::askChoice(const std::string &text, Icon icon, const std::string &title,
                                       const std::vector<std::string> &answers) {
    choices.push_back({{text, icon, title}, answers});
    return nextAnswer(choices_, "the choice \"" + text + "\"", answers.size() - 1);
}

std::optional<std::string> ScriptedDesktop::askText(const std::string &prompt,
                                                    const std::string &title,
                                                    const std::string &present,
                                                    std::size_t maxLength) {
    presentTexts.push_back(present);
    inputs.push_back({prompt, Icon::none, title});
    inputLengths.push_back(maxLength);
    return nextAnswer<std::optional<std::string>>(texts_, "the input box \"" + prompt + "\"",
                                                  std::nullopt);
}

std::string ScriptedDesktop::openFile(const FileQuestion &question) {
    openQuestions.push_back(question);
    return nextAnswer<std::string>(openNames_, "the open dialog \"" + question.title + "\"", "");
}

std::string ScriptedDesktop::saveFile(const FileQuestion &question) {
    saveQuestions.push_back(question);
    return nextAnswer<std::string>(saveNames_, "the save dialog \"" + question.title + "\"", "");
}

void ScriptedDesktop::runNumberDialog(frmNbrSelector &dialog) {
    NumberShowing showing;
    showing.maxSelected = dialog.grd.maxSelected();
    showing.editable = dialog.grd.editable();
    showing.markedBefore = markedNumbers(dialog.grd);
    nextAnswer(numbers_, "the number dialog", NumberScript().cancel()).run(dialog);
    if (dialog.tag().empty()) {
        ADD_FAILURE() << "the script of the number dialog ends without ok or cancel";
        dialog.clickCancel();
    }
    showing.markedAfter = markedNumbers(dialog.grd);
    showing.lblStatusAfter = dialog.lblStatus();
    numberShowings.push_back(showing);
}

std::optional<DrawDate> ScriptedDesktop::runDateDialog(const std::optional<DrawDate> &changed) {
    ++dateShowings;
    changedDraw = changed;
    return nextAnswer<std::optional<DrawDate>>(dates_, "the date dialog", std::nullopt);
}

void ScriptedDesktop::progressLoaded(frmProgress &progress) {
    EXPECT_EQ(progress_, nullptr) << "a second progress window over the first";
    progress_ = &progress;
    progressRuns.emplace_back();
}

void ScriptedDesktop::progressUnloaded() {
    if (!progress_) {
        ADD_FAILURE() << "no progress window to unload";
        return;
    }
    progressRuns.back().last = *progress_;
    progressRuns.back().unloaded = true;
    progress_ = nullptr;
}

void ScriptedDesktop::runEvents() {
    ++eventTurns;
    if (progress_) {
        ProgressRun &run = progressRuns.back();
        ++run.turns;
        if (run.steps.size() < stepsKept)
            run.steps.push_back(*progress_);
        if (cancelAt_ == run.turns) {
            cancelAt_.reset();
            progress_->clickCancel();
        }
    }
    if (onEvents)
        onEvents();
}

void ScriptedDesktop::showSplash(const SplashTexts &texts) {
    splashes.push_back(texts);
    splashVisible = true;
}

void ScriptedDesktop::showHelp(const std::string &target, std::optional<std::int32_t> context) {
    helpCalls.push_back({target, context});
}

} // namespace boulix::testing_support
