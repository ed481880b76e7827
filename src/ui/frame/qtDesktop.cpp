// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/qtDesktop.h"

#include "core/globals.h"
#include "sill/frmNbrSelector.h"
#include "sill/frmProgress.h"
#include "sill/help.h"
#include "ui/frame/fileDialogs.h"
#include "ui/frame/frmSelDate.h"
#include "ui/frame/frmSplash.h"
#include "ui/frame/helpWindow.h"
#include "ui/frame/messageBox.h"
#include "ui/frame/numberDialog.h"
#include "ui/frame/platformHelp.h"
#include "ui/frame/progressWindow.h"
#include "ui/widgets/handsOff.h"
#include "ui/widgets/qtText.h"

#include <QApplication>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QTabWidget>

namespace boulix {

namespace {

using namespace std::chrono_literals;

/// Brings the tab pages that a control stands on to the front.
void showPageOf(QWidget &control) {
    for (QWidget *page = &control; QWidget *parent = page->parentWidget(); page = parent)
        if (parent->parentWidget())
            if (auto *tabs = qobject_cast<QTabWidget *>(parent->parentWidget()))
                tabs->setCurrentWidget(page);
}

constexpr auto eventsEvery = 16ms;
/// A job that is done sooner shows no progress window: it would only flicker.
constexpr auto progressAfter = 200ms;

} // namespace

QtDesktop::QtDesktop(const MainParts &parts) : parts_(parts) {}

QtDesktop::~QtDesktop() {
    delete help_;
}

void QtDesktop::showMessage(const std::string &text, Icon icon, const std::string &title) {
    runMessageBox(parentForDialog(), text, icon, title);
}

bool QtDesktop::askYesNo(const std::string &text, Icon icon, const std::string &title) {
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    return runMessageBox(parentForDialog(), text, icon, title, buttons) == QMessageBox::Yes;
}

bool QtDesktop::askToErase(const std::string &text, Icon icon, const std::string &title) {
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    return runMessageBox(parentForDialog(), text, icon, title, buttons, QMessageBox::No) ==
           QMessageBox::Yes;
}

std::size_t QtDesktop::askChoice(const std::string &text, Icon icon, const std::string &title,
                                 const std::vector<std::string> &answers) {
    return runChoiceBox(parentForDialog(), text, icon, title, answers);
}

std::optional<std::string> QtDesktop::askText(const std::string &prompt, const std::string &title,
                                              const std::string &present, std::size_t maxLength) {
    QInputDialog dialog(parentForDialog());
    dialog.setObjectName(QStringLiteral("inputBox"));
    dialog.setWindowTitle(toQt(title));
    dialog.setLabelText(linesToQt(prompt));
    dialog.setTextValue(toQt(present)); // the line exists from here on
    auto *line = dialog.findChild<QLineEdit *>();
    line->setMaxLength(static_cast<int>(maxLength));
    line->selectAll();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return fromQt(dialog.textValue());
}

void QtDesktop::announce(const std::string &text) {
    if (main_)
        main_->announce(toQt(text));
}

void QtDesktop::focusField(const std::string &name) {
    QWidget *front = parentForDialog();
    auto *box = front ? front->findChild<QWidget *>(toQt(name)) : nullptr;
    if (!box)
        return;
    showPageOf(*box);
    box->setFocus(Qt::OtherFocusReason);
    if (auto *line = qobject_cast<QLineEdit *>(box))
        line->selectAll();
}

std::string QtDesktop::openFile(const FileQuestion &question) {
    return fileDialogs::open(parentForDialog(), question);
}

std::string QtDesktop::saveFile(const FileQuestion &question) {
    return fileDialogs::save(parentForDialog(), question);
}

void QtDesktop::runNumberDialog(frmNbrSelector &dialog) {
    NumberDialog(dialog, parentForDialog()).exec();
}

std::optional<DrawDate> QtDesktop::runDateDialog(const std::optional<DrawDate> &changed) {
    frmSelDate dialog(changed, parentForDialog());
    dialog.exec();
    return dialog.answer();
}

void QtDesktop::progressLoaded(frmProgress &progress) {
    if (main_ && !handsOff_)
        handsOff_ = std::make_unique<HandsOff>(*main_);
    progress_ = std::make_unique<ProgressWindow>(progress, main_.get());
    progressDue_ = Clock::now() + progressAfter;
}

void QtDesktop::progressUnloaded() {
    progress_.reset();
    handsOff_.reset();
}

void QtDesktop::runEvents() {
    const Clock::time_point now = Clock::now();
    if (now < nextEvents_)
        return;
    followProgress(now);
    QApplication::processEvents();
    nextEvents_ = Clock::now() + eventsEvery;
}

void QtDesktop::followProgress(Clock::time_point now) {
    if (!progress_)
        return;
    progress_->refresh();
    if (now >= progressDue_ && !progress_->isVisible())
        progress_->show();
}

void QtDesktop::showSplash(const SplashTexts &texts) {
    splash_ = std::make_unique<frmSplash>(texts);
    splash_->show();
    QApplication::processEvents();
}

void QtDesktop::unloadSplash() {
    splash_.reset();
}

void QtDesktop::showMainWindow() {
    main_ = std::make_unique<MainWindow>(*boulix::mainWindow, parts_);
    main_->show();
}

void QtDesktop::unloadOtherWindows() {
    progress_.reset();
    splash_.reset();
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window != main_.get())
            window->close();
}

void QtDesktop::showHelp(const std::string &target, std::optional<std::int32_t> context) {
    if (showPlatformHelp(target, context))
        return;
    QString page = HelpWindow::pageFor(target, context);
    if (context && help::pageName(*context) != std::to_string(*context) &&
        !QFileInfo(page).isFile())
        page = HelpWindow::pageFor(target, {}); // a folder of older pages
    if (!QFileInfo(page).isFile()) {
        const std::string text = "La page d'aide " + fromQt(page) + " est introuvable.";
        showMessage(text, Icon::information, "Aide");
        return;
    }
    // A window that is no child of a dialog could not be used while that one is up.
    QWidget *modal = QApplication::activeModalWidget();
    if (help_ && help_->parentWidget() != modal)
        delete help_;
    if (!help_) {
        help_ = new HelpWindow(modal);
        help_->setAttribute(Qt::WA_DeleteOnClose);
    }
    help_->showPage(page);
}

bool QtDesktop::startEnded() {
    if (splash_)
        splash_->offerToClose();
    return splash_ || main_;
}

/// Once the events under way are done: a call may come while a dialog is up, and a drop waits for
/// its answer.
void QtDesktop::openFiles(const QStringList &fullNames) {
    auto *window = dynamic_cast<MainWindow *>(main_.get());
    if (window)
        window->openFiles(fullNames);
}

void QtDesktop::comeToFront() {
    QWidget *front = parentForDialog();
    if (!front)
        return;
    for (QWidget *window : {mainWidget(), front}) {
        if (!window)
            continue;
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
    }
    front->activateWindow();
    QApplication::alert(front); // where a window may not take the focus by itself
}

QWidget *QtDesktop::mainWidget() const {
    return main_.get();
}

QWidget *QtDesktop::parentForDialog() const {
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    if (progress_ && progress_->isVisible())
        return progress_.get();
    // A window beside the main one, such as that of the graph, has its dialogs over itself.
    QWidget *active = QApplication::activeWindow();
    if (main_ && active && active->parentWidget() == main_.get() &&
        active->windowType() == Qt::Window)
        return active;
    if (main_)
        return main_.get();
    return splash_.get();
}

} // namespace boulix
