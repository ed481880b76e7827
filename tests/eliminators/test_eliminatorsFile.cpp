// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "eliminators/eliminators.h"

#include "core/globals.h"
#include "files/slotFile.h"
#include "sill/appInfo.h"
#include "support/boulixTest.h"

#include <filesystem>

namespace boulix {
namespace {

class EliminatorsFileTest : public BoulixTest {
  protected:
    EliminatorsFileTest() {
        rules.init();
        rules.Item(3).status(-1);
        rules.Item(3).Value(100);
        rules.Item(8).status(-1);
        for (const int n : {7, 13, 49})
            rules.Item(8).eliminNbr(n, -1);
    }

    bool saveAs(const std::string &name) {
        desktop.answerSave(file(name));
        return rules.save();
    }
    bool loadFrom(const std::string &name) {
        desktop.answerOpen(file(name));
        return rules.load();
    }
    /// The bytes of the file that the rules of this test are saved as.
    std::string savedBytes() {
        saveAs("regles.elm");
        return readBytes(file("regles.elm"));
    }

    eliminators rules;
};

TEST_F(EliminatorsFileTest, TheDialogsAreAskedWithTheirTitlesOneSingularOnePlural) {
    desktop.cancelSave();
    EXPECT_FALSE(rules.save());
    desktop.cancelOpen();
    EXPECT_FALSE(rules.load());
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].title, "Sauvegarde d'un fichier éliminateur");
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Fichier éliminateur Boulix (*.elm)|*.elm");
    ASSERT_EQ(desktop.openQuestions.size(), 1U);
    EXPECT_EQ(desktop.openQuestions[0].title, "Ouverture d'un fichier éliminateurs");
    EXPECT_EQ(desktop.openQuestions[0].filter, "Fichier éliminateur Boulix (*.elm)|*.elm");
}

TEST_F(EliminatorsFileTest, ANewFileHasTheStatedLengthAndLayout) {
    const std::string bytes = savedBytes();
    ASSERT_EQ(bytes.size(), 14596U);
    EXPECT_EQ(bytes.substr(0, 32), "boulix                          ");
    EXPECT_EQ(readInt16(bytes, 64), 4);
    // The third rule in the fourth slot: length, label in single bytes, value, range, status.
    const std::string label =
        "Eliminer les combinaisons dont la somme des num\xE9ros est inf\xE9rieure \xE0";
    const std::size_t at = 3 * 256;
    ASSERT_EQ(readInt16(bytes, at), static_cast<std::int16_t>(label.size()));
    EXPECT_EQ(bytes.substr(at + 2, label.size()), label);
    const std::size_t fields = at + 2 + label.size();
    EXPECT_EQ(readInt16(bytes, fields), 100);
    EXPECT_EQ(readInt16(bytes, fields + 2), 21);
    EXPECT_EQ(readInt16(bytes, fields + 4), 279);
    EXPECT_EQ(readInt16(bytes, fields + 6), -1);
    for (int n = 1; n <= 49; ++n) {
        const std::size_t flag = static_cast<std::size_t>(n + 8) * 256;
        EXPECT_EQ(readInt16(bytes, flag), 11) << n;
        EXPECT_EQ(readInt16(bytes, flag + 2), n == 7 || n == 13 || n == 49 ? -1 : 0) << n;
    }
}

TEST_F(EliminatorsFileTest, TheFlagsAreSavedBehindTheRulesHoweverManyThereAre) {
    rules.Add("La neuvième", 1, 2, 3, 0);
    const std::string bytes = savedBytes();
    ASSERT_EQ(bytes.size(), 58U * 256 + 4);
    EXPECT_EQ(bytes.substr(9 * 256 + 2, 11), "La neuvi\xE8me");
    for (int n = 1; n <= 49; ++n) {
        const std::size_t flag = static_cast<std::size_t>(n + 9) * 256;
        EXPECT_EQ(readInt16(bytes, flag), 11) << n;
        EXPECT_EQ(readInt16(bytes, flag + 2), n == 7 || n == 13 || n == 49 ? -1 : 0) << n;
    }
}

