// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include "support/recordingPrinters.h"

#include <gtest/gtest.h>
#include <limits>

namespace boulix {
namespace {

const DrawOf draws[] = {{37632, 1, {2, 3, 5, 7, 11, 13, 17}},
                        {37636, 1, {1, 4, 22, 30, 41, 49, 8}},
                        {37639, 2, {6, 9, 12, 33, 38, 47, 25}},
                        {37643, 1, {-1, 0, 100, 4, 5, 6, 7}}};
const std::string headerLine = "Date;Tirage;N1;N2;N3;N4;N5;N6;Compl\xE9mentaire\r\n";

class DrawExport : public DrawsTest {
  protected:
    std::string exported() {
        desktop.answerSave(file("base.txt"));
        gDbCombs->ExportDB();
        return readBytes(file("base.txt"));
    }
};

TEST_F(DrawExport, AsksForAFile) {
    desktop.cancelSave();
    gDbCombs->ExportDB();
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].filter,
              "Fichier Texte Base de données Boulix (*.txt)|*.txt");
    EXPECT_EQ(desktop.saveQuestions[0].title, "Exportation de la base de données en fichier texte");
}

TEST_F(DrawExport, OfAnEmptyBaseIsTheHeaderLineAlone) {
    EXPECT_EQ(exported(), headerLine);
}

TEST_F(DrawExport, WritesOneLinePerDrawInCollectionOrder) {
    add(draws[2]);
    add(draws[0]);
    add(draws[3]);
    EXPECT_EQ(exported(), headerLine + "18-01-2003;2;6;9;12;33;38;47;25\r\n"
                                       "11-01-2003;1;2;3;5;7;11;13;17\r\n"
                                       "22-01-2003;1;-1;0;100;4;5;6;7\r\n");
}

TEST_F(DrawExport, UsesTheShortDateFormOfTheSystem) {
    platform.shortForm = [](Date) { return "11 févr. €"; };
    add(draws[0]);
    EXPECT_EQ(exported(), headerLine + "11 f\xE9vr. \x80;1;2;3;5;7;11;13;17\r\n");
}

TEST_F(DrawExport, ReplacesAFileWithoutAQuestion) {
    writeBytes(file("base.txt"), std::string(5000, 'x'));
    add(draws[0]);
    EXPECT_EQ(exported(), headerLine + "11-01-2003;1;2;3;5;7;11;13;17\r\n");
    EXPECT_TRUE(desktop.questions.empty());
}

TEST_F(DrawExport, ChangesNothingInTheBase) {
    add(draws[1]);
    add(draws[0]);
    const auto before = rows();
    exported();
    EXPECT_EQ(rows(), before);
    EXPECT_FALSE(testing_support::fileExists(baseFile()));
}

TEST_F(DrawExport, FailsOnADayThatIsNoDateAndWritesNothing) {
    add({std::numeric_limits<double>::quiet_NaN(), 1, {}});
    desktop.answerSave(file("base.txt"));
    EXPECT_EQ(failureNumber([] { gDbCombs->ExportDB(); }), 6);
    EXPECT_FALSE(testing_support::fileExists(file("base.txt")));
}

TEST_F(DrawExport, FailsOnAFolderThatIsNotThere) {
    desktop.answerSave(file("nowhere/base.txt"));
    EXPECT_NE(failureNumber([] { gDbCombs->ExportDB(); }), 0);
}

TEST_F(DrawExport, FailsOnAFolderAsTheFile) {
    desktop.answerSave(folder());
    const auto failure = failureOf([] { gDbCombs->ExportDB(); });
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->description().find(folder()), std::string::npos) << failure->description();
}

TEST_F(DrawExport, CannotBeImportedAgain) {
    add(draws[0]);
    const std::string bytes = exported();
    EXPECT_FALSE(importBytes(bytes));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2701");
}

class DrawPrinting : public DrawsTest {
  protected:
    DrawPrinting() { setPrinterSystem(&printers); }
    ~DrawPrinting() override { setPrinterSystem(nullptr); }

