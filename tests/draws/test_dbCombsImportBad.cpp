// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace boulix {
namespace {

const DrawOf kept = {37622, 1, {1, 2, 3, 4, 5, 6, 7}, 21, 28}; // 1 January 2003
const std::string keptRow = "01/01/2003 (1) 1 2 3 4 5 6 + 7 = 21 28";
const std::string goodLine = "2;3;5;7;11;13;17;20030111;1";
const std::string goodRow = "11/01/2003 (1) 2 3 5 7 11 13 + 17 = 0 0";

/// A saved base of one draw, and files that nobody should import over it.
class BadImport : public DrawsTest {
  protected:
    BadImport() {
        writeBytes(baseFile(), drawsFile({kept}));
        gDbCombs->load();
    }
    /// The import broke off with this failure: the file of the base is as it was, the rows in
    /// memory are these, no progress window, no report by the import itself.
    void expectFailure(int number, const std::string &description,
                       const std::function<void()> &import,
                       const std::vector<std::string> &rowsAfter) {
        const auto failure = failureOf(import);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->number(), number);
        EXPECT_EQ(failure->description(), description);
        EXPECT_EQ(rows(), rowsAfter);
        EXPECT_EQ(baseFileBytes(), drawsFile({kept}));
        EXPECT_TRUE(desktop.mainWindowEnabled());
        EXPECT_TRUE(desktop.messages.empty());
    }
    /// A file whose second line is bad: the draw of the first one stays in memory.
    void expectBadLine(int number, const std::string &description, const std::string &line) {
        SCOPED_TRACE(line.substr(0, 100));
        expectFailure(number, description,
                      [&] {
                          importLines({goodLine, line, goodLine});
                      },
                      {keptRow, goodRow});
        gDbCombs->load();
    }
    /// The file was refused with number 2701 and nothing has changed.
    void expectNotRecognised(const std::string &bytes) {
        desktop.messages.clear();
        EXPECT_FALSE(importBytes(bytes));
        EXPECT_EQ(desktop.messages,
                  (std::vector<ShownBox>{{"Impossible de mettre à jour la base de données.\r\n"
                                          "Le fichier n'est pas reconnu!!!\r\n"
                                          "Veuillez contacter le support technique.",
                                          Icon::information, "boulix: Erreur N° 2701"}}));
        EXPECT_EQ(rows(), std::vector<std::string>{keptRow});
        EXPECT_EQ(baseFileBytes(), drawsFile({kept}));
    }
};

constexpr const char *tooFew = "L'indice n'appartient pas à la sélection";
constexpr const char *noDate = "Incompatibilité de type";
constexpr const char *tooBig = "Dépassement de capacité";
constexpr const char *noRange = "Valeur de propriété non valide";

TEST_F(BadImport, AHeaderWithoutOneOfTheColumnsIsNotRecognised) {
    for (const char *name : {"BOULE1", "BOULE2", "BOULE3", "BOULE4", "BOULE5", "BOULE6",
                             "BOULE_COMPLEMENTAIRE", "DATE_DE_TIRAGE", "1ER_OU_2EME_TIRAGE"}) {
        SCOPED_TRACE(name);
        std::string header = plainHeader;
        header.replace(header.find(name), std::string(name).size(), "AUTRE");
        expectNotRecognised(header + "\r\n" + goodLine + "\r\n");
    }
}

TEST_F(BadImport, AColumnNameThatIsOnlyNearlyRightIsNotRecognised) {
    for (const char *name : {"BOULE 1", "BOULE1.", "\tBOULE1", "BOULE_1", "1BOULE"}) {
        SCOPED_TRACE(name);
        std::string header = plainHeader;
        header.replace(0, 6, name);
        expectNotRecognised(header + "\r\n" + goodLine + "\r\n");
    }
}

TEST_F(BadImport, TheReportComesWhileTheProgressWindowIsUp) {
    bool enabled = true;
    desktop.onMessage = [&](const ShownBox &) { enabled = desktop.mainWindowEnabled(); };
    EXPECT_FALSE(importLines({goodLine}, "no header"));
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(desktop.mainWindowEnabled());
}

TEST_F(BadImport, ABinaryFileIsNotRecognised) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> byte(0, 255);
    std::string bytes;
    for (int i = 0; i < 100'000; ++i)
        bytes += static_cast<char>(byte(random));
    expectNotRecognised(bytes);
}

TEST_F(BadImport, AHeaderOfTenMegabytesIsNotRecognised) {
    expectNotRecognised(std::string(10'000'000, 'x') + "\r\n" + goodLine);
    expectNotRecognised(std::string(1'000'000, ';') + "\r\n" + goodLine);
}

TEST_F(BadImport, ALineOfTenMegabytesIsReadLikeAnyOther) {
    const std::string blanks(10'000'000, ' ');
    EXPECT_TRUE(importLines({goodLine + ";" + std::string(10'000'000, 'x')}));
    EXPECT_TRUE(importLines({goodLine + std::string(10'000'000, ';')}));
    EXPECT_TRUE(importLines({blanks + goodLine + blanks}));
    EXPECT_TRUE(importLines({blanks + goodLine.substr(0, 3) + blanks + goodLine.substr(3)}));
    EXPECT_EQ(rows(), (std::vector<std::string>{keptRow, goodRow}));
}

