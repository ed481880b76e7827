// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/randomPlayer.h"

#include "core/globals.h"
#include "eliminators/eliminators.h"
#include "sill/appInfo.h"
#include "sill/modMain.h"
#include "sill/reports.h"
#include "support/files.h"
#include "support/locations.h"
#include "ui/random/diary.h"
#include "ui/support/robot.h"
#include "ui/workbench/mainParts.h"
#include "winnings/rapport.h"
#include "workbench/frmMain.h"

#include <QApplication>
#include <QFileDialog>
#include <QPixmap>
#include <QTimer>

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <utility>

namespace boulix::testing_support {

namespace fs = std::filesystem;

namespace {

/// The files that a start reads or writes.
const std::vector<std::string> troubleSpots = {"tirages.dbl", "boulix.ini", "defrapp.rap",
                                               "boulix.log"};

/// What Qt has complained of since somebody looked: a sign that it is used wrongly.
std::string complaint;

void collect(QtMsgType type, const QMessageLogContext &, const QString &message) {
    // What the screenless platform can not do is no fault of the program.
    if (type != QtDebugMsg && type != QtInfoMsg &&
        !message.startsWith(QLatin1String("This plugin does not support")))
        complaint = message.toStdString();
}

} // namespace

RandomPlayer::RandomPlayer(std::uint32_t seed)
    : seed_(seed), dice_(seed), files_(platform_.applicationFolder(), dice_), hand_(dice_),
      disk_(platform_.applicationFolder() + "/tirages.dbl") {
    qInstallMessageHandler(collect);
    setPlatform(&platform_);
    setPrinterSystem(&printers_);
    setPrintWindows(&printWindows_);
    const fs::path folder = platform_.applicationFolder();
    fs::copy(checkoutFolder() / "help", folder / "help", fs::copy_options::recursive);
    resetGlobals();
    gAppInfo->init("", "", "", 2003);
    gRapport->save((folder / rapport::defaultName).string());
    prizes_ = readBytes((folder / rapport::defaultName).string());
    diary::open(seed);
}

RandomPlayer::~RandomPlayer() {
    endProgram();
    setDesktop(nullptr);
    setPrintWindows(nullptr);
    setPrinterSystem(nullptr);
    setPlatform(nullptr);
    qInstallMessageHandler(nullptr);
}

void RandomPlayer::play(int steps) {
    steps_ = steps;
    watch();
    while (step_ < steps_ && !failed_) {
        if (!desktop_ || !desktop_->mainWidget() || !desktop_->mainWidget()->isVisible())
            startProgram();
        QApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    diary::close();
    std::cout << "slowest step: " << diary::slowestStep() << "\nsteps in dialogs:";
    for (const auto &[name, count] : visited_)
        std::cout << " " << name << " " << count;
    std::cout << std::endl;
}

void RandomPlayer::startProgram() {
    endProgram();
    changeTheWorld();
    desktop_ = std::make_unique<PlayerDesktop>(mainParts(), dice_, files_);
    desktop_->boxShown = [this](const std::string &title, const std::string &text) {
        boxShown(title, text);
    };
    desktop_->fileNamed = [this](const std::string &file) { disk_.fileNamed(file); };
    desktop_->jobCancelled = [this] { commandCutShort(); };
    desktop_->broken = [this](const std::string &what) { report(what); };
    desktop_->knockWhileBusy = [this] {
        if (desktop_->mainWidget())
            hand_.knock(*desktop_->mainWidget());
    };
    setDesktop(desktop_.get());
    runCommand(modMain::Main);
    removeFolders();
    disk_.begin();
    if (desktop_->mainWidget())
        return;
    if (!troubled_ && !stopped_)
        report("the program did not start");
    stopped_ = false;
    removeTrouble();
}

/// A folder in the place of a file would stand in the way of every save.
void RandomPlayer::removeFolders() {
    for (const std::string &name : troubleSpots)
        if (const fs::path file = fs::path(platform_.applicationFolder()) / name;
            fs::is_directory(file))
            fs::remove(file);
}

void RandomPlayer::endProgram() {
    desktop_.reset(); // the windows go before what they show
    resetGlobals();
    modMain::gDebug = false;
    modMain::gLogFile = std::ofstream();
    printers_.documents.clear();
}

/// What may be different from one start to the next.
void RandomPlayer::changeTheWorld() {
    platform_.day += dice_.below(4);
    platform_.clockSeed = static_cast<unsigned>(dice_.below(1000));
    platform_.arguments = dice_.onceIn(3) ? "-debug" : "";
    static const std::vector<std::vector<std::string>> printers = {
        {"Bureau"}, {}, {"Bureau", "Étage à l'imprimante"}, {"Autre"}};
    printers_.names = dice_.oneOf(printers);
    printers_.standard = printers_.names.empty() ? "" : printers_.names.front();
    printers_.breakAtPage = dice_.onceIn(3) ? dice_.between(1, 3) : 0;
    if (troubled_)
        removeTrouble();
    if (dice_.onceIn(4))
        plantTrouble();
}

/// Spoils a file that the start reads.
void RandomPlayer::plantTrouble() {
    troubled_ = true;
    const fs::path folder = platform_.applicationFolder();
    const fs::path file = folder / dice_.oneOf(troubleSpots);
    std::error_code ignored;
    fs::remove_all(file, ignored);
    switch (dice_.below(4)) {
    case 0:
        break; // it is missing
    case 1:
        fs::create_directory(file);
        break;
    default: {
        const std::string other = files_.toRead("*.txt");
        if (!other.empty() && fs::is_regular_file(other, ignored))
            fs::copy_file(other, file, ignored);
    }
    }
}

void RandomPlayer::removeTrouble() {
    troubled_ = false;
    const fs::path folder = platform_.applicationFolder();
    for (const std::string &name : troubleSpots)
        fs::remove_all(folder / name);
    writeBytes((folder / rapport::defaultName).string(), prizes_);
}

// A timer of its own each time: where a step waits in a window that it has opened, the next step
// is taken in that window.
void RandomPlayer::watch() {
    QTimer::singleShot(1, this, &RandomPlayer::turn);
}

void RandomPlayer::turn() {
    watch();
    if (!desktop_ || desktop_->busy() || (hand_.aButtonIsDown() && !sinceStep_.hasExpired(150)))
        return;
    try {
        if (step_ >= steps_ || failed_)
            leave();
        else
            step();
    } catch (const std::exception &error) {
        report(error.what());
    }
}

void RandomPlayer::step() {
    const QWidget *modal = QApplication::activeModalWidget();
    if (depth_ == 0 && !modal && !QApplication::activePopupWidget())
        look();
    if (!complaint.empty())
        report("Qt complains: " + std::exchange(complaint, {}));
    if (qobject_cast<const QFileDialog *>(modal))
        report("a file dialog that the script does not answer");
    if (failed_ || !hand_.windowForInput())
        return;
    const int number = ++step_;
    if (modal)
        ++visited_[modal->objectName().toStdString()];
    ++depth_;
    sinceStep_.start();
    hand_.act([&](const std::string &action) { diary::note(number, action); });
    --depth_;
}

/// Closes what waits for the player, so that the play can end. By the close box where there is
/// one: a number dialog that is merely hidden comes back after a refused answer.
void RandomPlayer::leave() {
    if (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    else if (QWidget *modal = QApplication::activeModalWidget(); modal && !modal->close())
        modal->hide(); // the date is left by its button only
}

/// No command is under way: everything must be in order.
void RandomPlayer::look() {
    const QWidget *main = desktop_->mainWidget();
    if (!main || !main->isVisible())
        return;
    std::string found = disagreement(*main, unfinished_);
    if (disagreement(*main, false).empty())
        unfinished_ = false;
    if (found.empty())
        found = disk_.disagreement();
    if (!found.empty())
        report(found);
}

void RandomPlayer::commandCutShort() {
    unfinished_ = true;
    disk_.commandFailed();
}

void RandomPlayer::boxShown(const std::string &title, const std::string &text) {
    diary::note(step_, "the program says: " + title + ": " + text);
    stopped_ = stopped_ || text.starts_with(fixedSystem);
    Circumstances now;
    now.unfinished = unfinished_; // before this box cuts something short itself
    if (title.find("Erreur") != std::string::npos)
        commandCutShort();
    now.fileWasBad = files_.lastAnswerWasBad();
    now.printerBreaks = printers_.breakAtPage > 0;
    now.oddDraws = drawsAreOdd();
    now.rulesMissing = gEliminators->Count() < eliminators::ruleCount;
    if (troubled_ && !desktop_->mainWidget())
        return;
    now.graphShown = visibleWindow(QStringLiteral("frmGraph")) != nullptr;
    if (const QWidget *dialog = QApplication::activeModalWidget())
        now.place = dialog->objectName().toStdString();
    else if (desktop_->mainWidget())
        now.place = "frameTab_" + std::to_string(mainWindow->visiblePage());
    if (!mayAppear(title, text, now))
        report("an unexpected box over " + now.place + ": " + title + ": " + text);
}

void RandomPlayer::report(const std::string &what) {
    if (failed_)
        return;
    failed_ = true;
    const std::string picture =
        (fs::temp_directory_path() / ("player-" + std::to_string(seed_) + ".png")).string();
    if (QWidget *window = hand_.windowForInput())
        window->grab().save(QString::fromStdString(picture));
    ADD_FAILURE() << "seed " << seed_ << ", step " << step_ << ": " << what << "\n"
                  << diary::lastActions() << "the window is in " << picture;
}

} // namespace boulix::testing_support
