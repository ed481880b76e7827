// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/modFileSelector.h"

#include "files/slotFile.h"
#include "files/xFile.h"
#include "sill/modMain.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

constexpr const char *filter = "Fichier jeu Boulix (*.lst)|*.lst";

class FileSelector : public BoulixTest {};

TEST_F(FileSelector, OpensInTheCurrentFolderWithFilterAndTitle) {
    desktop.answerOpen(file("a.lst"));
    EXPECT_EQ(modFileSelector::openDialog(filter, "Ouverture d'un fichier jeu"), file("a.lst"));
    ASSERT_EQ(desktop.openQuestions.size(), 1U);
    EXPECT_EQ(desktop.openQuestions[0].filter, filter);
    EXPECT_EQ(desktop.openQuestions[0].title, "Ouverture d'un fichier jeu");
    EXPECT_EQ(desktop.openQuestions[0].folder, lastUsedFolder());
}

TEST_F(FileSelector, SavesInTheCurrentFolderWithFilterAndTitle) {
    desktop.answerSave(file("a.lst"));
    EXPECT_EQ(modFileSelector::saveDialog(filter, "Sauvegarde d'un fichier jeu"), file("a.lst"));
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].filter, filter);
    EXPECT_EQ(desktop.saveQuestions[0].title, "Sauvegarde d'un fichier jeu");
    EXPECT_EQ(desktop.saveQuestions[0].folder, lastUsedFolder());
}

TEST_F(FileSelector, TheNextDialogOfAnyKindOpensInTheFolderOfTheLastFile) {
    desktop.answerOpen("/ailleurs/mes jeux/été.lst");
    desktop.answerSave("/plus loin/b.lst");
    desktop.cancelOpen();
    modFileSelector::openDialog(filter, "a");
    EXPECT_EQ(modMain::gCurrentDir, "/ailleurs/mes jeux/");
    modFileSelector::saveDialog(filter, "b");
    modFileSelector::openDialog(filter, "c");
    EXPECT_EQ(desktop.saveQuestions.at(0).folder, "/ailleurs/mes jeux/");
    EXPECT_EQ(desktop.openQuestions.at(1).folder, "/plus loin/");
}

TEST_F(FileSelector, ACancelledDialogGivesNothingAndLeavesTheFolder) {
    desktop.cancelOpen();
    desktop.cancelSave();
    EXPECT_EQ(modFileSelector::openDialog(filter, "a"), "");
    EXPECT_EQ(modFileSelector::saveDialog(filter, "b"), "");
    EXPECT_EQ(modMain::gCurrentDir, lastUsedFolder());
}

class OverwriteRule : public BoulixTest {
  protected:
    OverwriteRule() { game.fullName(file("mon jeu.lst")); }
    xFile game;
    const ShownBox question{
        "Le fichier mon jeu.lst existe déjà. Etes-vous sûr de vouloir le remplacer?",
        Icon::question, "boulix"};
};

TEST_F(OverwriteRule, AFileThatIsNotThereIsWrittenWithoutAQuestion) {
    EXPECT_TRUE(modFileSelector::mayReplace(game, "boulix"));
    EXPECT_TRUE(desktop.questions.empty());
}

TEST_F(OverwriteRule, AFileThatIsThereIsReplacedAfterAYes) {
    writeBytes(game.fullName(), "");
    desktop.answerYes();
    EXPECT_TRUE(modFileSelector::mayReplace(game, "boulix"));
    EXPECT_EQ(desktop.questions, std::vector<ShownBox>{question});
}

TEST_F(OverwriteRule, AFileThatIsThereStaysAfterANo) {
    writeBytes(game.fullName(), "");
    desktop.answerNo();
    EXPECT_FALSE(modFileSelector::mayReplace(game, "boulix"));
    EXPECT_EQ(desktop.questions, std::vector<ShownBox>{question});
}

} // namespace
} // namespace boulix
