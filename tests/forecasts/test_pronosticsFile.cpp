// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "forecastTest.h"
#include "forecasts/pronostics.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace boulix {
namespace {

using testing_support::readBytes;
using testing_support::writeBytes;

constexpr std::size_t block = 256;

std::string padded(const std::string &text, std::size_t length = block) {
    return text + std::string(length - text.size(), ' ');
}

/// The header block; its data length as six characters.
std::string headBlock(const std::string &dataLength = "000256") {
    const std::string text =
        "#SOFTWARE#" + padded("boulix", 32) + "#VERSION#" + padded("4.0.3", 32) +
        "#TYPE#06#CREATEDATE#15/11/2026#MODIFYDATE#15/11/2026#DATALEN#" + dataLength;
    return std::string(block - text.size(), ' ') + text;
}

std::string ruleBlock(int n, std::size_t length = block) {
    return padded("#LABEL#x#N#" + std::to_string(n) + "#P#2#POINTS#10#TYPE#02#ENABLE_N##DISABLE_P#",
                  length);
}

class PronosticsFileTest : public BoulixTest {
  protected:
    pronostics set;

    int load(const std::string &bytes) {
        writeBytes(file("essai.pro"), bytes);
        return failureNumber([&] { set.load(file("essai.pro")); });
    }
    void expectMessages(const std::vector<std::string> &titles) {
        std::vector<std::string> shown;
        for (const ShownBox &box : desktop.messages)
            shown.push_back(box.title);
        EXPECT_EQ(shown, titles);
    }
};

TEST_F(PronosticsFileTest, IsAHeaderACountAndOneBlockForEachRule) {
    set.init();
    set.Item(1).n(5);
    set.Item(1).p(2);
    set.Item(1).nPoint(10);
    set.save(file("essai.pro"));
    const std::string bytes = readBytes(file("essai.pro"));
    ASSERT_EQ(bytes.size(), 6 * block);
    EXPECT_EQ(bytes.substr(0, block), headBlock());
    EXPECT_EQ(bytes.substr(block, block), padded("4"));
    EXPECT_EQ(bytes.substr(2 * block, block),
              padded("#LABEL#Le num\xE9ro est sorti au cours de N derniers tirages, mais pas dans "
                     "les P derniers pr\xE9"
                     "c\xE9"
                     "dents#N#000005#P#000002#POINTS#000010#TYPE#01#ENABLE_N##ENABLE_P#"));
    EXPECT_EQ(bytes.substr(3 * block, block),
              padded("#LABEL#Le num\xE9ro n'est pas sorti depuis plus de N tirages#N#000000#P#"
                     "000000#POINTS#000000#TYPE#02#ENABLE_N##DISABLE_P#"));
}

TEST_F(PronosticsFileTest, GivesTheSavedRulesBack) {
    set.init();
    for (int i = 1; i <= 4; ++i) {
        set.Item(i).n(static_cast<std::int16_t>(i));
        set.Item(i).p(static_cast<std::int16_t>(10 * i));
        set.Item(i).nPoint(100 * i);
    }
    set.save(file("essai.pro"));
    pronostics back;
    back.init();
    back.load(file("essai.pro"));
    ASSERT_EQ(back.Count(), 4);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(back.Item(i).label(), set.Item(i).label());
        EXPECT_EQ(back.Item(i).n(), i);
        EXPECT_EQ(back.Item(i).p(), 10 * i);
        EXPECT_EQ(back.Item(i).nPoint(), 100 * i);
        EXPECT_EQ(back.Item(i).pronoType(), i);
        EXPECT_TRUE(back.Item(i).enableN());
        EXPECT_EQ(back.Item(i).enableP(), i == 1 || i == 4);
    }
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PronosticsFileTest, ReplacesAFileWithoutAQuestion) {
    writeBytes(file("essai.pro"), std::string(10000, 'x'));
    set.save(file("essai.pro"));
    EXPECT_EQ(readBytes(file("essai.pro")), headBlock() + padded("0"));
    EXPECT_EQ(desktop.questions.size(), 0U);
}

