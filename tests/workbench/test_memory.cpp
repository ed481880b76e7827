// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the program remembers from one run to the next, and where.

#include "core/globals.h"
#include "sill/modMain.h"
#include "support/boulixTest.h"
#include "workbench/frmMain.h"
#include "workbench/memory.h"

#include <chrono>
#include <filesystem>

namespace boulix {
namespace {

class MemoryTest : public BoulixTest {
  protected:
    std::string ini() const { return file("boulix.ini"); }
    Memory filled() const {
        Memory memory;
        memory.window = Area{-20, 30, 900, 700};
        memory.maximised = true;
        memory.tab = 4;
        memory.sources = {true, false, true};
        memory.folder = lastUsedFolder();
        memory.recentGames = {"/jeux/été.lst", "/jeux/ lundi .lst"};
        memory.columns = {{"lvwStatsResult", {{50}, {60, 70}}}, {"lvwGame", {{1, 2, 3}}}};
        return memory;
    }
};

TEST_F(MemoryTest, WithoutASettingsFileNothingIsRemembered) {
    EXPECT_EQ(Memory::read(), Memory());
    EXPECT_FALSE(std::filesystem::exists(ini()));
}

TEST_F(MemoryTest, WhatIsWrittenIsReadAtTheNextStart) {
    filled().write();
    EXPECT_EQ(Memory::read(), filled());
}

TEST_F(MemoryTest, TheOtherLinesOfTheFileStayAsTheyAre) {
    const std::string others = "; \xE0 moi\n[GRILLE]\n prix_grille = 0.75\nligne folle\n";
    writeBytes(ini(), others);
    filled().write();
    EXPECT_EQ(readBytes(ini()).substr(0, others.size()), others);
    Memory changed = filled();
    changed.tab = 2;
    changed.write();
    EXPECT_EQ(readBytes(ini()).substr(0, others.size()), others);
    EXPECT_EQ(Memory::read(), changed);
}

TEST_F(MemoryTest, WhatHasNotChangedIsNotWritten) {
    filled().write();
    const auto before = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    std::filesystem::last_write_time(ini(), before);
    filled().write();
    EXPECT_EQ(std::filesystem::last_write_time(ini()), before);
}

TEST_F(MemoryTest, AValueThatNoRunHasWrittenCountsAsNotRemembered) {
    writeBytes(ini(), "[fenetre]\ngauche=5\nhaut=x\nlargeur=900\nhauteur=700\nagrandie=oui\n"
                      "onglet=6\n[selecteurs]\nsource1=1\n[colonnes]\nlvwGame=1 -2;3 4x;5\n"
                      "lvwDBcomb= \n[jeux recents]\ndossier=/nulle/part/\njeu0=\n");
    Memory expected;
    expected.columns = {{"lvwGame", {{5}}}};
    EXPECT_EQ(Memory::read(), expected);
    for (const char *width : {"0", "-900", "1e3", "99999999999", "900 "}) {
        writeBytes(ini(), std::string("[fenetre]\ngauche=5\nhaut=5\nlargeur=\"") + width +
                              "\"\nhauteur=700\n");
        EXPECT_EQ(Memory::read(), Memory()) << width;
    }
}

TEST_F(MemoryTest, AFolderThatTakesNoFileKeepsNoMemoryAndNobodyIsTold) {
    std::filesystem::create_directory(ini()); // in the place of the file
    filled().write();
    EXPECT_EQ(Memory::read(), Memory());
}

TEST_F(MemoryTest, ANameThatTheFileCannotHoldIsForgotten) {
    Memory memory;
    memory.recentGames = {"/jeux/\u0416.lst", "/jeux/a.lst"};
    memory.write();
    EXPECT_EQ(Memory::read().recentGames, std::vector<std::string>{"/jeux/a.lst"});
}

TEST_F(MemoryTest, TheGameUsedLastStandsFirstAndFiveAreKept) {
    Memory memory;
    for (const char *name : {"a", "b", "c", "a", "d", "e", "f", ""})
        memory.gameUsed(name);
    EXPECT_EQ(memory.recentGames, (std::vector<std::string>{"f", "e", "d", "a", "c"}));
}

TEST_F(MemoryTest, TheMainWindowOpensAsItWasLeft) {
    filled().write();
    mainWindow->load();
    EXPECT_EQ(mainWindow->visiblePage(), 4);
    EXPECT_EQ(mainWindow->games.design.chkSelect, (std::array<bool, 3>{true, false, true}));
    EXPECT_EQ(modMain::gCurrentDir, lastUsedFolder());
    mainWindow->clickTab(2);
    mainWindow->games.design.chkSelect = {false, true, false};
    mainWindow->keepMemory();
    Memory expected = filled();
    expected.tab = 1;
    expected.sources = {false, true, false};
    EXPECT_EQ(Memory::read(), expected);
}

TEST_F(MemoryTest, TheApplicationFolderItselfIsNotKept) {
    mainWindow->load();
    modMain::gCurrentDir = folder();
    mainWindow->keepMemory();
    EXPECT_EQ(Memory::read().folder, "");
}

TEST(OnScreens, AWindowWithinAScreenStaysWhereItIs) {
    EXPECT_EQ(onScreens({10, 20, 300, 200}, {{0, 0, 1366, 768}}), (Area{10, 20, 300, 200}));
}

TEST(OnScreens, AWindowGoesToTheScreenOfWhichItCoversMost) {
    const std::vector<Area> two = {{0, 0, 1000, 800}, {1000, 0, 1000, 800}};
    EXPECT_EQ(onScreens({900, 10, 500, 400}, two), (Area{1000, 10, 500, 400}));
    EXPECT_EQ(onScreens({600, 10, 500, 400}, two), (Area{500, 10, 500, 400}));
}

TEST(OnScreens, AWindowFromAScreenThatIsGoneComesBackWhole) {
    const std::vector<Area> one = {{0, 25, 800, 575}};
    EXPECT_EQ(onScreens({5000, -3000, 1200, 900}, one), (Area{0, 25, 800, 575}));
    EXPECT_EQ(onScreens({-5000, 3000, 600, 300}, one), (Area{0, 300, 600, 300}));
}

} // namespace
} // namespace boulix
