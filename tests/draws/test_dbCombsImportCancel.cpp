// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

const DrawOf kept1 = {37622, 1, {1, 2, 3, 4, 5, 6, 7}, 21, 28};        // 1 January 2003
const DrawOf kept2 = {37653, 1, {11, 12, 13, 14, 15, 16, 17}, 81, 98}; // 1 February 2003
const std::string keptRow1 = "01/01/2003 (1) 1 2 3 4 5 6 + 7 = 21 28";
const std::string keptRow2 = "01/02/2003 (1) 11 12 13 14 15 16 + 17 = 81 98";

/// Draw `i` of the file: the newest first, and two draws for each but the last.
std::string lineOf(int i) {
    return "2;3;5;7;11;13;17;2003011" + std::to_string(5 - i / 2) + ";1";
}
std::string rowOfLine(int i) {
    return "1" + std::to_string(5 - i / 2) + "/01/2003 (1) 2 3 5 7 11 13 + 17 = 0 0";
}

constexpr int fileLines = 7;

/// A base of two draws, saved, and a file of seven lines over it.
class ImportCancel : public DrawsTest {
  protected:
    ImportCancel() {
        writeBytes(baseFile(), drawsFile({kept1, kept2}));
        gDbCombs->load();
    }
    bool importCancelledAt(int turn) {
        std::vector<std::string> lines;
        for (int i = 0; i < fileLines; ++i)
            lines.push_back(lineOf(i));
        desktop.cancelProgressAt(turn);
        return importLines(lines);
    }
};

TEST_F(ImportCancel, WhileReadingLeavesTheDrawsReadSoFarAtTheEndUnsortedAndUnsaved) {
    for (int turn = 1; turn <= fileLines; ++turn) {
        gDbCombs->load();
        EXPECT_FALSE(importCancelledAt(turn));
        std::vector<std::string> expected = {keptRow1, keptRow2};
        for (int i = 0; i < turn; ++i)
            expected.push_back(rowOfLine(i));
        EXPECT_EQ(rows(), expected) << "turn " << turn;
        EXPECT_EQ(baseFileBytes(), drawsFile({kept1, kept2})) << "turn " << turn;
        EXPECT_EQ(desktop.progressRuns.back().turns, turn);
        EXPECT_EQ(desktop.progressRuns.back().last.lblInfo, "Importation en cours...");
        EXPECT_EQ(desktop.progressRuns.back().last.ProgressBar.value, std::max(1, turn - 1));
        EXPECT_TRUE(desktop.mainWindowEnabled());
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ImportCancel, WhileReadingLeavesTheFileFreeToBeRemoved) {
    EXPECT_FALSE(importCancelledAt(3));
    EXPECT_EQ(std::remove(file("import.txt").c_str()), 0);
}

TEST_F(ImportCancel, TheDrawsReadBeforeACancelAreGoneAfterTheNextLoad) {
    EXPECT_FALSE(importCancelledAt(3));
    gDbCombs->load();
    EXPECT_EQ(rows(), (std::vector<std::string>{keptRow1, keptRow2}));
}

TEST_F(ImportCancel, TheDrawsReadBeforeACancelAreWrittenByALaterSave) {
    EXPECT_FALSE(importCancelledAt(1));
    gDbCombs->Remove(1);
    EXPECT_EQ(baseFileBytes(), drawsFile({kept2, {37636, 1, {2, 3, 5, 7, 11, 13, 17}}}));
}

TEST_F(ImportCancel, WhileDoublesAreStruckBringsTheBaseBackFromItsFile) {
    const int comparisons = 2 + fileLines - 1;
    for (int turn = 1; turn <= comparisons; ++turn) {
        EXPECT_FALSE(importCancelledAt(fileLines + turn));
        EXPECT_EQ(rows(), (std::vector<std::string>{keptRow1, keptRow2})) << "turn " << turn;
        EXPECT_EQ(baseFileBytes(), drawsFile({kept1, kept2})) << "turn " << turn;
        EXPECT_EQ(desktop.progressRuns.back().last.lblInfo, "elimination des doublons...");
        EXPECT_TRUE(desktop.mainWindowEnabled());
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(ImportCancel, CanBeAskedForAtEachLineAndEachComparisonAndNoLonger) {
    std::vector<std::string> lines;
    for (int i = 0; i < fileLines; ++i)
        lines.push_back(lineOf(i));
    EXPECT_TRUE(importLines(lines));
    EXPECT_EQ(desktop.progressRuns.back().turns, fileLines + 2 + fileLines - 1);
    EXPECT_EQ(gDbCombs->Count(), 2 + (fileLines + 1) / 2);
}

TEST_F(ImportCancel, NoCommandCanStartWhileTheBaseIsLoadedAgain) {
    std::vector<bool> enabled;
    desktop.onEvents = [&] {
        if (desktop.progressRuns.back().turns > fileLines + 1)
            enabled.push_back(desktop.mainWindowEnabled());
    };
    EXPECT_FALSE(importCancelledAt(fileLines + 1));
    EXPECT_EQ(enabled, (std::vector<bool>{false, false}));
}

TEST_F(ImportCancel, AnEarlierCancelDoesNotTouchTheNextImport) {
    EXPECT_FALSE(importCancelledAt(2));
    gDbCombs->load();
    EXPECT_TRUE(importLines({lineOf(0)}));
    EXPECT_EQ(rows(), (std::vector<std::string>{keptRow1, rowOfLine(0), keptRow2}));
}

TEST_F(ImportCancel, WithABaseThatCannotBeLoadedAgainEndsWithTheReportAndAnEmptyBase) {
    desktop.onEvents = [&] { writeBytes(baseFile(), "no base"); };
    EXPECT_FALSE(importCancelledAt(fileLines + 1));
    EXPECT_EQ(gDbCombs->Count(), 0);
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4401");
    EXPECT_NE(desktop.messages[1].text.find("La base des tirages est vide."), std::string::npos);
    EXPECT_EQ(baseFileBytes(), "no base");
}

} // namespace
} // namespace boulix
