// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/startUpSteps.h"

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

namespace boulix::modMain {

namespace {

void initGameTypes() {
    modStats::InitTripletTable();
    modGame::init();
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
        {"Chargement en mémoire de la base de données des tirages", [] { gDbCombs->load(); }},
        {"Chargement du fichier de rapport par défaut", [] { gRapport->loadDefFile(); }},
        {"Initialisation des éliminateurs", [] { gEliminators->init(); }, true},
        {"Initialisation des pronostiques", [] { gPronostics->init(); }, true},
    };
    return steps;
}

} // namespace boulix::modMain
