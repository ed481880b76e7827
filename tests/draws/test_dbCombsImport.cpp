// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include "sill/modMain.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <utility>

namespace boulix {
namespace {

constexpr Date day1 = 37632; // 11 January 2003
constexpr Date day2 = 37636; // 15 January 2003
const DrawOf drawA = {day1, 1, {2, 3, 5, 7, 11, 13, 17}};
const DrawOf drawB = {day1, 2, {33, 32, 42, 16, 15, 49, 37}};
const DrawOf drawC = {day2, 1, {1, 4, 22, 30, 41, 49, 8}};
const std::string lineA = "2;3;5;7;11;13;17;20030111;1";
const std::string lineB = "33;32;42;16;15;49;37;20030111;2";
const std::string lineC = "1;4;22;30;41;49;8;20030115;1";
const std::string rowA = "11/01/2003 (1) 2 3 5 7 11 13 + 17 = 0 0";
const std::string rowB = "11/01/2003 (2) 33 32 42 16 15 49 + 37 = 0 0";
const std::string rowC = "15/01/2003 (1) 1 4 22 30 41 49 + 8 = 0 0";

class Import : public DrawsTest {
  protected:
    /// Starts the log; its lines so far.
    void startLog() {
        modMain::gDebug = true;
        modMain::gLogFile.open(file("boulix.log"), std::ios::binary);
    }
    std::string log() const {
        modMain::gLogFile.flush();
        return readBytes(file("boulix.log"));
    }
};

TEST_F(Import, AsksForAFile) {
    desktop.cancelOpen();
    EXPECT_FALSE(gDbCombs->ImportFdjFile());
    ASSERT_EQ(desktop.openQuestions.size(), 1U);
    EXPECT_EQ(desktop.openQuestions[0].filter, "Fichier texte de la française des jeux (*.*)|*.*");
    EXPECT_EQ(desktop.openQuestions[0].title,
              "Importation d'un fichier texte de la française des jeux");
}

TEST_F(Import, WithoutAFileChosenDoesNothing) {
    add(drawA);
    desktop.cancelOpen();
    EXPECT_FALSE(gDbCombs->ImportFdjFile());
    EXPECT_EQ(rows(), std::vector<std::string>{rowA});
    EXPECT_FALSE(testing_support::fileExists(baseFile()));
    EXPECT_TRUE(desktop.progressRuns.empty());
}

TEST_F(Import, SortsTheDrawsAndSavesThemWithoutSums) {
    EXPECT_TRUE(importLines({lineC, lineB, lineA}));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB, rowC}));
    EXPECT_EQ(baseFileBytes(), drawsFile({drawA, drawB, drawC}));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(Import, TheNextLoadGivesTheSums) {
    EXPECT_TRUE(importLines({lineB, lineA}));
    gDbCombs->load();
    EXPECT_EQ(rows(),
              (std::vector<std::string>{"11/01/2003 (1) 2 3 5 7 11 13 + 17 = 41 58",
                                        "11/01/2003 (2) 33 32 42 16 15 49 + 37 = 187 224"}));
}

TEST_F(Import, RecognisesALowerCaseHeaderWithBlanksAroundTheNames) {
    EXPECT_TRUE(importLines({lineB, lineA},
                            " boule1 ;  boule2;boule3  ;boule4;boule5;Boule6; "
                            "boule_complementaire;date_de_Tirage; 1er_ou_2eme_tirage  "));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
}

TEST_F(Import, FollowsTheOrderOfTheColumnsAndIgnoresFurtherOnes) {
    EXPECT_TRUE(importLines(
        {"9;20030111;2;x;49;15;16;42;32;33;37;", "8;20030111;1;;13;11;7;5;3;2;17;lucky"},
        "NUMERO_DE_TIRAGE;DATE_DE_TIRAGE;1ER_OU_2EME_TIRAGE;JOKER;BOULE6;"
        "BOULE5;BOULE4;BOULE3;BOULE2;BOULE1;BOULE_COMPLEMENTAIRE"));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
}

TEST_F(Import, OfTwoColumnsOfTheSameNameTheLaterCounts) {
    EXPECT_TRUE(importLines({"99;" + lineB + ";32", "99;" + lineA + ";3"},
                            std::string("BOULE1;") + plainHeader + ";BOULE2"));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
}

TEST_F(Import, TakesALastLineWithoutALineEnd) {
    EXPECT_TRUE(importBytes(std::string(plainHeader) + "\r\n" + lineB + "\r\n" + lineA));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB}));
}

TEST_F(Import, AddsToTheDrawsInMemory) {
    add(drawB);
    EXPECT_TRUE(importLines({lineC, lineA}));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB, rowC}));
}

TEST_F(Import, OfTheSameFileTwiceGivesTheSameBase) {
    EXPECT_TRUE(importLines({lineC, lineB, lineA}));
    const std::string saved = baseFileBytes();
    EXPECT_TRUE(importLines({lineC, lineB, lineA}));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB, rowC}));
    EXPECT_EQ(baseFileBytes(), saved);
}