TEST_F(PronosticsFileTest, EndsBeforeARuleWhoseTextIsTooLong) {
    set.Add(ruleOf(PronoType::absent, 1, 0));
    pronos &longRule = set.Add(ruleOf(PronoType::absent, 2, 0));
    longRule.label(std::string(250, 'x'));
    set.Add(ruleOf(PronoType::absent, 3, 0));
    set.save(file("essai.pro"));
    EXPECT_EQ(readBytes(file("essai.pro")).size(), 3 * block);
    expectMessages({"boulix: Erreur N° 4552"});
    set.load(file("essai.pro"));
    ASSERT_EQ(set.Count(), 1); // the count says three, the file ends after one
    EXPECT_EQ(set.Item(1).n(), 1);
}

TEST_F(PronosticsFileTest, ACountOfZeroLeavesAnEmptySet) {
    set.init();
    EXPECT_EQ(load(headBlock() + padded("0") + ruleBlock(5)), 0);
    EXPECT_EQ(set.Count(), 0);
}

TEST_F(PronosticsFileTest, ALoadMakesTheOldPointsInvalid) {
    addDraw({1, 2, 3, 4, 5, 6, 7});
    set.Add(ruleOf(PronoType::absent, 0, 0));
    set.Item(1).baseTir(1);
    ASSERT_TRUE(set.compute(false));
    ASSERT_EQ(set.nbrPoint(8), 10);
    EXPECT_EQ(load(headBlock() + padded("0")), 0);
    EXPECT_EQ(set.nbrPoint(8), 10); // they stay until the next calculation
    EXPECT_TRUE(set.compute(true));
    EXPECT_EQ(set.nbrPoint(8), 0);
}

TEST_F(PronosticsFileTest, NeitherTypeNorVersionNorSoftwareIsChecked) {
    std::string head = headBlock();
    head.replace(head.find("#TYPE#06"), 8, "#TYPE#02");
    head.replace(head.find("4.0.3"), 5, "99.99");
    head.replace(head.find("boulix"), 6, "autre ");
    EXPECT_EQ(load(head + padded("1") + ruleBlock(5)), 0);
    EXPECT_EQ(set.Count(), 1);
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PronosticsFileTest, TheBlocksAreAsLongAsTheHeaderSays) {
    EXPECT_EQ(load(headBlock("000100") + padded("2", 100) + ruleBlock(5, 100) + ruleBlock(6, 100)),
              0);
    ASSERT_EQ(set.Count(), 2);
    EXPECT_EQ(set.Item(1).n(), 5);
    EXPECT_EQ(set.Item(2).n(), 6);
}

TEST_F(PronosticsFileTest, AHeaderThatCannotBeReadLeavesTheSetEmptyAfterItsMessage) {
    const struct {
        const char *key, *missing;
    } rows[] = {
        {"#SOFTWARE#", "Clef Nom du logiciel"},
        {"#VERSION#", "Clef version"},
        {"#TYPE#", "Clef type de fichier"},
        {"#CREATEDATE#", "Clef date de création"},
        {"#MODIFYDATE#", "Clef date de modification"},
        {"#DATALEN#", "Clef longueur du champ de données"},
    };
    for (const auto &row : rows) {
        set.clear();
        set.init();
        desktop.messages.clear();
        std::string head = headBlock();
        head[head.find(row.key) + 1] = '?';
        EXPECT_EQ(load(head + padded("1") + ruleBlock(5)), 0) << row.key;
        EXPECT_EQ(set.Count(), 0) << row.key;
        ASSERT_EQ(desktop.messages.size(), 1U) << row.key;
        EXPECT_EQ(desktop.messages[0],
                  (ShownBox{std::string("Lecture de l'en-tête du fichier impossible!\r\n") +
                                row.missing + " est manquant.",
                            Icon::critical, "boulix: Erreur N° 3001"}));
    }
}

TEST_F(PronosticsFileTest, ADataLengthOfZeroOrBelowLeavesNothingToRead) {
    for (const char *length : {"000000", "-00256", "nombre"}) {
        EXPECT_EQ(load(headBlock(length) + padded("1") + ruleBlock(5)), 0) << length;
        EXPECT_EQ(set.Count(), 0) << length;
    }
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PronosticsFileTest, ADataLengthBeyondSixteenBitsIsAnOverflow) {
    set.init();
    EXPECT_EQ(load(headBlock("999999") + padded("1") + ruleBlock(5)), 6);
    EXPECT_EQ(set.Count(), 0);
}

