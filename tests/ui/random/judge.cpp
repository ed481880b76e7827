// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/judge.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "games/game.h"
#include "ui/random/hand.h"
#include "ui/random/plainFiles.h"
#include "ui/support/robot.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/upDownField.h"
#include "ui/widgets/upDownView.h"
#include "workbench/frmMain.h"

#include <QCheckBox>
#include <QLabel>
#include <QTabWidget>

#include <algorithm>
#include <filesystem>
#include <vector>

namespace boulix::testing_support {

namespace {

/// The rows of a list as the user sees them.
int rowsOf(const QWidget &window, const char *name) {
    return control<ReportView>(window, name).model()->rowCount();
}

std::string ofPages(const QWidget &window) {
    const auto &tabs = control<QTabWidget>(window, "TabStrip");
    if (tabs.currentIndex() != mainWindow->visiblePage())
        return "the tab on the screen is not the page of the program";
    for (int i = 0; i < tabs.count(); ++i)
        if (tabs.widget(i)->isVisible() != (i == tabs.currentIndex()))
            return "page " + std::to_string(i) + " is visible or hidden when it should not";
    if (!window.isEnabled())
        return "the main window stayed disabled";
    return {};
}

std::string ofDraws(const QWidget &window, bool unfinished) {
    const std::string draws = std::to_string(gDbCombs->Count());
    const int shown = rowsOf(window, "lvwDBcomb");
    if (shown > gDbCombs->Count() || (shown < gDbCombs->Count() && !unfinished))
        return "the list shows " + std::to_string(shown) + " draws, the base holds " + draws;
    const auto &panel = control<QLabel>(window, "StatusBar_1");
    if (panel.text().toStdString() != draws + " combinaisons dans la base de données" &&
        !unfinished)
        return "the status bar says " + panel.text().toStdString() + ", the base holds " + draws;
    return {};
}

std::string ofGrids(const QWidget &window) {
    const int grids = rowsOf(window, "lvwGame");
    if (grids == 0 || grids == currentGame->Count())
        return {};
    return "the list shows " + std::to_string(grids) + " grids, the game holds " +
           std::to_string(currentGame->Count());
}

std::string ofUpDowns() {
    const frmMain &main = *mainWindow;
    const std::vector<const upDown *> overTheBase = {
        &main.statistics.updStatStart, &main.statistics.updStatEnd, &main.analysis.updnTirNbr,
        &main.winnings.updVerifComb};
    for (std::size_t i = 0; i < overTheBase.size(); ++i) {
        const upDown &pair = *overTheBase[i];
        if (gDbCombs->Count() > 0 && (pair.value() < pair.min() || pair.value() > pair.max()))
            return "up-down " + std::to_string(i) + " stands at " + std::to_string(pair.value()) +
                   ", outside " + std::to_string(pair.min()) + " to " + std::to_string(pair.max());
        if (gDbCombs->Count() > 0 && pair.max() > gDbCombs->Count())
            return "up-down " + std::to_string(i) + " goes beyond the base";
    }
    return {};
}

} // namespace

bool drawsAreOdd() {
    const std::vector<PlainDraw> draws = drawsInMemory();
    const auto isOdd = [](const PlainDraw &draw) {
        return std::any_of(draw.fields.begin() + 1, draw.fields.begin() + 8,
                           [](std::int16_t number) { return number < 1 || number > 49; });
    };
    return draws.empty() || std::any_of(draws.begin(), draws.end(), isOdd);
}

std::string disagreement(const QWidget &window, bool unfinished) {
    for (const std::string &found :
         {ofPages(window), ofDraws(window, unfinished), ofGrids(window), ofUpDowns()})
        if (!found.empty())
            return found;
    return {};
}

std::string DiskWatch::stampOf(const std::string &file) {
    std::error_code ignored;
    const auto time = std::filesystem::last_write_time(file, ignored);
    if (ignored)
        return {};
    return file + std::to_string(std::filesystem::file_size(file, ignored)) + "/" +
           std::to_string(time.time_since_epoch().count());
}

void DiskWatch::begin() {
    baseStamp_ = stampOf(base_);
    gameStamp_ = stampOf(game_);
    failed_ = false;
}

void DiskWatch::fileNamed(const std::string &file) {
    game_ = file.ends_with(".lst") ? file : "";
    gameStamp_ = stampOf(game_);
}

std::string DiskWatch::disagreement() {
    const bool baseSaved = !failed_ && stampOf(base_) != baseStamp_;
    const bool gameSaved = !failed_ && stampOf(game_) != gameStamp_;
    begin();
    if (baseSaved && drawsOnDisk(base_) != drawsInMemory())
        return "the base on the disk is not the one in memory";
    if (gameSaved && gridsOnDisk(game_) != gridsInMemory())
        return "the game on the disk is not the one in memory";
    return {};
}

} // namespace boulix::testing_support
