// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/fileHead.h"
#include "files/slotFile.h"
#include "gameTest.h"

#include <filesystem>

namespace boulix {
namespace {

class GameFileTest : public GameTest {
  protected:
    void saveAs(const std::string &name) {
        desktop.answerSave(file(name));
        grids.save();
    }
    void loadFrom(const std::string &name) {
        desktop.answerOpen(file(name));
        grids.load();
    }
    /// `count` different grids.
    void fillMany(int count) {
        for (int i = 1; i <= count; ++i)
            fill({{static_cast<std::int16_t>(i), static_cast<std::int16_t>(2 * i), 3, 4, 5, 6}});
    }
    /// The bytes of a saved game of `count` grids.
    std::string savedBytes(int count) {
        grids.clear();
        fillMany(count);
        std::filesystem::remove(file("jeu.lst"));
        saveAs("jeu.lst");
        return readBytes(file("jeu.lst"));
    }
};

TEST_F(GameFileTest, TheDialogsAreAskedWithTheirTitles) {
    desktop.cancelSave();
    grids.save();
    desktop.cancelOpen();
    grids.load();
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].title, "Sauvegarde d'un fichier jeu");
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Fichier jeu Boulix (*.lst)|*.lst");
    ASSERT_EQ(desktop.openQuestions.size(), 1U);
    EXPECT_EQ(desktop.openQuestions[0].title, "Ouverture d'un fichier jeu");
    EXPECT_EQ(desktop.openQuestions[0].filter, "Fichier jeu Boulix (*.lst)|*.lst");
}

TEST_F(GameFileTest, EachGridLiesInASlotWithItsNumbersAndSum) {
    fill({{1, 2, 3, 4, 5, 6}, {44, 45, 46, 47, 48, 49}});
    grids.Item(2).sum(-7);
    saveAs("jeu.lst");
    const std::string bytes = readBytes(file("jeu.lst"));
    ASSERT_EQ(bytes.size(), 270U);
    EXPECT_EQ(readInt16(bytes, 64), 2);
    const std::vector<int> expected[] = {{1, 2, 3, 4, 5, 6, 21}, {44, 45, 46, 47, 48, 49, -7}};
    for (std::size_t grid = 0; grid < 2; ++grid)
        for (std::size_t i = 0; i < 7; ++i)
            EXPECT_EQ(readInt16(bytes, 128 * (grid + 1) + 2 * i), expected[grid][i]);
}

TEST_F(GameFileTest, ASaveAndALoadKeepTheNumbersAndDropTheSums) {
    fillMany(57);
    const Grids before = contents();
    saveAs("jeu.lst");
    grids.clear();
    loadFrom("jeu.lst");
    EXPECT_EQ(contents(), before);
    for (const gameComb &grid : grids)
        EXPECT_EQ(grid.sum(), 0);
}

