// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/profileText.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace boulix {
namespace {

using Found = std::optional<std::string>;
using profileText::value;
using profileText::withoutKey;
using profileText::withValue;

/// A file as a player may have edited it: comments, unknown keys, blanks, odd capitals.
const std::string edited = "; mes r\xE9glages\r\n"
                           "orphelin=1\r\n"
                           "\r\n"
                           "[Impression]\r\n"
                           "  imprimante \t=  Canon \xE9"
                           "t\xE9 \t\r\n"
                           "; offset_X=9\r\n"
                           ";offset_Y=9\r\n"
                           "OFFSET_x=1.5\r\n"
                           "sans valeur\r\n"
                           "inconnu = gard\xE9\r\n"
                           "vide=\r\n"
                           "\r\n"
                           "[grille]\r\n"
                           "prix_grille=0.6\r\n"
                           "prix_grille=0.9\r\n"
                           "unite_monnaie='euro'\r\n";

struct ValueCase {
    const char *section;
    const char *key;
    Found value;
};

TEST(ProfileText, AValueIsFoundUnderItsSectionAndKey) {
    const ValueCase cases[] = {
        {"impression", "imprimante", "Canon été"}, // trimmed
        {"IMPRESSION", "offset_X", "1.5"},         // capitals do not count, comments neither
        {"impression", "inconnu", "gardé"},
        {"impression", "; offset_X", std::nullopt}, // a comment is no key, whatever stands in it
        {"impression", ";offset_Y", std::nullopt},
        {"impression", "offset_Y", std::nullopt},
        {"impression", "vide", ""},
        {"impression", "sans valeur", std::nullopt}, // no "=" in its line
        {"impression", "prix_grille", std::nullopt}, // another section's
        {"impression", "orphelin", std::nullopt},    // before any section
        {"", "orphelin", std::nullopt},
        {"grille", "prix_grille", "0.6"}, // the first of two
        {"grille", "unite_monnaie", "euro"},
        {"absent", "prix_grille", std::nullopt},
    };
    for (const ValueCase &expected : cases)
        EXPECT_EQ(value(edited, expected.section, expected.key), expected.value)
            << expected.section << '/' << expected.key;
}

TEST(ProfileText, QuotesAroundAValueAreTakenOffOnce) {
    const std::pair<const char *, const char *> cases[] = {
        {"\"a b\"", "a b"}, {"'a'", "a"},   {"\" a \"", " a "}, {"\"\"a\"\"", "\"a\""},
        {"\"a'", "\"a'"},   {"\"", "\""},   {"\"\"", ""},       {"a\"", "a\""},
        {"a=b", "a=b"},     {"a;b", "a;b"}, {"[a]", "[a]"},
    };
    for (const auto &[stored, read] : cases)
        EXPECT_EQ(value("[s]\nk=" + std::string(stored) + "\n", "s", "k"), read) << stored;
}

TEST(ProfileText, AWriteChangesTheOneValueAndNotAByteMore) {
    std::string expected = edited;
    expected.replace(expected.find("Canon"), 9, "HP");
    EXPECT_EQ(withValue(edited, "impression", "IMPRIMANTE", "HP"), expected);
}

TEST(ProfileText, AWriteOfTheSameValueChangesNothing) {
    EXPECT_EQ(withValue(edited, "impression", "imprimante", "Canon été"), edited);
    EXPECT_EQ(withValue(edited, "grille", "prix_grille", "0.6"), edited);
}

TEST(ProfileText, AnEmptyValueIsFilledBehindItsEqualsSign) {
    std::string expected = edited;
    expected.replace(expected.find("vide="), 5, "vide=plein");
    EXPECT_EQ(withValue(edited, "impression", "vide", "plein"), expected);
    EXPECT_EQ(withValue("[s]\nk = \n", "s", "k", "1"), "[s]\nk = 1\n");
    EXPECT_EQ(withValue("[s]\nk=", "s", "k", "1"), "[s]\nk=1");
}

TEST(ProfileText, AMissingKeyGoesBehindTheLastOneOfItsSection) {
    std::string expected = edited;
    expected.insert(expected.find("vide=\r\n") + 7, "Direction=haut\r\n");
    EXPECT_EQ(withValue(edited, "impression", "Direction", "haut"), expected);
    EXPECT_EQ(withValue("[s]\n; rien\n\n[t]\n", "s", "k", "1"), "[s]\nk=1\n; rien\n\n[t]\n");
}

TEST(ProfileText, AMissingKeyDoesNotGoBehindACommentThatHoldsAnEqualsSign) {
    EXPECT_EQ(withValue("[s]\na=1\n; b=2\n\n[t]\n", "s", "k", "3"),
              "[s]\na=1\nk=3\n; b=2\n\n[t]\n");
}

TEST(ProfileText, AMissingSectionGoesToTheEnd) {
    EXPECT_EQ(withValue(edited, "graphique", "type", "barres"),
              edited + "[graphique]\r\ntype=barres\r\n");
    EXPECT_EQ(withValue("", "graphique", "type", "barres"), "[graphique]\r\ntype=barres\r\n");
}

TEST(ProfileText, ALastLineWithoutAnEndGetsOneBeforeALineIsAdded) {
    EXPECT_EQ(withValue("[s]\r\na=1", "s", "k", "2"), "[s]\r\na=1\r\nk=2\r\n");
    EXPECT_EQ(withValue("[s]\na=1", "t", "k", "2"), "[s]\na=1\n[t]\nk=2\n");
    EXPECT_EQ(withValue("[s]\na=1", "s", "a", "2"), "[s]\na=2");
}

TEST(ProfileText, AFileCutInTheMiddleOfALineEndGetsTheMissingHalf) {
    EXPECT_EQ(withValue("[grille]\r", "grille", "b", "2"), "[grille]\r\nb=2\r\n");
    EXPECT_EQ(withValue("[grille\r", "grille", "b", "2"), "[grille\r\nb=2\r\n");
    EXPECT_EQ(withValue("[grille]\r\na=1\r", "grille", "b", "2"), "[grille]\r\na=1\r\nb=2\r\n");
}

TEST(ProfileText, NewLinesEndAsTheOthersDo) {
    EXPECT_EQ(withValue("[s]\na=1\n", "s", "k", "2"), "[s]\na=1\nk=2\n");
    EXPECT_EQ(withValue("[s]\r\na=1\r\n", "s", "k", "2"), "[s]\r\na=1\r\nk=2\r\n");
    EXPECT_EQ(value("[s]\na=1\n", "s", "a"), "1");
}

TEST(ProfileText, AValueThatQuotesOrBlanksBeginOrEndIsPutBetweenQuotes) {
    EXPECT_EQ(withValue("", "s", "k", " a "), "[s]\r\nk=\" a \"\r\n");
    EXPECT_EQ(withValue("", "s", "k", "'a'"), "[s]\r\nk=\"'a'\"\r\n");
    EXPECT_EQ(withValue("", "s", "k", "\"a\" b"), "[s]\r\nk=\"a\" b\r\n");
}

TEST(ProfileText, LineBreaksAndZeroBytesInAValueBecomeBlanks) {
    EXPECT_EQ(withValue("", "s", "k", std::string("a\r\nb\0c", 6)), "[s]\r\nk=a  b c\r\n");
}

TEST(ProfileText, OfTwoSectionsWithOneNameTheFirstTakesNewKeysAndBothAreRead) {
    const std::string twice = "[s]\na=1\n[t]\n[S]\nb=2\n";
    EXPECT_EQ(value(twice, "s", "b"), "2");
    EXPECT_EQ(withValue(twice, "s", "b", "3"), "[s]\na=1\n[t]\n[S]\nb=3\n");
    EXPECT_EQ(withValue(twice, "s", "c", "4"), "[s]\na=1\nc=4\n[t]\n[S]\nb=2\n");
}

TEST(ProfileText, SectionNamesMayHaveBlanksAndAccents) {
    const std::string text = "[ Jeux R\xC9"
                             "duits ] ; et la suite\njeu0=a\n[sans fin\njeu0=b\n";
    EXPECT_EQ(value(text, "jeux réduits", "jeu0"), "a");
    EXPECT_EQ(value(text, "sans fin", "jeu0"), "b");
}

TEST(ProfileText, ARemovedKeyLeavesTheOtherLines) {
    EXPECT_EQ(withoutKey("[s]\r\na=1\r\nb=2\r\n", "S", "A"), "[s]\r\nb=2\r\n");
    EXPECT_EQ(withoutKey("[s]\na=1\nb=2", "s", "b"), "[s]\na=1\n");
    EXPECT_EQ(withoutKey(edited, "s", "a"), edited);
    EXPECT_EQ(withoutKey("", "s", "a"), "");
}

TEST(ProfileText, AnyValueWithoutLineBreaksComesBackAsItWas) {
    std::mt19937 random(9);
    const std::string letters = " \t\"';=[]aZ0.-#\xE9\x80";
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::uniform_int_distribution<std::size_t> lengths(0, 6);
    const std::vector<std::string> keys = {"a", "b", "été", "jeu 1"};
    for (int round = 0; round < 200; ++round) {
        std::string text = edited;
        std::map<std::string, std::string> written;
        for (int i = 0; i < 20; ++i) {
            std::string bytes(lengths(random), ' ');
            for (char &c : bytes)
                c = letters[pick(random)];
            // "é" and "€" are single bytes in the file and two or three in memory.
            std::string utf8;
            for (const char c : bytes)
                utf8 += c == '\xE9' ? "é" : c == '\x80' ? "€" : std::string(1, c);
            const std::string &key = keys[static_cast<std::size_t>(i) % keys.size()];
            written[key] = utf8;
            text = withValue(text, "essai", key, utf8);
        }
        for (const auto &[key, expected] : written)
            ASSERT_EQ(value(text, "essai", key), expected) << text;
        for (const std::string &key : keys)
            text = withoutKey(text, "essai", key);
        ASSERT_EQ(text, edited + "[essai]\r\n");
    }
}

} // namespace
} // namespace boulix
