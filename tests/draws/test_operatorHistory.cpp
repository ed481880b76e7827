// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include "core/text.h"
#include "support/locations.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace boulix {
namespace {

constexpr std::int32_t historyDraws = 4858;

/// The operator's published history over bases of every state. The file is not part of the
/// project; without it these tests are skipped.
class OperatorHistory : public DrawsTest {
  protected:
    void SetUp() override {
        const auto file = testing_support::operatorHistory();
        if (!file)
            GTEST_SKIP() << "the operator's history is not there; set BOULIX_HISTORY to its name";
        history_ = file->string();
    }

    bool importHistory() {
        desktop.answerOpen(history_);
        return gDbCombs->ImportFdjFile();
    }
    /// The base holds the whole history, in order, and so does its file.
    void expectWholeHistory() {
        ASSERT_EQ(gDbCombs->Count(), historyDraws);
        EXPECT_EQ(rowWithoutSums(1), "19/05/1976 (1) 31 15 33 27 36 48 + 34");
        EXPECT_EQ(rowWithoutSums(historyDraws), "04/10/2008 (2) 33 32 42 16 15 49 + 37");
        for (int i = 2; i <= historyDraws; ++i)
            ASSERT_TRUE(gDbCombs->Item(i).isGreater(gDbCombs->Item(i - 1))) << i;
        EXPECT_EQ(baseFileBytes().size(), std::size_t{historyDraws} * 128 + 28);
    }
    static std::string rowWithoutSums(int position) {
        const std::string row = rowOf(gDbCombs->Item(position));
        return row.substr(0, row.find(" = "));
    }
    static std::vector<std::string> rowsWithoutSums() {
        std::vector<std::string> rows;
        for (int i = 1; i <= gDbCombs->Count(); ++i)
            rows.push_back(rowWithoutSums(i));
        return rows;
    }
    std::string history_;
};

TEST_F(OperatorHistory, FillsAnEmptyBase) {
    gDbCombs->load();
    EXPECT_TRUE(importHistory());
    expectWholeHistory();
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_EQ(desktop.progressRuns[0].turns, historyDraws + historyDraws - 1);
}

TEST_F(OperatorHistory, ImportedAgainAndAgainGivesTheSameBase) {
    EXPECT_TRUE(importHistory());
    const std::vector<std::string> firstRows = rows();
    const std::string firstFile = baseFileBytes();
    for (int time = 2; time <= 4; ++time) {
        EXPECT_TRUE(importHistory());
        expectWholeHistory();
        EXPECT_EQ(rows(), firstRows) << "time " << time;
        EXPECT_EQ(baseFileBytes(), firstFile) << "time " << time;
    }
}

TEST_F(OperatorHistory, HasTrueSumsAfterARestart) {
    EXPECT_TRUE(importHistory());
    EXPECT_EQ(rowOf(gDbCombs->Item(1)), "19/05/1976 (1) 31 15 33 27 36 48 + 34 = 0 0");
    gDbCombs->load();
    expectWholeHistory();
    EXPECT_EQ(rowOf(gDbCombs->Item(1)), "19/05/1976 (1) 31 15 33 27 36 48 + 34 = 190 224");
    EXPECT_EQ(rowOf(gDbCombs->Item(historyDraws)),
              "04/10/2008 (2) 33 32 42 16 15 49 + 37 = 187 224");
    for (const dbComb &draw : *gDbCombs) {
        int sum = 0;
        for (int i = 1; i <= lotoComb::size; ++i)
            sum += draw.comb().num(i);
        ASSERT_EQ(draw.comb().sum(), sum);
        ASSERT_EQ(draw.comb().sumtot(), sum + draw.comb().compl_());
    }
}

TEST_F(OperatorHistory, CompletesABaseThatLacksTheNewestDraws) {
    EXPECT_TRUE(importHistory());
    const std::vector<std::string> whole = rowsWithoutSums();
    const std::string wholeFile = baseFileBytes();
    for (const std::size_t lacking : {1U, 2U, 10U, 104U, 2000U, 4857U}) {
        writeBytes(baseFile(), wholeFile.substr(0, 128 * (historyDraws - lacking) + 28));
        gDbCombs->load();
        ASSERT_EQ(gDbCombs->Count(), static_cast<int>(historyDraws - lacking));
        EXPECT_TRUE(importHistory());
        expectWholeHistory();
        EXPECT_EQ(rowsWithoutSums(), whole) << "lacking " << lacking;
    }
}

TEST_F(OperatorHistory, CompletesABaseThatLacksDrawsInTheMiddle) {
    EXPECT_TRUE(importHistory());
    const std::vector<std::string> whole = rowsWithoutSums();
    const std::string wholeFile = baseFileBytes();
    writeBytes(baseFile(), wholeFile.substr(0, 128 * 1000) + wholeFile.substr(128 * 1777));
    gDbCombs->load();
    EXPECT_EQ(gDbCombs->Count(), historyDraws - 777);
    EXPECT_TRUE(importHistory());
    expectWholeHistory();
    EXPECT_EQ(rowsWithoutSums(), whole);
}

TEST_F(OperatorHistory, CancelledAtAnyStageLeavesTheFile) {
    EXPECT_TRUE(importHistory());
    gDbCombs->load();
    const std::vector<std::string> before = rows();
    const std::string file = baseFileBytes();
    for (const int turn :
         {1, 2, 2429, historyDraws, historyDraws + 1, historyDraws + 5000, 3 * historyDraws - 1}) {
        desktop.cancelProgressAt(turn);
        EXPECT_FALSE(importHistory());
        EXPECT_EQ(baseFileBytes(), file) << turn;
        EXPECT_EQ(gDbCombs->Count(), turn <= historyDraws ? historyDraws + turn : historyDraws);
        gDbCombs->load();
        EXPECT_EQ(rows(), before) << turn;
    }
}

TEST_F(OperatorHistory, IsExportedDrawByDrawAsTheOperatorHasIt) {
    EXPECT_TRUE(importHistory());
    desktop.answerSave(file("base.txt"));
    gDbCombs->ExportDB();

    // Date, draw of the day, numbers and complementary, straight from the operator's lines.
    std::map<std::string, std::string> ofDay;
    const auto lines = split(readBytes(history_), '\n');
    for (auto line = lines.begin() + 1; line != lines.end(); ++line) {
        const auto field = split(*line, ';');
        if (field.size() < 12)
            continue;
        const std::string &day = field[3];
        std::string text = day.substr(6, 2) + "-" + day.substr(4, 2) + "-" + day.substr(0, 4);
        text += ";" + field[1];
        for (std::size_t i = 5; i < 12; ++i)
            text += ";" + field[i];
        ofDay[day + field[1]] = text + "\r\n";
    }
    std::string expected = "Date;Tirage;N1;N2;N3;N4;N5;N6;Compl\xE9mentaire\r\n";
    for (const auto &[key, text] : ofDay)
        expected += text;
    EXPECT_EQ(readBytes(file("base.txt")), expected);
}

} // namespace
} // namespace boulix