TEST_F(GameFileTest, AnEmptyGameIsItsHeaderAloneAndLoadsAsNothing) {
    EXPECT_EQ(savedBytes(0).size(), 86U);
    fill({{1, 2, 3, 4, 5, 6}});
    loadFrom("jeu.lst");
    EXPECT_EQ(grids.Count(), 1);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(GameFileTest, AGameOfOneGridIsSavedWellAndLoadsAsNothing) {
    EXPECT_EQ(savedBytes(1).size(), 142U);
    grids.clear();
    loadFrom("jeu.lst");
    EXPECT_EQ(grids.Count(), 0);
}

TEST_F(GameFileTest, AGameOfTwoGridsIs270BytesLongAndLoadsTwo) {
    EXPECT_EQ(savedBytes(2).size(), 270U);
    grids.clear();
    loadFrom("jeu.lst");
    EXPECT_EQ(grids.Count(), 2);
}

TEST_F(GameFileTest, AFilledOutLastSlotGivesOneGridOfZerosMore) {
    writeBytes(file("jeu.lst"), savedBytes(3) + std::string(128 - 14, '\0'));
    grids.clear();
    loadFrom("jeu.lst");
    ASSERT_EQ(grids.Count(), 4);
    EXPECT_EQ(grids.Item(4).numbers(), (Numbers{}));
}

TEST_F(GameFileTest, LoadingAddsToTheGame) {
    savedBytes(2);
    loadFrom("jeu.lst");
    EXPECT_EQ(grids.Count(), 4);
}

TEST_F(GameFileTest, AnExistingFileIsReplacedOnlyOnYes) {
    savedBytes(3);
    fillMany(1);
    desktop.answerNo();
    saveAs("jeu.lst");
    EXPECT_EQ(readBytes(file("jeu.lst")).size(), 128U * 3 + 14);
    desktop.answerYes();
    saveAs("jeu.lst");
    EXPECT_EQ(readBytes(file("jeu.lst")).size(), 128U * 4 + 14);
    const ShownBox question = {
        "Le fichier jeu.lst existe déjà. Etes-vous sûr de vouloir le remplacer?", Icon::question,
        "boulix"};
    EXPECT_EQ(desktop.questions, (std::vector<ShownBox>{question, question}));
}

TEST_F(GameFileTest, TheProgressWindowFollowsTheTens) {
    savedBytes(25);
    desktop.progressRuns.clear();
    loadFrom("jeu.lst");
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    const auto &run = desktop.progressRuns[0];
    ASSERT_EQ(run.turns, 2);
    EXPECT_EQ(run.steps[0].caption, "Chargement d'un jeu");
    EXPECT_EQ(run.steps[0].lblInfo, "Chargement du jeu en cours...");
    EXPECT_EQ(run.steps[0].ProgressBar.min, 1);
    EXPECT_EQ(run.steps[0].ProgressBar.max, 26);
    EXPECT_EQ(run.steps[0].ProgressBar.value, 1);
    EXPECT_FALSE(run.steps[0].ProgressBar2.visible);
    EXPECT_EQ(run.last.ProgressBar.value, 20);
}

TEST_F(GameFileTest, TheProgressWindowFollowsASaveThatNobodyCanCancel) {
    constexpr int block = 8192; // grids that are written together
    fill(Grids(2 * block + 1, {1, 2, 3, 4, 5, 6}));
    saveAs("jeu.lst");
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    const auto &run = desktop.progressRuns[0];
    ASSERT_EQ(run.turns, 3);
    EXPECT_EQ(run.steps[0].caption, "Sauvegarde d'un jeu");
    EXPECT_EQ(run.steps[0].lblInfo, "Sauvegarde du jeu en cours...");
    EXPECT_EQ(run.steps[0].ProgressBar.min, 1);
    EXPECT_EQ(run.steps[0].ProgressBar.max, 2 * block + 1);
    EXPECT_FALSE(run.steps[0].ProgressBar2.visible);
    EXPECT_FALSE(run.steps[0].cancelVisible);
    EXPECT_EQ(run.steps[0].ProgressBar.value, block);
    EXPECT_EQ(run.steps[1].ProgressBar.value, 2 * block);
    EXPECT_EQ(run.steps[2].ProgressBar.value, 2 * block + 1);
    EXPECT_TRUE(run.unloaded);
    EXPECT_EQ(readBytes(file("jeu.lst")).size(), 128U * (2 * block + 1) + 14);
}

TEST_F(GameFileTest, AGameOfWholeBlocksOrOneGridMoreOrLessIsWrittenToItsLastByte) {
    for (const int count : {8191, 8192, 8193}) {
        grids.clear();
        fillMany(count);
        saveAs("jeu" + std::to_string(count) + ".lst");
        const Grids before = contents();
        grids.clear();
        loadFrom("jeu" + std::to_string(count) + ".lst");
        EXPECT_EQ(contents(), before) << count;
    }
}

TEST_F(GameFileTest, CancellingALoadEmptiesTheGameWithWhatItHeldBefore) {
    savedBytes(30);
    desktop.cancelProgressAt(2);
    loadFrom("jeu.lst");
    EXPECT_EQ(grids.Count(), 0);
    EXPECT_EQ(desktop.progressRuns.back().turns, 2);
}

TEST_F(GameFileTest, NumbersAreTakenAsTheyStand) {
    fill({{-3, 0, 50, 9, 9, 32000}, {0, 0, 0, 0, 0, 0}});
    const Grids before = contents();
    saveAs("jeu.lst");
    grids.clear();
    loadFrom("jeu.lst");
    EXPECT_EQ(contents(), before);
}

TEST_F(GameFileTest, AFileOfAnotherTypeIsRefusedAndTheGameStays) {
    for (const int other : {0, 1, 3, 4, 5, 6, 7}) {
        std::string bytes = savedBytes(5);
        bytes[64] = static_cast<char>(other);
        writeBytes(file("autre.lst"), bytes);
        desktop.messages.clear();
        loadFrom("autre.lst");
        EXPECT_EQ(grids.Count(), 5);
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4402");
    }
}

TEST_F(GameFileTest, AFileCutAnywhereLoadsTheGridsItsLengthStandsForOrIsRefused) {
    const std::string bytes = savedBytes(4);
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        writeBytes(file("coupe.lst"), bytes.substr(0, length));
        grids.clear();
        desktop.messages.clear();
        loadFrom("coupe.lst");
        // Once the header is whole the count follows from the length, ties to even.
        const int slots = static_cast<int>(length / 128) + (length % 128 > 64 ? 1 : 0) +
                          (length % 128 == 64 && length / 128 % 2 == 1 ? 1 : 0);
        EXPECT_EQ(grids.Count(), slots > 1 ? slots : 0) << length;
        EXPECT_EQ(desktop.messages.size(), length < fileHead::recordSize ? 1U : 0U) << length;
    }
}

TEST_F(GameFileTest, AMissingFileAFolderOrAnUnreadableNameIsARunTimeFailureAndTheGameStays) {
    fillMany(2);
    EXPECT_EQ(failureNumber([&] { loadFrom("absent.lst"); }), 53);
    std::filesystem::create_directory(file("dossier.lst"));
    EXPECT_NE(failureNumber([&] { loadFrom("dossier.lst"); }), 0);
    EXPECT_EQ(grids.Count(), 2);
}

TEST_F(GameFileTest, AFullDiskIsARunTimeFailureAndTheGameStays) {
    fillMany(2000);
    desktop.answerYes();
    desktop.answerSave("/dev/full");
    EXPECT_EQ(failureNumber([&] { grids.save(); }), 61);
    EXPECT_EQ(grids.Count(), 2000);
}

} // namespace
} // namespace boulix