TEST_F(Import, StrikesDoublesInsideOneFile) {
    EXPECT_TRUE(importLines({lineA, lineB, lineA, lineB, lineC, lineA}));
    EXPECT_EQ(rows(), (std::vector<std::string>{rowA, rowB, rowC}));
}

TEST_F(Import, LeavesASingleDrawOfSeveralEqualOnes) {
    EXPECT_TRUE(importLines({lineA, lineA, lineA}));
    EXPECT_EQ(rows(), std::vector<std::string>{rowA});
    EXPECT_EQ(baseFileBytes(), drawsFile({drawA}));
}

TEST_F(Import, ADrawOfTheSameDayAndNumberIsADoubleWhateverItsNumbers) {
    add({day1, 1, {1, 2, 3, 4, 5, 6, 7}});
    EXPECT_TRUE(importLines({lineA}));
    EXPECT_EQ(gDbCombs->Count(), 1);
}

TEST_F(Import, OfTwoDoublesTheOneSurvivesThatTheSortLeftFirst) {
    // Both draws are exchanged by the sort, which puts the imported one first.
    add({day1, 1, {1, 2, 3, 4, 5, 6, 7}});
    EXPECT_TRUE(importLines({lineA}));
    EXPECT_EQ(rows(), std::vector<std::string>{rowA});
}

TEST_F(Import, ShowsItsProgressLineByLineAndThenComparisonByComparison) {
    EXPECT_TRUE(importLines({lineC, lineB, lineA, lineA}));
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    std::vector<std::string> steps;
    for (const frmProgress &step : desktop.progressRuns[0].steps)
        steps.push_back(
            step.caption + "|" + step.lblInfo + "|" + std::to_string(step.ProgressBar.min) + "-" +
            std::to_string(step.ProgressBar.max) + "|" + std::to_string(step.ProgressBar.value));
    const std::string reading = "Importation de combinaisons|Importation en cours...|1-4|";
    const std::string striking = "Importation de combinaisons|elimination des doublons...|1-4|";
    EXPECT_EQ(steps,
              (std::vector<std::string>{reading + "1", reading + "1", reading + "2", reading + "3",
                                        striking + "1", striking + "1", striking + "2"}));
    EXPECT_EQ(desktop.progressRuns[0].last.ProgressBar.value, 3);
    EXPECT_TRUE(desktop.progressRuns[0].unloaded);
}

TEST_F(Import, ShowsTheBarOfTheItemsOnly) {
    EXPECT_TRUE(importLines({lineB, lineA}));
    ASSERT_FALSE(desktop.progressRuns.empty());
    for (const frmProgress &step : desktop.progressRuns[0].steps) {
        EXPECT_TRUE(step.ProgressBar.visible);
        EXPECT_FALSE(step.ProgressBar2.visible);
    }
}

TEST_F(Import, LeavesTheFileAloneWhileItReadsAndStrikesDoubles) {
    gDbCombs->Add(day2, 1, combOf(drawC.numbers), true, "");
    const std::string before = baseFileBytes();
    desktop.onEvents = [&] { EXPECT_EQ(baseFileBytes(), before); };
    EXPECT_TRUE(importLines({lineB, lineA}));
    EXPECT_EQ(baseFileBytes(), drawsFile({drawA, drawB, drawC}));
}

/// A desktop that looks at the base's file when the progress window goes.
class LookingDesktop : public testing_support::ScriptedDesktop {
  public:
    explicit LookingDesktop(std::string file) : file_(std::move(file)) {}
    void progressUnloaded() override {
        savedBefore = testing_support::fileExists(file_);
        ScriptedDesktop::progressUnloaded();
    }
    bool savedBefore = true;

  private:
    std::string file_;
};

TEST_F(Import, SavesWhenTheProgressWindowIsGone) {
    LookingDesktop looking(baseFile());
    setDesktop(&looking);
    writeBytes(file("import.txt"), std::string(plainHeader) + "\r\n" + lineA + "\r\n" + lineB);
    looking.answerOpen(file("import.txt"));
    EXPECT_TRUE(gDbCombs->ImportFdjFile());
    EXPECT_FALSE(looking.savedBefore);
    EXPECT_EQ(baseFileBytes(), drawsFile({drawA, drawB}));
}

