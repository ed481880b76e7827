// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/folderAdvice.h"

#include "core/fileAccess.h"
#include "support/boulixTest.h"
#include "support/saveTexts.h"
#include "support/withoutRights.h"

#include <filesystem>

namespace boulix {
namespace {

namespace fs = std::filesystem;

class FolderAdviceTest : public FreshProgramTest {
  protected:
    ~FolderAdviceTest() override { fs::permissions(folder(), fs::perms::owner_all); }

    void takeRightsAway() const { fs::permissions(folder(), static_cast<fs::perms>(0555)); }
    std::string advice() const {
        return "\r\nLe dossier " + folder() +
               " est protégé en écriture: copiez-le à un endroit où vous pouvez écrire, puis "
               "démarrez Boulix depuis cette copie.";
    }
};

TEST_F(FolderAdviceTest, AFolderWithoutRightsIsNamedWithWhatToDo) {
    takeRightsAway();
    const WithoutRights nobody;
    const auto failure = failureOf([this] { replaceFile(file("tirages.dbl"), "x"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 70);
    EXPECT_EQ(failure->description(),
              "Permission refusée : " + file("tirages.dbl") + advice() + saveTexts::notBegun);
}

TEST_F(FolderAdviceTest, AFileThatLiesThereAlreadyGetsTheSameSentence) {
    writeBytes(file("boulix.ini"), "a");
    fs::permissions(file("boulix.ini"), static_cast<fs::perms>(0644));
    takeRightsAway();
    {
        const WithoutRights nobody;
        const auto failure = failureOf([this] { replaceFile(file("boulix.ini"), "x"); });
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->description(),
                  "Permission refusée : " + file("boulix.ini") + advice() + saveTexts::notBegun);
    }
    EXPECT_EQ(readBytes(file("boulix.ini")), "a");
}

TEST_F(FolderAdviceTest, AFileThatCannotBeReadIsItsOwnMatterInAnyFolder) {
    writeBytes(file("tirages.dbl"), "a");
    fs::permissions(file("tirages.dbl"), fs::perms::none);
    takeRightsAway();
    const WithoutRights nobody;
    const auto failure = failureOf([this] { readFile(file("tirages.dbl")); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->description(), "Permission refusée : " + file("tirages.dbl"));
}

TEST_F(FolderAdviceTest, AProtectedFileInAFolderWithRightsIsTheFilesOwnMatter) {
    writeBytes(file("boulix.ini"), "a");
    fs::permissions(file("boulix.ini"), fs::perms::owner_read);
    const auto failure = failureOf([this] { replaceFile(file("boulix.ini"), "x"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->description(), "Permission refusée : " + file("boulix.ini") +
                                          saveTexts::notBegun + saveTexts::otherFolder);
}

TEST_F(FolderAdviceTest, AnotherFolderThanThatOfTheProgramIsTheUsersOwnMatter) {
    const testing_support::TemporaryFolder elsewhere;
    fs::permissions(elsewhere.path(), fs::perms::owner_read | fs::perms::owner_exec);
    {
        const WithoutRights nobody;
        EXPECT_EQ(folderAdvice(elsewhere.file("jeu.lst")), "");
    }
    fs::permissions(elsewhere.path(), fs::perms::owner_all);
    EXPECT_EQ(folderAdvice("jeu.lst"), "");
    EXPECT_EQ(folderAdvice(""), "");
}

TEST_F(FolderAdviceTest, WithoutAPlatformThereIsNoFolderToAdviseOn) {
    setPlatform(nullptr);
    EXPECT_EQ(folderAdvice(platform.applicationFolder() + "/tirages.dbl"), "");
    setPlatform(&platform);
}

} // namespace
} // namespace boulix
