// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The rows of a result and the sentence under them.

#include "stats/statTable.h"

#include "stats/statStores.h"
#include "stats/statsTest.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace boulix {
namespace {

using modStats::statSummary;
using modStats::StatTable;
using modStats::statTable;
using Texts = std::vector<std::string>;

class StatTableTest : public StatsTest {
  protected:
    StatTable table(int type) { return statTable(static_cast<std::int16_t>(type), chooser); }
    std::string summary(int type) { return statSummary(static_cast<std::int16_t>(type), chooser); }

    Texts headers(int type) {
        Texts texts;
        for (const ReportColumn &column : table(type).columns)
            texts.push_back(column.header);
        return texts;
    }
    /// The rows of the list, cells joined by blanks.
    Texts rows(int type) {
        const StatTable shown = table(type);
        Texts texts;
        for (std::int64_t row = 0; row < shown.rowCount(); ++row) {
            std::string text;
            for (int column = 0; column < static_cast<int>(shown.columns.size()); ++column)
                text += (column > 0 ? " " : "") + shown.text(row, column);
            texts.push_back(text);
        }
        return texts;
    }
    /// Rows and sentence of `type` over the whole base.
    Texts computed(int type, int withCompl, const std::vector<std::int16_t> &chosen) {
        computeAll(type, withCompl, chosen);
        Texts texts = rows(type);
        texts.push_back(summary(type));
        return texts;
    }
    void addFourDraws() {
        addDraws({{1, 2, 3, 4, 5, 6, 7},
                  {1, 2, 3, 14, 15, 16, 17},
                  {21, 22, 23, 24, 25, 26, 7},
                  {1, 2, 13, 14, 25, 36, 47}});
    }
};

TEST_F(StatTableTest, TheColumnsAreThoseOfTheType) {
    const std::vector<Texts> expected = {{"N°", "Fréquence"},
                                         {"01", "02", "Fréquence"},
                                         {"01", "02", "03", "Fréquence"},
                                         {"01", "02", "03", "04", "Fréquence"},
                                         {"01", "02", "03", "04", "05", "Fréquence"},
                                         {"Somme", "Fréquence"},
                                         {"N°", "Dernière Sortie"},
                                         {"N°", "Consécutifs"},
                                         {"N°", "Max sans sortir"},
                                         {"N°", "Max consécutifs"},
                                         {"01", "02", "03"},
                                         {"01", "02", "03"},
                                         {"Période", "Absences"},
                                         {"Période", "Absences"},
                                         {"Période", "Absences"},
                                         {"Période", "Absences"},
                                         {"Nombre de numéros pairs", "Nombre de combinaisons"}};
    addFourDraws();
    compute(5, 0, 1, 4, {1, 2, 3, 4}); // so that the selector holds as many as anybody asks for
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(headers(static_cast<int>(i) + 1), expected[i]) << "type " << i + 1;
    EXPECT_EQ(headers(0), Texts());
    EXPECT_EQ(headers(18), Texts());
}

TEST_F(StatTableTest, TypesByNumberShowAll49NumbersFilledWithZeros) {
    addFourDraws();
    struct Case {
        int type;
        std::string first;
        std::string last;
        std::string summary;
    };
    const std::vector<Case> cases = {
        {1, "01 003", "49 000", "Numéro le plus sorti: 02 (3 fois)"},
        {7, "01 01", "49 00", "Numéro le plus en retard: 6 (4 tirages)"},
        {8, "01 01", "49 00", "Numéro le plus en répété: 25 (2 tirages)"},
        {9, "01 01", "49 00", "Numéro avec le record de retard: 36 (3 tirages)"},
        {10, "01 02", "49 01", "Numéro avec le record de répétition: 25 (2 tirages)"}};
    for (const Case &c : cases) {
        const Texts texts = computed(c.type, 0, {});
        ASSERT_EQ(texts.size(), 50U) << "type " << c.type;
        EXPECT_EQ(texts.front(), c.first) << "type " << c.type;
        EXPECT_EQ(texts[48], c.last) << "type " << c.type;
        EXPECT_EQ(texts[49], c.summary) << "type " << c.type;
    }
}

TEST_F(StatTableTest, PartnersThatCameOutStandBesideTheChosenNumbers) {
    addFourDraws();
    EXPECT_EQ(computed(2, 0, {14}),
              (Texts{"14 01 02", "14 02 02", "14 03 01", "14 13 01", "14 15 01", "14 16 01",
                     "14 25 01", "14 36 01", "Couple le plus sorti: 14 - 02 (2 fois)"}));
    EXPECT_EQ(computed(3, 0, {2, 1}),
              (Texts{"02 01 03 02", "02 01 04 01", "02 01 05 01", "02 01 06 01", "02 01 13 01",
                     "02 01 14 02", "02 01 15 01", "02 01 16 01", "02 01 25 01", "02 01 36 01",
                     "Triplet le plus sorti: 02 - 01 - 14 (2 fois)"}));
    EXPECT_EQ(computed(4, 0, {3, 2, 1}),
              (Texts{"03 02 01 04 01", "03 02 01 05 01", "03 02 01 06 01", "03 02 01 14 01",
                     "03 02 01 15 01", "03 02 01 16 01",
                     "Quadruplet le plus sorti: 03 - 02 - 01 - 16 (1 fois)"}));
    EXPECT_EQ(computed(5, 0, {4, 3, 2, 1}),
              (Texts{"04 03 02 01 05 01", "04 03 02 01 06 01",
                     "Quadruplet le plus sorti: 04 - 03 - 02 - 01 - 06 (1 fois)"}));
}

TEST_F(StatTableTest, ANumberThatNeverCameOutHasNoPartnersAndNoSentence) {
    addFourDraws();
    EXPECT_EQ(computed(2, 1, {49}), (Texts{""}));
    EXPECT_EQ(headers(2), (Texts{"01", "02", "Fréquence"}));
}

TEST_F(StatTableTest, SumsThatOccurredStandInAscendingOrder) {
    addFourDraws();
    EXPECT_EQ(computed(6, 0, {}), (Texts{"021 001", "051 001", "091 001", "141 001",
                                         "Somme la plus fréquente: 141 (1 fois)"}));
    EXPECT_EQ(computed(6, 1, {}), (Texts{"028 001", "068 001", "138 001", "148 001",
                                         "Somme la plus fréquente: 148 (1 fois)"}));
}

TEST_F(StatTableTest, TripletsNeverDrawnStandInTableOrder) {
    addFourDraws();
    const Texts all = computed(11, 0, {});
    ASSERT_EQ(all.size(), 18424U - 78 + 1); // 1 2 3 and 1 2 14 were drawn twice
    EXPECT_EQ(all[0], "01 02 07");
    EXPECT_EQ(all[all.size() - 2], "47 48 49");
    EXPECT_EQ(all.back(), std::to_string(all.size() - 1) + " triplets non sortis");
    const Texts some = computed(12, 0, {49});
    ASSERT_EQ(some.size(), 48U * 47 / 2 + 1);
    EXPECT_EQ(some[0], "01 02 49");
    EXPECT_EQ(some.back(), "1128 triplets non sortis");
}

TEST_F(StatTableTest, PeriodsAreNumberedInTimeOrder) {
    addFourDraws();
    EXPECT_EQ(computed(13, 0, {14}),
              (Texts{"01 01", "02 01", "Absence maxi pour le numéro 14: 1 tirages"}));
    EXPECT_EQ(computed(14, 0, {14, 1}),
              (Texts{"01 01", "02 01", "Absence maxi pour le couple (14,1): 1 tirages"}));
    EXPECT_EQ(computed(15, 0, {3, 2, 1}),
              (Texts{"01 02", "Absence maxi pour le triplet (3,2,1): 2 tirages"}));
    EXPECT_EQ(computed(16, 0, {49, 3, 2, 1}),
              (Texts{"01 04", "Absence maxi pour le quadruplet (49,3,2,1): 4 tirages"}));
}

TEST_F(StatTableTest, EvenNumbersHaveSevenClassesWithoutAndEightWithTheComplementary) {
    addFourDraws();
    EXPECT_EQ(computed(17, 0, {}), (Texts{"00 00", "01 00", "02 00", "03 04", "04 00", "05 00",
                                          "06 00", "Meilleur compromis avec 3 numéros pairs"}));
    EXPECT_EQ(computed(17, 1, {}),
              (Texts{"00 00", "01 00", "02 00", "03 04", "04 00", "05 00", "06 00", "07 00",
                     "Meilleur compromis avec 3 numéros pairs"}));
}

TEST_F(StatTableTest, OfEqualEntriesTheSentenceNamesTheHighest) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {8, 9, 10, 11, 12, 13, 14}});
    EXPECT_EQ(computed(1, 0, {}).back(), "Numéro le plus sorti: 13 (1 fois)");
    EXPECT_EQ(computed(2, 0, {1}).back(), "Couple le plus sorti: 01 - 06 (1 fois)");
    EXPECT_EQ(computed(17, 0, {}).back(), "Meilleur compromis avec 3 numéros pairs");
}