TEST_F(Import, RestoresTheOrderThatTheSortLeftAndSaysSo) {
    startLog();
    for (const double day : {1, 2, 3, 4})
        add({day});
    EXPECT_TRUE(importLines({"0;0;0;0;0;0;0;19000103;1", "0;0;0;0;0;0;0;19000102;1",
                             "0;0;0;0;0;0;0;19000101;1", "0;0;0;0;0;0;0;18991231;1"}));
    std::vector<double> days;
    for (const dbComb &draw : *gDbCombs)
        days.push_back(draw.day());
    EXPECT_EQ(days, (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(log(), "dbCombs.ImportFdjFile: ordre r\xE9tabli apr\xE8s le tri\r\n");
}

TEST_F(Import, EndsTooWhenAHandlerHasClosedTheLogAndTheOrderIsRestored) {
    startLog();
    modMain::gLogFile.close();
    for (const double day : {1, 2, 3, 4})
        add({day});
    EXPECT_TRUE(importLines({"0;0;0;0;0;0;0;19000103;1", "0;0;0;0;0;0;0;19000102;1",
                             "0;0;0;0;0;0;0;19000101;1", "0;0;0;0;0;0;0;18991231;1"}));
    EXPECT_EQ(gDbCombs->Count(), 4);
    EXPECT_TRUE(gDbCombs->isSaved());
}

TEST_F(Import, OrdersFilesOfAnyOrderWithAndWithoutDoubles) {
    std::mt19937 random(7);
    std::uniform_int_distribution<int> pick(0, 200);
    std::vector<std::string> lines;
    for (int day = 10; day <= 28; ++day)
        for (const char *id : {"1", "2"})
            lines.push_back("1;2;3;4;5;6;7;200301" + std::to_string(day) + ";" + id);
    const auto count = static_cast<int>(lines.size());
    for (int round = 0; round < 200; ++round) {
        std::shuffle(lines.begin(), lines.end(), random);
        std::vector<std::string> file = lines;
        file.insert(file.end(), lines.begin(), lines.begin() + pick(random) % count);
        EXPECT_TRUE(importLines(file));
        ASSERT_EQ(gDbCombs->Count(), count);
        for (int i = 2; i <= count; ++i)
            ASSERT_TRUE(gDbCombs->Item(i).isGreater(gDbCombs->Item(i - 1))) << i;
        gDbCombs->clear();
    }
}

/// A draw of a day of January 2003, told from its doubles by its first number.
std::string markedLine(int day, int mark) {
    return std::to_string(mark) + ";0;0;0;0;0;0;200301" + (day < 10 ? "0" : "") +
           std::to_string(day) + ";1";
}

/// The marks of the draws that are left of `draws`, whose order is that of the sort: of each day
/// the first one, the days ascending.
std::vector<int> marksOfFirsts(const dbCombs &draws) {
    std::vector<int> marks;
    for (int day = 1; day <= 31; ++day)
        for (const dbComb &draw : draws)
            if (draw.day() == dateOf({2003, 1, day})) {
                marks.push_back(draw.comb().num(1));
                break;
            }
    return marks;
}

TEST_F(Import, OfTwoDoublesInABaseOutOfOrderTheOneSurvivesThatTheSortLeftFirst) {
    std::mt19937 random(1977);
    std::uniform_int_distribution<int> pick(1, 31);
    int outOfOrder = 0;
    for (int round = 0; round < 100; ++round) {
        std::vector<std::string> lines;
        dbCombs sorted;
        for (int mark = 1; mark <= 80; ++mark) {
            const int day = pick(random);
            lines.push_back(markedLine(day, mark));
            sorted.Add(dateOf({2003, 1, day}), 1, combOf({mark}), false, "");
        }
        sorted.sort();
        outOfOrder +=
            !std::is_sorted(sorted.begin(), sorted.end(),
                            [](const dbComb &a, const dbComb &b) { return b.isGreater(a); });
        gDbCombs->clear();
        ASSERT_TRUE(importLines(lines));
        std::vector<int> marks;
        for (const dbComb &draw : *gDbCombs)
            marks.push_back(draw.comb().num(1));
        ASSERT_EQ(marks, marksOfFirsts(sorted)) << "round " << round;
    }
    EXPECT_GT(outOfOrder, 10) << "bases that had to be brought in order";
}

TEST_F(Import, SaysNothingOfTheOrderWhereTheSortSufficed) {
    startLog();
    EXPECT_TRUE(importLines({lineC, lineB, lineA}));
    EXPECT_EQ(log(), "");
}

TEST_F(Import, LosesTheFirstCharacterOfEveryLineBehindALoneLf) {
    EXPECT_TRUE(importBytes(std::string(plainHeader) + "\n33;32;42;16;15;49;37;20030111;2\n" +
                            "2;3;5;7;11;13;17;20030111;1\n"));
    EXPECT_EQ(rows(), (std::vector<std::string>{"11/01/2003 (1) 0 3 5 7 11 13 + 17 = 0 0",
                                                "11/01/2003 (2) 3 32 42 16 15 49 + 37 = 0 0"}));
}

TEST_F(Import, CopesWithDrawsInMemoryWhoseDayIsNoNumber) {
    add({std::numeric_limits<double>::quiet_NaN(), 1, {}});
    add(drawC);
    add(drawA);
    EXPECT_TRUE(importLines({lineC, lineB, lineA}));
    std::vector<std::string> dated = rows();
    ASSERT_EQ(dated.size(), 4U);
    EXPECT_TRUE(std::isnan(gDbCombs->Item(1).day()));
    dated.erase(dated.begin());
    EXPECT_EQ(dated, (std::vector<std::string>{rowA, rowB, rowC}));
}

} // namespace
} // namespace boulix
