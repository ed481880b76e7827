// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/judge.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace boulix::testing_support {

namespace {

using Case = std::function<bool(const Circumstances &now)>;

bool always(const Circumstances &) {
    return true;
}
bool afterBadFile(const Circumstances &now) {
    return now.fileWasBad;
}
bool oddDraws(const Circumstances &now) {
    return now.oddDraws || now.unfinished;
}
bool rulesMissing(const Circumstances &now) {
    return now.rulesMissing;
}
bool beyondTheGraph(const Circumstances &now) {
    return now.graphShown;
}
bool brokenPrinter(const Circumstances &now) {
    return now.printerBreaks;
}
Case in(const std::string &place) {
    return [place](const Circumstances &now) { return now.place == place; };
}

struct Allowed {
    const char *title; ///< whole
    const char *text;  ///< its beginning or its end
    const char *why;
    Case when = always;
};

// Every box that a player may bring up by what he does. What is not here is a fault.
const std::vector<Allowed> &allowed() {
    static const std::vector<Allowed> all = {
        {"boulix", "Etes-vous sûr de vouloir quitter boulix?", "the quit asks"},
        {"boulix", "Le fichier ", "a file is there already"},
        {"boulix", "Veuillez remplir tous les champs correctement", "the forecast test"},
        {"boulix", "combinaisons restantes.", "how many grids an elimination left"},
        {"boulix", "Boulix ne démarre pas tant que l'entrée", "a system of fixed positions"},
        {"Boulix Erreur système N° 91", fixedSystem, "it stops the next start"},
        {"Effacement du jeu courant", "Etes-vous sûr", "a game is cleared"},
        {"Effacement du jeu en construction", "Etes-vous sûr", "a game is cleared"},
        {"boulix Version 4.0.3", "Attention!!! Si les combinaisons", "grids are removed"},
        {"Définition du nom du jeu", "Donnez le", "a system is named"},
        {"boulix", "Voulez-vous enregistrer le document dans un fichier PDF ?", "no printer"},
        {"Aide", "La page d'aide ", "there is no help in the folder"},

        {"boulix: Erreur N° 601", "L'unité de monnaie", "the unit is blank"},
        {"boulix: Erreur N° 701", "Impossible d'ajouter le jeu", "nothing computed on this tab"},
        {"boulix: Erreur N° 801", "Impossible de sélectionner tous", "a bounded choice"},
        {"boulix: Erreur N° 901", "Aucune imprimante", "no printer"},
        {"boulix: Erreur N° 2301", "Impossible d'imprimer", "no printer"},
        {"boulix: Erreur N° 2302", "Erreur de syntaxe", "a spoilt settings file"},
        {"boulix: Erreur N° 2701", "Impossible de mettre à jour", "no file of the operator",
         afterBadFile},
        {"boulix: Erreur N° 2901", "Problème", "a rule's value"},
        {"boulix: Erreur N° 2902", "Problème", "a rule's value"},
        {"boulix: Erreur N° 2903", "Problème", "a rule's value"},
        {"boulix: Erreur N° 2904", "Problème", "a rule's value"},
        {"boulix: Erreur N° 2905", "Problème", "a rule's value"},
        {"boulix: Erreur N° 2906", "Problème", "a rule's value"},
        {"boulix: Erreur N° 2907", "Problème", "a rule's value"},
        {"boulix: Erreur N° 3001", "Lecture de l'en-tête", "a header", afterBadFile},
        {"boulix: Erreur N° 3101", "Vous devez avoir", "another count of numbers"},
        {"boulix: Erreur N° 3102", "Le nombre de grilles", "no count of random grids"},
        {"boulix: Erreur N° 3103", "Impossible de réaliser", "more grids than there are"},
        {"boulix: Erreur N° 4204", "Erreur lors de l'accès", "a prize table"},
        {"boulix: Erreur N° 4301", "Erreur fatale!!!", "a statistic of no chosen number"},
        {"boulix: Erreur N° 4302", "Vous avez sélectionné aucun", "no number chosen"},
        {"boulix: Erreur N° 4303", "Vous devez sélectionner", "too few numbers chosen"},
        {"boulix: Erreur N° 4401", "Impossible de charger", "not our file", afterBadFile},
        {"boulix: Erreur N° 4402", "Impossible de charger", "another type", afterBadFile},
        {"boulix: Erreur N° 4403", "Impossible de charger", "a later version", afterBadFile},
        {"boulix: Erreur N° 4501", "Impossible d'initialiser", "a rule's N"},
        {"boulix: Erreur N° 4502", "Impossible d'initialiser", "a rule's P"},
        {"boulix: Erreur N° 4503", "Impossible d'initialiser", "a rule's points"},
        {"boulix: Erreur N° 4552", "Impossible de sauvegarder", "a rule's text is too long"},
        {"boulix: Erreur N° 4553", "Lecture du fichier de pronostique", "a rule's text",
         afterBadFile},

        {"Boulix Erreur système N° 9", "L'indice", "no draw, or one of other numbers", oddDraws},
        {"Boulix Erreur système N° 9", "L'indice", "a refused file left no rules", rulesMissing},
        {"Boulix Erreur système N° 9", "L'indice", "several grids removed", in("frameTab_4")},
        {"Boulix Erreur système N° 9", "L'indice", "a span before the first draw",
         in("frameTab_5")},
        {"Boulix Erreur système N° 6", "Dépassement", "a number of 16 bits", in("frameTab_4")},
        {"Boulix Erreur système N° 13", "Incompatibilité", "no number", in("frameTab_4")},
        {"Boulix Erreur système N° 13", "Incompatibilité", "no number", in("frmGridParam")},
        {"Boulix Erreur système N° 6", "Dépassement", "a large number", in("frmGridParam")},
        {"Boulix Erreur système N° 13", "Incompatibilité", "no number", in("frmRandomComb")},
        {"Boulix Erreur système N° 6", "Dépassement", "a large number", in("frmRandomComb")},
        {"Boulix Erreur système N° 6", "Dépassement", "a number of 16 bits", in("frameTab_5")},
        {"Boulix Erreur système N° 6", "Dépassement", "a number of 16 bits", in("frameTab_3")},
        {"Boulix Erreur système N° 6", "Dépassement", "more than 300 digits", in("frameTab_2")},
        {"Boulix Erreur système N° 6", "Dépassement", "a limit beyond single precision",
         beyondTheGraph},
        {"Boulix Erreur système N° 13", "Incompatibilité", "no number", in("frmPrint")},
        {"Boulix Erreur système N° 6", "Dépassement", "a number of 16 bits", in("frmPrint")},
        {"Boulix Erreur système N° 91", "Variable objet", "a system not yet computed",
         in("frameTab_4")},
        {"Boulix Erreur système N° 482", "Erreur d'impression", "the printer breaks down",
         brokenPrinter},
        {"Boulix Erreur système N° 380", "Valeur", "a file without a line", afterBadFile},
        {"Boulix Erreur système N° 53", "Fichier introuvable : ", "a file", afterBadFile},
        {"Boulix Erreur système N° 70", "Permission refusée : ", "a file", afterBadFile},
        {"Boulix Erreur système N° 75", "Erreur d'accès", "a file", afterBadFile},
        {"Boulix Erreur système N° 76", "Chemin d'accès introuvable : ", "a file", afterBadFile},
        {"Boulix Erreur système N° 62", "Lecture au-delà", "a short file", afterBadFile},
        {"Boulix Erreur système N° 59", "Longueur", "a bad record", afterBadFile},
        {"Boulix Erreur système N° 13", "Incompatibilité", "a bad line", afterBadFile},
        {"Boulix Erreur système N° 6", "Dépassement", "a number in a file", afterBadFile},
        {"Boulix Erreur système N° 9", "L'indice", "a file with too little in it", afterBadFile},
    };
    return all;
}

} // namespace

bool mayAppear(const std::string &title, const std::string &text, const Circumstances &now) {
    return std::any_of(allowed().begin(), allowed().end(), [&](const Allowed &box) {
        return title == box.title && (text.starts_with(box.text) || text.ends_with(box.text)) &&
               box.when(now);
    });
}

} // namespace boulix::testing_support