TEST_F(StatTableTest, AValueThatOutgrowsItsFormatIsShownWhole) {
    addFourDraws();
    modStats::nStatPeriods = 100;
    modStats::statPeriods.assign(101, 12345);
    EXPECT_EQ(rows(13).back(), "100 12345");
    modStats::statResult(1) = 1000;
    EXPECT_EQ(rows(1).front(), "01 1000");
}

TEST_F(StatTableTest, WithNothingToShowTheSentenceNamesTheLastEntry) {
    EXPECT_EQ(computed(1, 0, {}).back(), "Numéro le plus sorti: 49 (0 fois)");
    EXPECT_EQ(computed(2, 0, {7}), (Texts{""}));
    EXPECT_EQ(computed(6, 0, {}), (Texts{"Somme la plus fréquente: 279 (0 fois)"}));
    EXPECT_EQ(computed(6, 1, {}), (Texts{"Somme la plus fréquente: 322 (0 fois)"}));
    EXPECT_EQ(computed(7, 0, {}).back(), "Numéro le plus en retard: 49 (0 tirages)");
    EXPECT_EQ(computed(9, 0, {}).back(), "Numéro avec le record de retard: 49 (0 tirages)");
    EXPECT_EQ(computed(10, 0, {}).back(), "Numéro avec le record de répétition: 49 (1 tirages)");
    EXPECT_EQ(computed(11, 0, {}).back(), "18424 triplets non sortis");
    EXPECT_EQ(computed(13, 0, {7}), (Texts{"Absence maxi pour le numéro 7: 0 tirages"}));
    EXPECT_EQ(computed(17, 0, {}).back(), "Meilleur compromis avec 6 numéros pairs");
    EXPECT_EQ(computed(17, 1, {}).back(), "Meilleur compromis avec 7 numéros pairs");
}

