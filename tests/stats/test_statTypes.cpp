// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/statTypes.h"

#include <gtest/gtest.h>

namespace boulix::modStats {
namespace {

struct Row {
    const char *name;
    const char *description;
    int nNumbers;
};

constexpr Row expected[] = {
    {"Fréquence de sortie d'un numéro",
     "Calcule le nombre de sorties de chacun des numéros sur la plage de tirages sélectionnés", 0},
    {"Fréquence de sortie d'un couple",
     "Calcule le nombre de sorties de chacun des couples formés avec le numéro sélectionné sur la "
     "plage de tirages sélectionnés",
     1},
    {"Fréquence de sortie d'un triplet",
     "Calcule le nombre de sorties de chacun des triplets formés avec le couple sélectionné sur la "
     "plage de tirages sélectionnés",
     2},
    {"Fréquence de sortie d'un quadruplet",
     "Calcule le nombre de sorties de chacun des quadruplets formés avec le triplet sélectionné "
     "sur la plage de tirages sélectionnés",
     3},
    {"Fréquence de sortie d'un quintuplet",
     "Calcule le nombre de sorties de chacun des quintuplets formés avec le quadruplet sélectionné "
     "sur la plage de tirages sélectionnés",
     4},
    {"Fréquence de sortie par somme des numéros",
     "Calcule le nombre de sorties des combinaisons classées par la somme des numéros qui la "
     "compose sur la plage de tirages sélectionnés",
     0},
    {"Nombre de tirages écoulés depuis la dernière sortie",
     "Calcule le nombre de tirages écoulés à partir du dernier tirage de la base de données pour "
     "retrouver chacun des numéros dans une combinaison",
     0},
    {"Nombre de tirages consécutifs depuis la dernière sortie",
     "Calcule le nombre de tirages consécutifs avec présence à partir du dernier tirage de la base "
     "de données",
     0},
    {"Nombre maximal de tirages consécutifs sans sortir",
     "Calcule le nombre maximum de tirages consécutifs avec sans sortir sur la plage de tirages "
     "sélectionnée pour chacun des numéros",
     0},
    {"Nombre maximal de présences consécutives",
     "Calcule le nombre maximum de tirages consécutifs avec sortie sur la plage de tirages "
     "sélectionnée pour chacun des numéros",
     0},
    {"Liste des triplets non sortis",
     "Dresse la liste de tous les triplets n'étant pas encore sortis sur la plage de tirages "
     "sélectionnée",
     0},
    {"Liste des triplets non sortis contenant un numéro",
     "Dresse la liste de tous les triplets n'étant pas encore sortis sur la plage de tirages "
     "sélectionnée et contenant le numéro sélectionné",
     1},
    {"Graphique des périodes de tirages sans sortir pour un numéro",
     "Donne un aperçu graphique du nombre de tirages consécutifs sans sortir sur la plage de "
     "tirages sélectionnée pour le numéro sélectionné",
     1},
    {"Graphique des périodes de tirages sans sortir pour un couple",
     "Donne un aperçu graphique du nombre de tirages consécutifs sans sortir sur la plage de "
     "tirages sélectionnée pour le couple sélectionné",
     2},
    {"Graphique des périodes de tirages sans sortir pour un triplet",
     "Donne un aperçu graphique du nombre de tirages consécutifs sans sortir sur la plage de "
     "tirages sélectionnée pour le triplet sélectionné",
     3},
    {"Graphique des périodes de tirages sans sortir pour un quadruplet",
     "Donne un aperçu graphique du nombre de tirages consécutifs sans sortir sur la plage de "
     "tirages sélectionnée pour le quadruplet sélectionné",
     4},
    {"Nombre de tirages contenant n numéros pairs",
     "Donne le nombre de combinaisons sorties contenant n numéros pair (et donc 6-n numéros "
     "impairs) pour n variant de 0 à 6",
     0},
};

TEST(StatTypes, EachHasItsTitleItsSentenceAndItsNumberOfChosenNumbers) {
    InitStatTypes();
    ASSERT_EQ(std::size(expected), std::size_t{statTypeCount});
    std::int32_t type = 0;
    for (const Row &row : expected) {
        ++type;
        EXPECT_EQ(statTypes(type).name, row.name) << type;
        EXPECT_EQ(statTypes(type).description, row.description) << type;
        EXPECT_EQ(statTypes(type).nNumbers, row.nNumbers) << type;
    }
}

TEST(StatTypes, AreNumberedFromOneToSeventeen) {
    for (const std::int32_t type : {-1, 0, 18, 70000})
        EXPECT_FALSE(isStatType(type)) << type;
    for (const std::int32_t type : {1, 9, 17})
        EXPECT_TRUE(isStatType(type)) << type;
}

} // namespace
} // namespace boulix::modStats
