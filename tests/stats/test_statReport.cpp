// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The statistics as a text file and on paper.

#include "stats/statReport.h"

#include "core/globals.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "stats/statsTest.h"
#include "support/files.h"
#include "support/recordingPrinters.h"
#include "support/saveTexts.h"
#include "support/smallDisk.h"
#include "support/withoutRights.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace boulix {
namespace {

using testing_support::fileExists;
using testing_support::readBytes;
using testing_support::writeBytes;
using Lines = std::vector<std::string>;

constexpr const char *without = " (Ce calcul ne tient pas compte du numéro complémentaire)";

class StatReport : public StatsTest {
  protected:
    StatReport() {
        addDraws({{1, 2, 3, 4, 5, 6, 7},
                  {1, 2, 3, 14, 15, 16, 17},
                  {21, 22, 23, 24, 25, 26, 7},
                  {1, 2, 13, 14, 25, 36, 47}});
        gDbCombs->Item(4).id(2);
        setPrinterSystem(&printers);
    }
    ~StatReport() override { setPrinterSystem(nullptr); }

    std::string name() const { return file("stat.txt"); }

    /// The lines of the file of `type` over the whole base, computed before.
    Lines written(int type, int withCompl, const std::vector<std::int16_t> &chosen) {
        computeAll(type, withCompl, chosen);
        modStats::WriteStatsText(name(), static_cast<std::int16_t>(type),
                                 static_cast<std::int16_t>(withCompl), 1, gDbCombs->Count(),
                                 chooser);
        return linesOf(readBytes(name()));
    }
    static Lines linesOf(const std::string &bytes) {
        std::string text = fromWestern(bytes);
        EXPECT_EQ(text.substr(text.size() - 2), crlf);
        text.erase(text.size() - 2);
        Lines lines;
        for (std::string line : split(text, '\n')) {
            if (!line.empty() && line.back() == '\r')
                line.pop_back();
            lines.push_back(line);
        }
        return lines;
    }
    /// The table and the sentence: what stands behind the range and its dash line, without the
    /// last dash line.
    static Lines tableOf(const Lines &lines) { return {lines.begin() + 8, lines.end() - 1}; }

    Lines printed(int type, int withCompl) {
        modStats::PrintStats(static_cast<std::int16_t>(type), static_cast<std::int16_t>(withCompl),
                             1, gDbCombs->Count(), chooser);
        const auto &document = printers.onlyDocument();
        EXPECT_TRUE(document.ended);
        return document.lines();
    }