TEST_F(StatTableTest, WithoutChosenNumbersTheTypesWithPartnersShowNothing) {
    addFourDraws();
    computeAll(1, 0);
    for (int type = 2; type <= 5; ++type) {
        EXPECT_EQ(headers(type), Texts());
        EXPECT_EQ(rows(type), Texts());
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatTableTest, AMissingChosenNumberIsReportedOnceAndReadsAsZero) {
    addFourDraws();
    computeAll(2, 0, {14});
    EXPECT_EQ(rows(3).front(), "14 00 01 02");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4301");
}

TEST_F(StatTableTest, TheSuffixesTellWhetherTheComplementaryCounts) {
    using modStats::statDescription;
    using modStats::statTitle;
    for (const std::int16_t without : std::vector<std::int16_t>{0, 2, -1}) {
        EXPECT_EQ(statTitle(1, without), "Fréquence de sortie d'un numéro (Sans complémentaire)");
        EXPECT_EQ(statDescription(11, without),
                  "Dresse la liste de tous les triplets n'étant pas encore sortis sur la plage de "
                  "tirages sélectionnée (Ce calcul ne tient pas compte du numéro complémentaire)");
    }
    EXPECT_EQ(statTitle(17, 1),
              "Nombre de tirages contenant n numéros pairs (Avec complémentaire)");
    EXPECT_EQ(statDescription(8, 1),
              "Calcule le nombre de tirages consécutifs avec présence à partir du dernier tirage "
              "de la base de données (Ce calcul tient compte du numéro complémentaire)");
}

TEST_F(StatTableTest, AShownResultStaysWhenTheStoresChange) {
    addFourDraws();
    computeAll(1, 0);
    const StatTable shown = table(1);
    computeAll(9, 0);
    EXPECT_EQ(shown.text(0, 1), "003");
}

} // namespace
} // namespace boulix