TEST_F(EliminatorsFileTest, ASaveAndALoadKeepEverythingButTheListWhichComesBackFull) {
    rules.Item(5).label("Règle rebaptisée à l'œuvre");
    rules.Item(5).ValMin(-3);
    saveAs("regles.elm");
    eliminators loaded;
    desktop.answerOpen(file("regles.elm"));
    EXPECT_TRUE(loaded.load());
    ASSERT_EQ(loaded.Count(), 8);
    for (int i = 1; i <= 8; ++i) {
        EXPECT_EQ(loaded.Item(i).label(), rules.Item(i).label());
        EXPECT_EQ(loaded.Item(i).Value(), rules.Item(i).Value());
        EXPECT_EQ(loaded.Item(i).ValMin(), rules.Item(i).ValMin());
        EXPECT_EQ(loaded.Item(i).ValMax(), rules.Item(i).ValMax());
        EXPECT_EQ(loaded.Item(i).status(), rules.Item(i).status());
    }
    for (int n = 1; n <= 49; ++n)
        EXPECT_EQ(loaded.Item(8).eliminNbr(n), 11) << n;
    EXPECT_EQ(loaded.Item(1).eliminNbr(7), 0);
}

TEST_F(EliminatorsFileTest, ASavedLoadedListIsSavedAsPlainFlags) {
    savedBytes();
    loadFrom("regles.elm");
    const std::string again = savedBytes();
    EXPECT_EQ(readInt16(again, 9 * 256 + 2), -1);
}

TEST_F(EliminatorsFileTest, ALoadForgetsTheKeysOfTheRulesBefore) {
    savedBytes();
    eliminators keyed;
    keyed.Add("avant", 0, 0, 0, 0, "clef");
    desktop.answerOpen(file("regles.elm"));
    EXPECT_TRUE(keyed.load());
    EXPECT_EQ(failureNumber([&] { keyed.Item("clef"); }), 5);
}

TEST_F(EliminatorsFileTest, SavingOverALongerFileLeavesNothingOfIt) {
    writeBytes(file("regles.elm"), std::string(20000, 'x'));
    EXPECT_EQ(savedBytes().size(), 14596U);
}

TEST_F(EliminatorsFileTest, CancellingTheOpenDialogLeavesTheRulesAsTheyWere) {
    desktop.cancelOpen();
    EXPECT_FALSE(rules.load());
    ASSERT_EQ(rules.Count(), 8);
    EXPECT_EQ(rules.Item(3).Value(), 100);
    EXPECT_EQ(rules.Item(8).eliminNbr(13), -1);
}

TEST_F(EliminatorsFileTest, AFileOfAnotherTypeLeavesNoRulesAtAll) {
    for (const int other : {1, 2, 3, 5, 6, 7}) {
        std::string bytes = savedBytes();
        bytes[64] = static_cast<char>(other);
        writeBytes(file("autre.elm"), bytes);
        rules.init();
        desktop.messages.clear();
        EXPECT_FALSE(loadFrom("autre.elm"));
        EXPECT_EQ(rules.Count(), 0);
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4402");
        rules.init();
    }
}

TEST_F(EliminatorsFileTest, AFileCutAnywhereInItsFirstBytesIsRefusedOrARunTimeFailure) {
    const std::string bytes = savedBytes();
    for (std::size_t length = 0; length <= 400; ++length) {
        writeBytes(file("coupe.elm"), bytes.substr(0, length));
        desktop.messages.clear();
        bool loaded = true;
        const int failure = failureNumber([&] { loaded = loadFrom("coupe.elm"); });
        if (failure == 0) {
            EXPECT_FALSE(loaded) << length;
            EXPECT_EQ(desktop.messages.size(), 1U) << length;
        } else {
            EXPECT_EQ(failure, 62) << length;
            EXPECT_LE(rules.Count(), 1) << length;
        }
    }
}