TEST_F(BadImport, ANumberOfTenMegabytesIsBeyondSixteenBits) {
    expectBadLine(6, tooBig, std::string(10'000'000, '9') + ";3;5;7;11;13;17;20030111;1");
}

TEST_F(BadImport, AColumnBeyondSixteenBitsFails) {
    expectFailure(
        6, tooBig,
        [&] { importLines({goodLine}, std::string(32767, ';') + std::string(plainHeader)); },
        {keptRow});
}

TEST_F(BadImport, ALineWithTooFewFieldsFails) {
    for (const char *line : {"2", "2;3;5;7;11;13;17;20030111", "2;3;5;7;11;13;17;20030111;"})
        expectBadLine(9, tooFew, line);
}

TEST_F(BadImport, AnEmptyLineInTheMiddleFails) {
    expectBadLine(9, tooFew, "");
    expectBadLine(9, tooFew, "    ");
}

TEST_F(BadImport, AnEmptyLineAtTheEndFails) {
    expectFailure(9, tooFew, [&] { importLines({goodLine, ""}); }, {keptRow, goodRow});
}

TEST_F(BadImport, ADateThatDoesNotExistFails) {
    for (const char *date : {"20030230", "20031311", "20030132", "00000000"})
        expectBadLine(13, noDate, std::string("2;3;5;7;11;13;17;") + date + ";1");
}

TEST_F(BadImport, ADateWithLettersOrWithoutAnythingFails) {
    for (const char *date : {"2003O111", "hier", "11/01/2003", "", " "})
        expectBadLine(13, noDate, std::string("2;3;5;7;11;13;17;") + date + ";1");
}

TEST_F(BadImport, AValueBeyondSixteenBitsFails) {
    expectBadLine(6, tooBig, "2;3;32768;7;11;13;17;20030111;1");
    expectBadLine(6, tooBig, "2;3;5;7;11;13;-32769;20030111;1");
    expectBadLine(6, tooBig, "2;3;5;7;11;13;17;20030111;70000");
}

TEST_F(BadImport, ANumberFieldThatIsEmptyOrAWordIsTakenAsZero) {
    EXPECT_TRUE(importLines({"2;;5;sept;11;13; ;20030111;un"}));
    EXPECT_EQ(rows(),
              (std::vector<std::string>{keptRow, "11/01/2003 (0) 2 0 5 0 11 13 + 0 = 0 0"}));
}

TEST_F(BadImport, AFileWithNoLineBehindItsHeaderFails) {
    for (const char *end : {"", "\r\n", "\n", "\r"}) {
        SCOPED_TRACE(end);
        expectFailure(380, noRange, [&] { importBytes(std::string(plainHeader) + end); },
                      {keptRow});
    }
}

TEST_F(BadImport, AnEmptyFileFails) {
    expectFailure(380, noRange, [&] { importBytes(""); }, {keptRow});
}

TEST_F(BadImport, AFileThatIsNotThereFails) {
    desktop.answerOpen(file("nowhere.txt"));
    expectFailure(53, "Fichier introuvable : " + file("nowhere.txt"),
                  [] { gDbCombs->ImportFdjFile(); }, {keptRow});
}

TEST_F(BadImport, AFolderInPlaceOfAFileFails) {
    desktop.answerOpen(folder());
    expectFailure(75, "Erreur d'accès au chemin/fichier : " + folder(),
                  [] { gDbCombs->ImportFdjFile(); }, {keptRow});
}

TEST_F(BadImport, AFileWithLfAloneFailsWhereTheLostCharacterIsMissed) {
    expectFailure(13, noDate,
                  [&] {
                      importBytes(
                          "DATE_DE_TIRAGE;1ER_OU_2EME_TIRAGE;BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;"
                          "BOULE6;BOULE_COMPLEMENTAIRE\n20030111;1;2;3;5;7;11;13;17\n");
                  },
                  {keptRow});
}

class SingleDrawImport : public DrawsTest {};

TEST_F(SingleDrawImport, FailsBehindTheSortAndSavesNothing) {
    gDbCombs->load();
    const std::string before = baseFileBytes();
    const auto failure = failureOf([&] { importLines({goodLine}); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 9);
    EXPECT_EQ(failure->description(), tooFew);
    EXPECT_EQ(rows(), std::vector<std::string>{goodRow});
    EXPECT_EQ(baseFileBytes(), before);
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    EXPECT_EQ(desktop.progressRuns[0].last.lblInfo, "elimination des doublons...");
    EXPECT_EQ(desktop.progressRuns[0].last.ProgressBar.max, 2);
    EXPECT_TRUE(desktop.progressRuns[0].unloaded);
}

TEST_F(SingleDrawImport, CanBeSavedByTheNextCommand) {
    failureOf([&] { importLines({goodLine}); });
    gDbCombs->Add(37632, 2, {}, true, "");
    EXPECT_EQ(baseFileBytes(), drawsFile({{37632, 1, {2, 3, 5, 7, 11, 13, 17}}, {37632, 2, {}}}));
}

} // namespace
} // namespace boulix