    testing_support::RecordingPrinters printers;
};

const std::string fileDashes(60, '-');
const std::string paperDashes(120, '-');
const std::string range = "Analyse réalisée pour du tirage N° 1 (01-01-2001 - 1)  au tirage N° 4 "
                          "(04-01-2001 - 2) ";

TEST_F(StatReport, TheFileHasItsLinesInOrderWithCrLfAndWesternBytes) {
    computeAll(17, 0);
    modStats::WriteStatsText(name(), 17, 0, 1, 4, chooser);
    const std::string gap(23, ' ');
    const Lines lines = {
        "Fichier de statistiques généré par boulix Version 4.0.3",
        fileDashes,
        "Nombre de tirages contenant n numéros pairs (Sans complémentaire)",
        fileDashes,
        std::string("Donne le nombre de combinaisons sorties contenant n numéros pair (et donc "
                    "6-n numéros impairs) pour n variant de 0 à 6") +
            without,
        fileDashes,
        range,
        fileDashes,
        "Nombre de numéros pairs   Fréquence",
        "0" + gap + "0",
        "1" + gap + "0",
        "2" + gap + "0",
        "3" + gap + "4",
        "4" + gap + "0",
        "5" + gap + "0",
        "6" + gap + "0",
        fileDashes,
        "Meilleur compromis: 3 numéros pairs (4 fois)",
        fileDashes};
    std::string text;
    for (const std::string &line : lines)
        text += line + "\r\n";
    EXPECT_EQ(readBytes(name()), toWestern(text));
}

TEST_F(StatReport, EachTypeHasItsHeadLineItsRowsAndItsSentence) {
    struct Case {
        int type;
        std::vector<std::int16_t> chosen;
        Lines table; ///< up to the dash line
    };
    const std::vector<Case> cases = {
        {2,
         {36},
         {"Numéro 01 Numéro 02 Fréquence", "36      01      01", "36      02      01",
          "36      13      01", "36      14      01", "36      25      01", fileDashes,
          "Couple le plus sorti: 36 - 25 (1 fois)"}},
        {3,
         {36, 25},
         {"Numéro 01 Numéro 02 Numéro 03 Fréquence", "36      25      01      01",
          "36      25      02      01", "36      25      13      01", "36      25      14      01",
          fileDashes, "Triplet le plus sorti: 36 - 25 - 14 (1 fois)"}},
        {4,
         {36, 25, 14},
         {"Numéro 01 Numéro 02 Numéro 03 Numéro 04 Fréquence", "36      25      14      01      01",
          "36      25      14      02      01", "36      25      14      13      01", fileDashes,
          "Quadruplet le plus sorti: 36 - 25 - 14 - 13 (1 fois)"}},
        {5,
         {36, 25, 14, 13},
         {"Numéro 01 Numéro 02 Numéro 03 Numéro 04 Numéro 05 Fréquence",
          "36      25      14      13      01      01",
          "36      25      14      13      02      01", fileDashes,
          "Quadruplet le plus sorti: 36 - 25 - 14 - 13 - 02 (1 fois)"}},
        {6,
         {},
         {"Somme   Fréquence", "21     01", "51     01", "91     01", "141     01", fileDashes,
          "Somme la plus fréquente: 141 (1 fois)"}},
        {13,
         {3},
         {"Période  Nombre d'absences", "1        2", fileDashes,
          "Absence maxi pour le numéro 3: 2 tirages"}},
        {14,
         {14, 1},
         {"Période  Nombre d'absences", "1        1", "2        1", fileDashes,
          "Absence maxi pour le couple (14,1): 1 tirages"}},
        {15,
         {3, 2, 1},
         {"Période  Nombre d'absences", "1        2", fileDashes,
          "Absence maxi pour le triplet (3,2,1): 2 tirages"}},
        {16,
         {9, 3, 2, 1},
         {"Période  Nombre d'absences", "1        4", fileDashes,
          "Absence maxi pour le quadruplet (9,3,2,1): 4 tirages"}}};
    for (const Case &c : cases)
        EXPECT_EQ(tableOf(written(c.type, 0, c.chosen)), c.table) << "type " << c.type;
}

TEST_F(StatReport, TypesByNumberWriteAll49Numbers) {
    struct Case {
        int type;
        std::string head;
        std::string first;
        std::string summary;
    };
    const std::vector<Case> cases = {
        {1, "Numéro Fréquence", "01     03", "Numéro le plus sorti: 02 (3 fois)"},
        {7, "Numéro Dernière Sortie", "01     01", "Numéro le plus en retard: 6 (4 tirages)"},
        {8, "Numéro Consécutifs", "01     01", "Numéro le plus en répété: 25 (2 tirages)"},
        {9, "Numéro Max sans sortir", "01     01",
         "Numéro avec le record de retard: 36 (3 tirages)"},
        {10, "Numéro Max consécutifs", "01     02",
         "Numéro avec le record de répétition: 25 (2 tirages)"}};
    for (const Case &c : cases) {
        const Lines table = tableOf(written(c.type, 0, {}));
        ASSERT_EQ(table.size(), 1U + 49 + 2) << "type " << c.type;
        EXPECT_EQ(table.front(), c.head);
        EXPECT_EQ(table[1], c.first);
        EXPECT_EQ(table[50], fileDashes);
        EXPECT_EQ(table.back(), c.summary);
    }
}

TEST_F(StatReport, TripletsNeverDrawnAreListedWithTheirCount) {
    const Lines table = tableOf(written(12, 0, {49}));
    ASSERT_EQ(table.size(), 1U + 1128 + 2);
    EXPECT_EQ(table[0], "Numéro 01  Numéro 02  Numéro 03");
    EXPECT_EQ(table[1], "01       02       49");
    EXPECT_EQ(table[1128], "47       48       49");
    EXPECT_EQ(table.back(), "1128 triplets non sortis");
    EXPECT_EQ(tableOf(written(11, 0, {})).back(), "18346 triplets non sortis");
}

TEST_F(StatReport, TheTitleTellsTheChoiceAndTheSentenceOfTheEvenNumbersCounts) {
    const Lines lines = written(17, 1, {});
    EXPECT_EQ(lines[2], "Nombre de tirages contenant n numéros pairs (Avec complémentaire)");
    EXPECT_EQ(lines.size(), 8U + 1 + 8 + 3);
    EXPECT_EQ(lines[lines.size() - 2], "Meilleur compromis: 3 numéros pairs (4 fois)");
}

TEST_F(StatReport, ANumberWithoutAPeriodHasAHeadLineNoRowAndASentenceOfZero) {
    gDbCombs->clear();
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    EXPECT_EQ(tableOf(written(13, 0, {1})), (Lines{"Période  Nombre d'absences", fileDashes,
                                                   "Absence maxi pour le numéro 1: 0 tirages"}));
}

TEST_F(StatReport, AnEmptySentenceIsAnEmptyLine) {
    EXPECT_EQ(tableOf(written(2, 0, {49})),
              (Lines{"Numéro 01 Numéro 02 Fréquence", fileDashes, ""}));
}

TEST_F(StatReport, TheRangeIsThatOfTheArguments) {
    platform.shortForm = [](Date day) { return "j" + std::to_string(static_cast<int>(day)); };
    computeAll(17, 0);
    modStats::WriteStatsText(name(), 17, 0, 2, 2, chooser);
    EXPECT_EQ(linesOf(readBytes(name()))[6],
              "Analyse réalisée pour du tirage N° 2 (j36893 - 1)  au tirage N° 2 (j36893 - 1) ");
}

TEST_F(StatReport, ARangeThatTheBaseDoesNotHaveFailsAndWritesNothing) {
    computeAll(1, 0);
    writeBytes(name(), "before");
    for (const auto &[first, last] : std::vector<std::pair<int, int>>{{0, 4}, {1, 5}, {5, 5}})
        EXPECT_EQ(failureNumber([&, first = first, last = last] {
                      modStats::WriteStatsText(name(), 1, 0, first, last, chooser);
                  }),
                  9);
    gDbCombs->Item(4).day(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(failureNumber([&] { modStats::WriteStatsText(name(), 1, 0, 1, 4, chooser); }), 6);
    EXPECT_EQ(readBytes(name()), "before");
}

TEST_F(StatReport, TheExportComputesAfreshAndAsksForAFile) {
    desktop.answerNumbers(NumberScript().click({3}).ok());
    desktop.answerSave(name());
    modStats::ExportStats(13, 0, 1, 4, chooser);
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].title, "Exportation des statistiques au format texte");
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Fichier Statistiques texte Boulix (*.txt)|*.txt");
    EXPECT_EQ(linesOf(readBytes(name()))[9], "1        2");
}

