// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Games, definitions and rules on disks that are full or can not be written.

#include "eliminators/eliminators.h"
#include "files/xFile.h"
#include "gameTest.h"
#include "games/gameDef.h"
#include "support/smallDisk.h"

#include <filesystem>

namespace boulix {
namespace {

/// A disk of two pages: 8192 bytes hold a game of 63 grids.
class GamesOnASmallDisk : public GameTest {
  protected:
    void SetUp() override {
        if (!disk.mounted())
            GTEST_SKIP() << SmallDisk::whyNot;
    }
    void fillMany(int count) {
        for (int i = 0; i < count; ++i)
            fill({{1, 2, 3, 4, 5, 6}});
    }
    int saveFailure(bool replaces = false) {
        desktop.answerSave(disk.file("jeu.lst"));
        if (replaces)
            desktop.answerYes();
        return failureNumber([this] { grids.save(); });
    }

    SmallDisk disk{8192};
};

TEST_F(GamesOnASmallDisk, AGameThatFitsIsSavedAndALargerOneIsReported) {
    fillMany(63);
    EXPECT_EQ(saveFailure(), 0);
    const std::string before = readBytes(disk.file("jeu.lst"));
    fillMany(1);
    EXPECT_EQ(saveFailure(true), 61);
    EXPECT_EQ(grids.Count(), 64);
    EXPECT_EQ(readBytes(disk.file("jeu.lst")), before);
}

TEST_F(GamesOnASmallDisk, AReadOnlyDiskIsReadAndKeepsItsFile) {
    fillMany(5);
    EXPECT_EQ(saveFailure(), 0);
    const std::string before = readBytes(disk.file("jeu.lst"));
    disk.makeReadOnly();
    EXPECT_EQ(saveFailure(true), 70);
    EXPECT_EQ(readBytes(disk.file("jeu.lst")), before);
    desktop.answerOpen(disk.file("jeu.lst"));
    grids.load();
    EXPECT_EQ(grids.Count(), 10);
}

TEST_F(GamesOnASmallDisk, RulesThatDoNotFitAreReportedAndStay) {
    eliminators rules;
    rules.init();
    desktop.answerSave(disk.file("regles.elm")); // 14596 bytes
    EXPECT_EQ(failureNumber([&] { rules.save(); }), 61);
    disk.makeReadOnly();
    desktop.answerSave(disk.file("autres.elm"));
    EXPECT_EQ(failureNumber([&] { rules.save(); }), 70);
    EXPECT_EQ(rules.Count(), 8);
}

TEST_F(GamesOnASmallDisk, AnExportThatDoesNotFitIsReported) {
    gameDef def;
    for (int i = 0; i < 1000; ++i)
        def.addStrComb("1/2/3/4/5/6");
    desktop.answerSave(disk.file("modele.txt"));
    EXPECT_EQ(failureNumber([&] { def.exportText(); }), 61);
    EXPECT_EQ(def.nComb(), 1000);
}

TEST_F(GameTest, AWriteProtectedDefinitionFileIsReportedAndStays) {
    gameDef def;
    def.save(0, 0);
    const std::string before = readBytes(file("rgame-0.gam"));
    std::filesystem::permissions(file("rgame-0.gam"), std::filesystem::perms::owner_read);
    def.addStrComb("1/2/3/4/5/6");
    EXPECT_EQ(failureNumber([&] { def.save(-1, -1); }), 70);
    EXPECT_EQ(readBytes(file("rgame-0.gam")), before);
}

} // namespace
} // namespace boulix
