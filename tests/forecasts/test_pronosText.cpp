// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/text.h"
#include "forecastTest.h"

#include <gtest/gtest.h>
#include <string>

namespace boulix {
namespace {

const std::string plainText =
    "#LABEL#x#N#000005#P#000002#POINTS#000010#TYPE#01#ENABLE_N##ENABLE_P#";

class PronosTextTest : public BoulixTest {
  protected:
    pronos rule = ruleOf(PronoType::outButNotLately, 5, 2);

    void expectMissing(const std::string &text, const std::string &name) {
        desktop.messages.clear();
        EXPECT_FALSE(rule.fromString(text)) << text;
        ASSERT_EQ(desktop.messages.size(), 1U) << text;
        EXPECT_EQ(
            desktop.messages[0],
            (ShownBox{"Lecture du fichier de pronostique impossible!\r\n" + name + " est manquant.",
                      Icon::critical, "boulix: Erreur N° 4553"}));
    }
    /// The text with another key in place of `key`.
    static std::string without(const std::string &key) {
        std::string text = plainText;
        return text.replace(text.find(key), key.size(), "#AUTRE#");
    }
};

void expectEqual(const pronos &a, const pronos &b) {
    EXPECT_EQ(a.label(), b.label());
    EXPECT_EQ(a.n(), b.n());
    EXPECT_EQ(a.p(), b.p());
    EXPECT_EQ(a.nPoint(), b.nPoint());
    EXPECT_EQ(a.pronoType(), b.pronoType());
    EXPECT_EQ(a.enableN(), b.enableN());
    EXPECT_EQ(a.enableP(), b.enableP());
}

TEST_F(PronosTextTest, HoldsAllFieldsAndIsFilledWithBlanks) {
    EXPECT_EQ(rule.toString(256), plainText + std::string(256 - plainText.size(), ' '));
}

TEST_F(PronosTextTest, ComesBackAsTheSameRule) {
    pronos back;
    EXPECT_TRUE(back.fromString(rule.toString(256)));
    expectEqual(back, rule);
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(PronosTextTest, ComesBackWithEveryFlagAndOddValues) {
    for (int i = 0; i < 4; ++i) {
        rule.label("Le numéro est sorti à Noël");
        rule.n(-5);
        rule.p(32767);
        rule.nPoint(2147483647);
        rule.pronoType(-123);
        rule.enableN((i & 1) != 0);
        rule.enableP((i & 2) != 0);
        pronos back;
        EXPECT_TRUE(back.fromString(rule.toString(256)));
        expectEqual(back, rule);
    }
}

TEST_F(PronosTextTest, WritesSwitchedOffFlagsAndNegativeValues) {
    rule.n(-5);
    rule.nPoint(1234567);
    rule.enableN(false);
    rule.enableP(false);
    EXPECT_EQ(trimmed(rule.toString(256)),
              "#LABEL#x#N#-000005#P#000002#POINTS#1234567#TYPE#01#DISABLE_N##DISABLE_P#");
}

TEST_F(PronosTextTest, CountsAnAccentAsOneCharacter) {
    rule.label("é");
    EXPECT_EQ(toWestern(rule.toString(100)).size(), 100U);
}

TEST_F(PronosTextTest, ThatFitsExactlyIsGiven) {
    EXPECT_EQ(rule.toString(static_cast<std::int16_t>(plainText.size())), plainText);
}

TEST_F(PronosTextTest, ThatIsTooLongIsReportedAndEmpty) {
    EXPECT_EQ(rule.toString(static_cast<std::int16_t>(plainText.size() - 1)), "");
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0],
              (ShownBox{"Impossible de sauvegarder de pronostique.\r\nChaine trop longue!\r\n"
                        "Contactez le support technique!",
                        Icon::critical, "boulix: Erreur N° 4552"}));
    rule.label(std::string(250, 'x'));
    EXPECT_EQ(rule.toString(256), "");
    EXPECT_EQ(rule.toString(-1), "");
}

TEST_F(PronosTextTest, NamesTheKeyThatIsMissing) {
    expectMissing(without("#LABEL#"), "Clef Nom du logiciel");
    expectMissing(without("#N#"), "Clef N");
    expectMissing(without("#P#"), "Clef P");
    expectMissing(without("#POINTS#"), "Clef points attribués");
    expectMissing(without("#TYPE#"), "Clef Type");
}

TEST_F(PronosTextTest, NamesTheValueThatHasNoEnd) {
    expectMissing("#LABEL#x", "Nom du logiciel");
    expectMissing("#LABEL#x#N#000005", "N");
    expectMissing("#LABEL#x#N#000005#P#000002", "P");
    expectMissing("#LABEL#x#N#000005#P#000002#POINTS#000010", "points attribués");
    expectMissing("#LABEL#x#N#000005#P#000002#POINTS#000010#TYPE#01", "Type");
}

TEST_F(PronosTextTest, WithNothingBehindTheTypeReportsTheType) {
    expectMissing("#LABEL#x#N#000005#P#000002#POINTS#000010#TYPE#", "Type");
}

TEST_F(PronosTextTest, CutAnywhereIsEitherReportedOrLacksOnlyItsFlags) {
    const std::size_t typeEnds = plainText.find("#ENABLE_N#") + 1;
    for (std::size_t length = 0; length < plainText.size(); ++length) {
        desktop.messages.clear();
        const bool taken = rule.fromString(plainText.substr(0, length));
        EXPECT_EQ(taken, length >= typeEnds) << length;
        EXPECT_EQ(desktop.messages.size(), taken ? 0U : 1U) << length;
    }
}

TEST_F(PronosTextTest, AFaultKeepsTheFieldsReadSoFar) {
    EXPECT_FALSE(rule.fromString("#LABEL# y #N#7#P#8#POINTS#9"));
    EXPECT_EQ(rule.label(), "y");
    EXPECT_EQ(rule.n(), 7);
    EXPECT_EQ(rule.p(), 8);
    EXPECT_EQ(rule.nPoint(), 10);
    EXPECT_EQ(rule.pronoType(), 1);
}

TEST_F(PronosTextTest, AMissingFlagIsOff) {
    EXPECT_TRUE(rule.fromString("#LABEL#x#N#5#P#2#POINTS#10#TYPE#1#"));
    EXPECT_FALSE(rule.enableN());
    EXPECT_FALSE(rule.enableP());
    EXPECT_TRUE(rule.fromString("#LABEL#x#N#5#P#2#POINTS#10#TYPE#1#ENABLE_P#"));
    EXPECT_FALSE(rule.enableN());
    EXPECT_TRUE(rule.enableP());
}

TEST_F(PronosTextTest, ALabelEndsAtItsFirstSign) {
    EXPECT_TRUE(rule.fromString("#LABEL#tirage #1#N#5#P#2#POINTS#10#TYPE#1#ENABLE_N#"));
    EXPECT_EQ(rule.label(), "tirage");
    EXPECT_EQ(rule.n(), 5);
}

TEST_F(PronosTextTest, WhatStandsBeforeAKeyIsPassedOver) {
    EXPECT_TRUE(rule.fromString("abc#LABEL#x#?#N#5#!#P#2#POINTS#10#TYPE#1#ENABLE_N#"));
    EXPECT_EQ(rule.n(), 5);
    EXPECT_EQ(rule.p(), 2);
}

TEST_F(PronosTextTest, ValuesAreRoundedAndWordsAreZero) {
    EXPECT_TRUE(rule.fromString("#LABEL##N# 2.5 #P#3.5#POINTS#-0.6#TYPE#un#"));
    EXPECT_EQ(rule.label(), "");
    EXPECT_EQ(rule.n(), 2);
    EXPECT_EQ(rule.p(), 4);
    EXPECT_EQ(rule.nPoint(), -1);
    EXPECT_EQ(rule.pronoType(), 0);
}

TEST_F(PronosTextTest, AValueBeyondItsWidthIsAnOverflow) {
    for (const char *text :
         {"#LABEL#x#N#32768#P#2#POINTS#10#TYPE#1#", "#LABEL#x#N#5#P#-32769#POINTS#10#TYPE#1#",
          "#LABEL#x#N#5#P#2#POINTS#2147483648#TYPE#1#",
          "#LABEL#x#N#5#P#2#POINTS#10#TYPE#99999999999#"})
        EXPECT_EQ(failureNumber([&] { rule.fromString(text); }), 6) << text;
}

} // namespace
} // namespace boulix