TEST_F(EliminatorsFileTest, AFileCutAtAnyLaterPlaceIsARunTimeFailure) {
    const std::string bytes = savedBytes();
    for (std::size_t length = 401; length + 4 < bytes.size(); length += 97) {
        writeBytes(file("coupe.elm"), bytes.substr(0, length));
        EXPECT_EQ(failureNumber([&] { loadFrom("coupe.elm"); }), 62) << length;
    }
}

TEST_F(EliminatorsFileTest, ALabelLengthThatLiesIsARunTimeFailure) {
    for (const int length : {247, 256, 32767, 65535}) {
        std::string bytes = savedBytes();
        std::string lie;
        appendInt16(lie, static_cast<std::int16_t>(length));
        bytes.replace(256, 2, lie);
        writeBytes(file("menteur.elm"), bytes);
        EXPECT_EQ(failureNumber([&] { loadFrom("menteur.elm"); }), 59) << length;
        EXPECT_EQ(rules.Count(), 0);
        rules.init();
    }
}

TEST_F(EliminatorsFileTest, ALabelThatDoesNotFitItsSlotIsNotSavedAndTheOldFileStays) {
    const std::string before = savedBytes();
    rules.Item(2).label(std::string(246, 'a'));
    EXPECT_TRUE(saveAs("long.elm"));
    rules.Item(2).label(std::string(247, 'a'));
    EXPECT_EQ(failureNumber([&] { saveAs("regles.elm"); }), 59);
    EXPECT_EQ(readBytes(file("regles.elm")), before);
}

TEST_F(EliminatorsFileTest, AMissingFileOrAFolderIsARunTimeFailureAfterTheRulesWent) {
    EXPECT_EQ(failureNumber([&] { loadFrom("absent.elm"); }), 53);
    EXPECT_EQ(rules.Count(), 0);
    std::filesystem::create_directory(file("dossier.elm"));
    EXPECT_NE(failureNumber([&] { loadFrom("dossier.elm"); }), 0);
}

TEST_F(EliminatorsFileTest, SavingASetWithoutRulesIsARunTimeFailureAndWritesNothing) {
    eliminators empty;
    desktop.answerSave(file("vide.elm"));
    EXPECT_EQ(failureNumber([&] { empty.save(); }), 9);
    EXPECT_FALSE(fileExists(file("vide.elm")));
}

TEST_F(EliminatorsFileTest, AFullDiskIsARunTimeFailureAndTheRulesStay) {
    desktop.answerSave("/dev/full");
    EXPECT_EQ(failureNumber([&] { rules.save(); }), 61);
    EXPECT_EQ(rules.Count(), 8);
}

TEST_F(EliminatorsFileTest, TheFileLastLoadedIsKeptAndNamedWhereItIsRefused) {
    std::string bytes = savedBytes();
    writeBytes(file("copie.elm"), bytes);
    EXPECT_TRUE(loadFrom("copie.elm"));
    EXPECT_EQ(rules.file().name(), "copie.elm");
    bytes[64] = 5;
    writeBytes(file("autre.elm"), bytes);
    EXPECT_FALSE(loadFrom("autre.elm"));
    EXPECT_EQ(rules.file().name(), "autre.elm");
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Impossible de charger le fichier autre.elm du répertoire " +
                                          folder() + "/\r\nLe type de fichier n'est pas correct!",
                                      Icon::information, "boulix: Erreur N° 4402"}}));
}

TEST_F(EliminatorsFileTest, TheFileLastUsedIsKept) {
    saveAs("regles.elm");
    EXPECT_EQ(rules.file().name(), "regles.elm");
    EXPECT_EQ(rules.file().head().typ(), 4);
}

} // namespace
} // namespace boulix
