// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/modMain.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "games/modGame.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "workbench/frmMain.h"
#include "workbench/startUpSteps.h"

#include <optional>

namespace boulix::modMain {

namespace {

constexpr const char *disclaimer =
    "Attention!!! Ce logiciel constitue une aide au jeu mais ne saurait en aucun cas garantir les "
    "gains. L'auteur décline toute responsabilité en cas de pertes d'argent qui auraient pu être "
    "dues à l'utilisation de ce produit. En revanche, en cas de gros gains, pensez à lui!!!";

void initialise() {
    for (const StartUpStep &step : startUpSteps()) {
        logLine(std::string("modMain.Main: ") + step.name);
        if (!step.eventsAfter)
            desktop().runEvents();
        if (step.run)
            step.run();
        if (step.eventsAfter)
            desktop().runEvents();
    }
    logLine(std::string(crlf) + "modMain.Main: *** Initialisations terminées ***" + crlf);
    mainWindow->load();
    desktop().showMainWindow();
    desktop().unloadSplash();
}

void prepare() {
    gDebug = false;
    if (parseCommandLine(1)[1] == "-debug")
        openLog();
    gAppInfo->init(disclaimer, "Marcel Quillon", "Quillon Logiciels", 2003);
    logLine("Fichier généré par " + gAppInfo->fullName() + " le " + longDate(platform().today()));
    gCurrentDir = platform().applicationFolder();
    gDbCombs->dbFile().path(gCurrentDir);
    gDbCombs->dbFile().name("tirages.dbl");
    gAppInfo->showSplash();
}

/// One start, as far as it comes. True when it failed at an entry of the settings that the user
/// then had taken out: the next one comes further.
bool startOnce() {
    prepare();
    std::optional<modGame::FixedGameFailure> atEntry;
    underHandler([&atEntry] {
        try {
            initialise();
        } catch (const modGame::FixedGameFailure &failure) {
            atEntry = failure;
            throw;
        }
    });
    return atEntry && atEntry->offerRemoval();
}

} // namespace

void Main() {
    while (startOnce()) {
    }
}

} // namespace boulix::modMain
