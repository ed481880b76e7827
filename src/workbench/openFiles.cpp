// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The files that the user hands to the main window: each goes to its page, and there through the
// command that would have asked for it.

#include "core/globals.h"
#include "core/text.h"
#include "files/modFileSelector.h"
#include "files/xFile.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "workbench/fileKind.h"
#include "workbench/frmMain.h"

namespace boulix {

namespace {

enum Tab { drawsTab = 1, statisticsTab, analysisTab, rulesTab, gamesTab, forecastsTab };

std::string nameOf(const std::string &fullName) {
    xFile file;
    file.fullName(fullName);
    return file.name();
}

} // namespace

void frmMain::openFiles(const std::vector<std::string> &fullNames) {
    std::string refused;
    for (const std::string &fullName : fullNames)
        if (!openFile(fullName))
            refused += crlf + nameOf(fullName);
    if (refused.empty())
        return;
    desktop().showMessage("Boulix n'ouvre pas ce genre de fichier:" + refused, Icon::information,
                          gAppInfo->name());
}

bool frmMain::openFile(const std::string &fullName) {
    const modFileSelector::GivenFile given(fullName);
    switch (fileKind(fullName)) {
    case FileKind::draws:
        clickTab(drawsTab);
        database.clickButton(databasePage::importDraws);
        return true;
    case FileKind::game:
        clickTab(gamesTab);
        games.clickButton(gamePage::loadGame);
        return true;
    case FileKind::system:
        clickTab(gamesTab);
        goToSide(gamePage::designSide);
        games.design.openSystem(fullName);
        return true;
    case FileKind::eliminators:
        clickTab(rulesTab);
        elimination.clickButton(eliminatorPage::loadRules);
        return true;
    case FileKind::prizes:
        clickTab(gamesTab);
        goToSide(winningsPage::report);
        winnings.clickRapp(winningsPage::loadTable);
        return true;
    case FileKind::forecast:
        clickTab(forecastsTab);
        forecasts.clickButton(forecastPage::loadRules);
        return true;
    default:
        return false;
    }
}

void frmMain::goToSide(int side) {
    if (view_)
        view_->goToSide(side);
}

} // namespace boulix