TEST_F(StatReport, TheExportReplacesAFileWithoutAQuestion) {
    writeBytes(name(), std::string(100000, 'x'));
    desktop.answerSave(name());
    modStats::ExportStats(17, 0, 1, 4, chooser);
    EXPECT_TRUE(desktop.questions.empty());
    EXPECT_EQ(linesOf(readBytes(name())).size(), 19U);
}

TEST_F(StatReport, ADismissedFileDialogLeavesNoFileButTheFreshResult) {
    computeAll(1, 0);
    desktop.cancelSave();
    modStats::ExportStats(17, 0, 1, 4, chooser);
    EXPECT_EQ(modStats::nStatResult, 7);
    EXPECT_EQ(modStats::statResult(4), 4);
    EXPECT_TRUE(std::filesystem::is_empty(folder()));
}

TEST_F(StatReport, WithADismissedSelectionTheExportGoesOnWithTheOldStores) {
    computeAll(12, 0, {49});
    desktop.answerNumbers(NumberScript().cancel());
    desktop.answerSave(name());
    modStats::ExportStats(12, 0, 1, 4, chooser);
    EXPECT_EQ(tableOf(linesOf(readBytes(name()))).back(), "1128 triplets non sortis");

    computeAll(13, 0, {3});
    desktop.answerNumbers(NumberScript().cancel());
    desktop.answerSave(name());
    modStats::ExportStats(13, 0, 1, 4, chooser);
    EXPECT_EQ(tableOf(linesOf(readBytes(name()))),
              (Lines{"Période  Nombre d'absences", "1        2", fileDashes,
                     "Absence maxi pour le numéro 0: 2 tirages"}));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4301");
}