TEST_F(PronosticsFileTest, ACountThatLiesReadsNoMoreThanThereIs) {
    const std::string rules = ruleBlock(5) + ruleBlock(6);
    const struct {
        const char *count;
        int read;
    } rows[] = {{"-1", 0}, {"1000000000", 2}, {"deux", 0}, {"3", 2}, {"1", 1}, {"", 0}, {"1.5", 2}};
    for (const auto &row : rows) {
        EXPECT_EQ(load(headBlock() + padded(row.count) + rules), 0) << row.count;
        EXPECT_EQ(set.Count(), row.read) << row.count;
    }
    EXPECT_EQ(desktop.messages.size(), 0U);
    EXPECT_EQ(load(headBlock() + padded("9999999999") + rules), 6);
    EXPECT_EQ(set.Count(), 0);
}

TEST_F(PronosticsFileTest, ARuleThatCannotBeUnderstoodIsReportedAndLeftOut) {
    const struct {
        const char *key, *missing;
    } rows[] = {
        {"#LABEL#", "Clef Nom du logiciel"},   {"#N#", "Clef N"},       {"#P#", "Clef P"},
        {"#POINTS#", "Clef points attribués"}, {"#TYPE#", "Clef Type"},
    };
    for (const auto &row : rows) {
        desktop.messages.clear();
        std::string broken = ruleBlock(1);
        broken[broken.find(row.key) + 1] = '?';
        EXPECT_EQ(load(headBlock() + padded("3") + ruleBlock(5) + broken + ruleBlock(6)), 0);
        ASSERT_EQ(set.Count(), 2) << row.key;
        EXPECT_EQ(set.Item(1).n(), 5);
        EXPECT_EQ(set.Item(2).n(), 6);
        ASSERT_EQ(desktop.messages.size(), 1U) << row.key;
        EXPECT_EQ(desktop.messages[0],
                  (ShownBox{std::string("Lecture du fichier de pronostique impossible!\r\n") +
                                row.missing + " est manquant.",
                            Icon::critical, "boulix: Erreur N° 4553"}));
    }
}

TEST_F(PronosticsFileTest, ANumberBeyondItsWidthEndsTheLoadAfterTheRulesBeforeIt) {
    EXPECT_EQ(load(headBlock() + padded("3") + ruleBlock(5) + ruleBlock(99999) + ruleBlock(6)), 6);
    EXPECT_EQ(set.Count(), 1);
}

TEST_F(PronosticsFileTest, CutAnywhereItGivesTheRulesThatAreWhole) {
    const std::string whole = headBlock() + padded("2") + ruleBlock(5) + ruleBlock(6);
    const std::size_t textLength = ruleBlock(5).find("#DISABLE_P#") - 9; // up to "#ENABLE_N#"
    for (std::size_t length = 0; length < whole.size(); ++length) {
        desktop.messages.clear();
        EXPECT_EQ(load(whole.substr(0, length)), 0) << length;
        int rules = 0;
        for (const std::size_t start : {2 * block, 3 * block})
            if (length >= start + textLength)
                ++rules;
        EXPECT_EQ(set.Count(), rules) << length;
        EXPECT_LE(desktop.messages.size(), 1U) << length;
    }
}

TEST_F(PronosticsFileTest, ALabelWithASignComesBackCutAtIt) {
    set.Add(ruleOf(PronoType::absent, 3, 0)).label("tirage #1");
    set.save(file("essai.pro"));
    set.load(file("essai.pro"));
    ASSERT_EQ(set.Count(), 1);
    EXPECT_EQ(set.Item(1).label(), "tirage");
    EXPECT_EQ(set.Item(1).n(), 3);
}

TEST_F(PronosticsFileTest, GarbageLoadsNothing) {
    std::mt19937 random(5);
    for (int round = 0; round < 50; ++round) {
        std::string bytes(random() % 3000, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(random());
        EXPECT_EQ(load(bytes), 0);
        EXPECT_EQ(set.Count(), 0);
    }
}

TEST_F(PronosticsFileTest, AFileThatCannotBeReadIsARunTimeFailureAndTheRulesAreGone) {
    set.init();
    EXPECT_EQ(failureNumber([&] { set.load(file("parti.pro")); }), 53);
    EXPECT_EQ(set.Count(), 0);
    std::filesystem::create_directory(file("dossier.pro"));
    EXPECT_NE(failureNumber([&] { set.load(file("dossier.pro")); }), 0);
    EXPECT_NE(failureNumber([&] { set.save(file("dossier.pro")); }), 0);
}

} // namespace
} // namespace boulix
