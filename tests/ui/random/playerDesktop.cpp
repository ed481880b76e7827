// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/playerDesktop.h"

#include "sill/frmProgress.h"
#include "ui/support/robot.h"

#include <QApplication>
#include <QPushButton>
#include <QScopedValueRollback>

namespace boulix::testing_support {

namespace {

/// A job is cancelled at the latest after so many turns of the event queue, which bounds the
/// time of a step and the size of a game.
constexpr int mostTurns = 3000;

} // namespace

PlayerDesktop::PlayerDesktop(const MainParts &parts, Dice &dice, FileCabinet &files)
    : QtDesktop(parts), dice_(dice), files_(files) {}

bool PlayerDesktop::busy() const {
    return inEvents_ > 0 && QApplication::activeModalWidget() == modalAtTurn_;
}

void PlayerDesktop::showMessage(const std::string &text, Icon icon, const std::string &title) {
    boxShown(title, text);
    QtDesktop::showMessage(text, icon, title);
}

bool PlayerDesktop::askYesNo(const std::string &text, Icon icon, const std::string &title) {
    boxShown(title, text);
    return QtDesktop::askYesNo(text, icon, title);
}

bool PlayerDesktop::askToErase(const std::string &text, Icon icon, const std::string &title) {
    boxShown(title, text);
    return QtDesktop::askToErase(text, icon, title);
}

std::optional<std::string> PlayerDesktop::askText(const std::string &prompt,
                                                  const std::string &title,
                                                  const std::string &present, std::size_t longest) {
    boxShown(title, prompt);
    return QtDesktop::askText(prompt, title, present, longest);
}

std::string PlayerDesktop::openFile(const FileQuestion &question) {
    return files_.toRead(question.filter);
}

std::string PlayerDesktop::saveFile(const FileQuestion &question) {
    const std::string file = files_.toWrite(question.filter);
    fileNamed(file);
    return file;
}

void PlayerDesktop::progressLoaded(frmProgress &progress) {
    if (++jobs_ > 1)
        broken("a second job began while the first was under way: " + progress.caption);
    turns_ = 0;
    const int longest = dice_.onceIn(3) ? 30 : mostTurns;
    cancelAt_ = dice_.between(1, longest);
    if (!dice_.onceIn(4))
        cancelAt_ = mostTurns;
    knockAt_ = dice_.between(1, 50);
    QtDesktop::progressLoaded(progress);
}

void PlayerDesktop::progressUnloaded() {
    --jobs_;
    QtDesktop::progressUnloaded();
}

void PlayerDesktop::runEvents() {
    const QScopedValueRollback<const QWidget *> modal(modalAtTurn_,
                                                      QApplication::activeModalWidget());
    const QScopedValueRollback<int> depth(inEvents_, inEvents_ + 1);
    if (jobs_ > 0)
        followJob();
    QtDesktop::runEvents();
}

void PlayerDesktop::followJob() {
    ++turns_;
    if (turns_ == knockAt_) {
        if (mainWidget() && mainWidget()->isEnabled())
            broken("the main window is open to commands while a job is under way");
        knockWhileBusy();
    }
    if (turns_ >= cancelAt_ && turns_ % 16 == cancelAt_ % 16)
        cancelJob();
}

/// Clicks "Annuler", even where the job is too short for its window to have come up by itself.
void PlayerDesktop::cancelJob() {
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() != QLatin1String("frmProgress"))
            continue;
        window->show();
        auto &button = control<QPushButton>(*window, "cmdCancel");
        if (!button.isVisible() || !button.isEnabled())
            continue;
        click(button);
        jobCancelled();
    }
}

} // namespace boulix::testing_support