TEST_F(StatReport, WithADismissedSelectionOfPartnersTheTableIsEmpty) {
    computeAll(2, 0, {14});
    desktop.answerNumbers(NumberScript().cancel());
    desktop.answerSave(name());
    modStats::ExportStats(2, 0, 1, 4, chooser);
    EXPECT_EQ(tableOf(linesOf(readBytes(name()))),
              (Lines{"Numéro 01 Numéro 02 Fréquence", fileDashes, ""}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(StatReport, APlaceWhereNoFileCanBeIsAFailure) {
    computeAll(1, 0);
    const auto exportTo = [&](const std::string &place) {
        desktop.answerSave(place);
        return failureNumber([&] { modStats::ExportStats(1, 0, 1, 4, chooser); });
    };
    EXPECT_NE(exportTo(file("nowhere/stat.txt")), 0);
    EXPECT_NE(exportTo(folder()), 0) << "a folder";
}

TEST_F(StatReport, AFolderWithoutPermissionIsAFailureThatNamesTheFile) {
    computeAll(1, 0);
    std::filesystem::permissions(folder(), std::filesystem::perms(0555));
    const auto failure = failureOf([&] {
        const WithoutRights user;
        modStats::WriteStatsText(name(), 1, 0, 1, 4, chooser);
    });
    std::filesystem::permissions(folder(), std::filesystem::perms(0755));
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 70);
    EXPECT_EQ(failure->description(),
              "Permission refusée : " + name() + "\r\nLe dossier " + folder() +
                  " est protégé en écriture: copiez-le à un endroit où vous pouvez écrire, puis "
                  "démarrez Boulix depuis cette copie." +
                  saveTexts::notBegun);
    EXPECT_FALSE(fileExists(name()));
}

TEST_F(StatReport, AFileThatMayNotBeWrittenIsAFailureThatNamesItAndKeepsIt) {
    computeAll(1, 0);
    writeBytes(name(), "before");
    std::filesystem::permissions(name(), std::filesystem::perms::owner_read);
    desktop.answerSave(name());
    const auto failure = failureOf([&] { modStats::ExportStats(1, 0, 1, 4, chooser); });
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->description().find(name()), std::string::npos) << failure->description();
    EXPECT_EQ(readBytes(name()), "before");
}

TEST_F(StatReport, AFullOrReadOnlyDiskIsAFailureAndTheResultStays) {
    SmallDisk disk(4096);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    computeAll(11, 0);
    const auto write = [&] {
        modStats::WriteStatsText(disk.file("stat.txt"), 11, 0, 1, 4, chooser);
    };
    EXPECT_EQ(failureNumber(write), 61) << "the list of triplets does not fit";
    disk.makeReadOnly();
    EXPECT_NE(failureNumber(write), 0);
    EXPECT_EQ(testing_support::listedTriplets(), 18346);
}

TEST_F(StatReport, OnPaperTheReportHasTheBannerLongDashesAndTheDay) {
    computeAll(13, 0, {3});
    const std::string stars(40, '*');
    EXPECT_EQ(printed(13, 0),
              (Lines{stars, std::string(17, ' ') + "boulix", stars, "", paperDashes,
                     "Graphique des périodes de tirages sans sortir pour un numéro (Sans "
                     "complémentaire)",
                     "(Statistique imprimée le 15/11/2026)", paperDashes,
                     std::string("Donne un aperçu graphique du nombre de tirages consécutifs sans "
                                 "sortir sur la plage de tirages sélectionnée pour le numéro "
                                 "sélectionné") +
                         without,
                     paperDashes, range, paperDashes, "Période  Nombre d'absences", "1        2",
                     paperDashes, "Absence maxi pour le numéro 3: 2 tirages", paperDashes}));
}

TEST_F(StatReport, OnPaperTheHeadLinesAreSingleSpaced) {
    const std::vector<std::pair<int, std::string>> heads = {
        {1, "Numéro Fréquence"},
        {6, "Somme Fréquence"},
        {7, "Numéro Dernière Sortie"},
        {8, "Numéro Consécutifs"},
        {9, "Numéro Max sans sortir"},
        {10, "Numéro Max consécutifs"},
        {11, "Numéro 01 Numéro 02 Numéro 03"},
        {17, "Nombre de numéros pairs   Fréquence"}};
    for (const auto &[type, head] : heads) {
        printers.documents.clear();
        computeAll(type, 0);
        EXPECT_EQ(printed(type, 0)[12], head) << "type " << type;
    }
}

TEST_F(StatReport, ThePaperShowsTheStoresAsTheyStandUnderTheLabelsOfTheMoment) {
    computeAll(1, 0);
    const Lines lines = printed(9, 1);
    EXPECT_EQ(lines[5], "Nombre maximal de tirages consécutifs sans sortir (Avec complémentaire)");
    EXPECT_EQ(lines[13], "01     03");
    EXPECT_TRUE(desktop.numberShowings.empty());
}

TEST_F(StatReport, WithoutAPrinterTheMessageComesAndNothingIsPrinted) {
    printers.names.clear();
    desktop.answerNo();
    computeAll(1, 0);
    modStats::PrintStats(1, 0, 1, 4, chooser);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2301");
    EXPECT_TRUE(printers.documents.empty());
}

TEST_F(StatReport, AReportOfARangeThatIsNotThereIsNotPrinted) {
    computeAll(1, 0);
    EXPECT_EQ(failureNumber([&] { modStats::PrintStats(1, 0, 1, 5, chooser); }), 9);
    for (const auto &document : printers.documents)
        EXPECT_FALSE(document.ended);
}

} // namespace
} // namespace boulix
