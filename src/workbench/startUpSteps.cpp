// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/startUpSteps.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/modMaths.h"
#include "draws/dbCombs.h"
#include "eliminators/eliminators.h"
#include "forecasts/pronostics.h"
#include "games/modGame.h"
#include "printing/gridConfig.h"
#include "printing/modPrinter.h"
#include "stats/graphSettings.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "winnings/rapport.h"

#include <string>

namespace boulix::modMain {

namespace {

void initGameTypes() {
    modStats::InitTripletTable();
    modGame::init();
}

/// A base that cannot be read ends the start. Its file is named with what takes it out of the way.
void loadBase() {
    try {
        gDbCombs->load();
    } catch (const RuntimeFailure &failure) {
        const xFile &file = gDbCombs->dbFile();
        if (!file.exist()) // it could not be made: its folder is to blame
            throw;
        throw withLine(failure, "Boulix ne démarre pas avec le fichier " + file.name() +
                                    " du répertoire " + file.path() +
                                    " (tirages lus: " + std::to_string(gDbCombs->Count()) +
                                    "). Mettez-le dans un autre dossier pour démarrer avec une "
                                    "base vide.");
    }
}

} // namespace

const std::vector<StartUpStep> &startUpSteps() {
    static const std::vector<StartUpStep> steps = {
        {"Précalcul des Cnk", modMaths::precomputeCnk},
        {"Initialisation des types de statistique", modStats::InitStatTypes},
        {"Initialisation des paramètres graphiques des statistiques", modStats::InitGraphTypes},
        {"Initialisation des types de jeu", initGameTypes},
        {"Chargement des jeux réduits utilisateur", modGame::loadUserGames},
        {"Initialisation des paramètres d'impression", modPrinter::loadSettings},
        {"Initialisation des paramètres de grille", [] { gGridConfig->load(); }},
        {"Chargement en mémoire de la base de données des tirages", loadBase},
        {"Chargement du fichier de rapport par défaut", [] { gRapport->loadDefFile(); }},
        {"Initialisation des éliminateurs", [] { gEliminators->init(); }, true},
        {"Initialisation des pronostiques", [] { gPronostics->init(); }, true},
    };
    return steps;
}

} // namespace boulix::modMain