    std::vector<std::string> printedLines() {
        gDbCombs->PrintDB();
        const auto &document = printers.onlyDocument();
        EXPECT_TRUE(document.ended);
        return document.lines();
    }
    /// The banner and the title, then `lines`.
    static std::vector<std::string> report(const std::vector<std::string> &lines) {
        const std::string stars(40, '*');
        std::vector<std::string> all = {stars, std::string(17, ' ') + "boulix",          stars,
                                        "",    "Base de données imprimée le 15/11/2026", ""};
        all.insert(all.end(), lines.begin(), lines.end());
        return all;
    }

    testing_support::RecordingPrinters printers;
};

const std::string threeEntries = "0001) 11-01-2003 - (1) 02 03 05 07 11 13 (17) --- "
                                 "0002) 15-01-2003 - (1) 01 04 22 30 41 49 (08) --- "
                                 "0003) 18-01-2003 - (2) 06 09 12 33 38 47 (25)";

TEST_F(DrawPrinting, OfAnEmptyBaseIsTheBannerAndTheTitle) {
    EXPECT_EQ(printedLines(), report({}));
}

TEST_F(DrawPrinting, PutsThreeDrawsOnALine) {
    for (std::size_t i = 0; i < 3; ++i)
        add(draws[i]);
    EXPECT_EQ(printedLines(), report({threeEntries}));
}

TEST_F(DrawPrinting, PutsAFourthDrawOnALineOfItsOwn) {
    for (const DrawOf &draw : draws)
        add(draw);
    EXPECT_EQ(printedLines(),
              report({threeEntries, "0004) 22-01-2003 - (1) -01 00 100 04 05 06 (07)"}));
}

TEST_F(DrawPrinting, PutsTwoDrawsThatAreLeftOnOneLine) {
    for (std::size_t i = 0; i < 5; ++i)
        add(draws[i % 3]);
    EXPECT_EQ(printedLines(),
              report({threeEntries, "0004) 11-01-2003 - (1) 02 03 05 07 11 13 (17) --- "
                                    "0005) 15-01-2003 - (1) 01 04 22 30 41 49 (08)"}));
}

TEST_F(DrawPrinting, NumbersDrawsOnFourDigitsAndMore) {
    for (int i = 0; i < 10'000; ++i)
        add(draws[0]);
    const std::vector<std::string> lines = printedLines();
    EXPECT_EQ(lines[report({}).size() + 411].substr(0, 6), "1234) ");
    EXPECT_EQ(lines.back(), "10000) 11-01-2003 - (1) 02 03 05 07 11 13 (17)");
}

TEST_F(DrawPrinting, SetsTheDrawsInAFontOfEightPoints) {
    add(draws[0]);
    printedLines();
    const auto texts = printers.onlyDocument().ofKind(testing_support::Drawn::text);
    for (const auto &text : texts)
        EXPECT_EQ(text.points, text.words.substr(0, 4) == "0001" ? 8 : 10) << text.words;
}

TEST_F(DrawPrinting, WithoutAPrinterPrintsNothing) {
    printers.names.clear();
    desktop.answerNo();
    add(draws[0]);
    gDbCombs->PrintDB();
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {"Impossible d'imprimer, aucune imprimante est installée sur votre ordinateur!"
                   "\r\nou l'imprimante est mal configurée.",
                   Icon::information, "boulix: Erreur N° 2301"}}));
    EXPECT_TRUE(printers.documents.empty());
}

TEST_F(DrawPrinting, GivesTheDocumentUpOnADayThatIsNoDate) {
    add(draws[0]);
    add({std::numeric_limits<double>::quiet_NaN(), 1, {}});
    EXPECT_EQ(failureNumber([] { gDbCombs->PrintDB(); }), 6);
    EXPECT_TRUE(printers.onlyDocument().dropped);
}

} // namespace
} // namespace boulix
