// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/typedField.h"

#include "core/numbers.h"
#include "sill/reports.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

const TypedField price{"txtPrice", "Prix d'une grille", "un nombre de 0 à 100"};

double readPrice(const std::string &typed) {
    return readField(price, typed, [](const std::string &text) { return wholeNumberText(text); });
}

class TypedFieldTest : public FreshProgramTest {};

TEST_F(TypedFieldTest, AFailureNamesTheFieldItsRangeAndWhatStoodThere) {
    EXPECT_FALSE(runCommand([] { readPrice("deux euros"); }));
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {"Incompatibilité de type\r\n« Prix d'une grille » attend un nombre de 0 à 100 ; "
                   "il y avait « deux euros ».",
                   Icon::critical, "Boulix Erreur système N° 13"}}));
    EXPECT_EQ(desktop.focusedFields, std::vector<std::string>{"txtPrice"});
}

TEST_F(TypedFieldTest, AnEmptyBoxIsCalledEmpty) {
    EXPECT_FALSE(runCommand([] { readPrice(""); }));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].text,
              "Incompatibilité de type\r\n« Prix d'une grille » attend un nombre de 0 à 100 ; rien "
              "n'y était écrit.");
}

TEST_F(TypedFieldTest, WhatCanBeReadIsGivenAndNothingIsShown) {
    EXPECT_EQ(readPrice("2,5"), 2.5);
    EXPECT_TRUE(desktop.focusedFields.empty());
}

TEST_F(TypedFieldTest, AFailureOfNoFieldMovesNoFocus) {
    EXPECT_FALSE(runCommand([] { fail(Failure::overflow); }));
    EXPECT_TRUE(desktop.focusedFields.empty());
}

TEST_F(TypedFieldTest, ALineMoreLeavesTheFieldKnown) {
    EXPECT_EQ(withLine(inField(RuntimeFailure(Failure::overflow), price, "1e99"), "x").box(),
              "txtPrice");
}

} // namespace
} // namespace boulix
