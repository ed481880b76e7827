// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/rapport.h"

#include "support/boulixTest.h"

#include <array>
#include <gtest/gtest.h>
#include <string>

namespace boulix {
namespace {

class RapportTest : public BoulixTest {
  protected:
    rapport table;

    /// The one message shown, as an information box of number `number`.
    void expectMessage(int number, const std::string &text) const {
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0], (ShownBox{text, Icon::information,
                                                 "boulix: Erreur N° " + std::to_string(number)}));
    }
};

TEST_F(RapportTest, NamesItsElevenRanks) {
    const std::array<const char *, 11> names = {
        "1 numéro",  "1 numéro + complémentaire",  "2 numéros", "2 numéros + complémentaire",
        "3 numéros", "3 numéros + complémentaire", "4 numéros", "4 numéros + complémentaire",
        "5 numéros", "5 numéros + complémentaire", "6 numéros",
    };
    for (std::int16_t i = 0; i < 11; ++i)
        EXPECT_EQ(table.label(i), names[static_cast<std::size_t>(i)]);
}

TEST_F(RapportTest, StartsWithAmountsOfZero) {
    for (std::int16_t i = 0; i < 11; ++i)
        EXPECT_EQ(table.Value(i), 0.0F);
}

TEST_F(RapportTest, KeepsAnAmountForEachRank) {
    for (std::int16_t i = 0; i < 11; ++i)
        table.Value(i, static_cast<float>(i) + 0.1F);
    for (std::int16_t i = 0; i < 11; ++i)
        EXPECT_EQ(table.Value(i), static_cast<float>(i) + 0.1F);
}

TEST_F(RapportTest, ALabelOutsideTheTableIsReportedAndEmpty) {
    EXPECT_EQ(table.label(11), "");
    expectMessage(4201, "Tentative d'accès à l'élément 11 d'un objet rapport (Get Label)!");
}

TEST_F(RapportTest, ALabelOfANegativeIndexIsReportedWithThatIndex) {
    EXPECT_EQ(table.label(-1), "");
    expectMessage(4201, "Tentative d'accès à l'élément -1 d'un objet rapport (Get Label)!");
}

TEST_F(RapportTest, AnAmountStoredOutsideTheTableIsReportedAndChangesNothing) {
    table.Value(11, 5);
    expectMessage(4202, "Tentative d'accès à l'élément 11 d'un objet rapport (Let Value)!");
    for (std::int16_t i = 0; i < 11; ++i)
        EXPECT_EQ(table.Value(i), 0.0F);
}

TEST_F(RapportTest, AnAmountStoredAtANegativeIndexIsReportedAndChangesNothing) {
    table.Value(-1, 5);
    expectMessage(4202, "Tentative d'accès à l'élément -1 d'un objet rapport (Let Value)!");
    for (std::int16_t i = 0; i < 11; ++i)
        EXPECT_EQ(table.Value(i), 0.0F);
}

TEST_F(RapportTest, AnAmountReadOutsideTheTableIsReportedAndZero) {
    table.Value(10, 5);
    EXPECT_EQ(table.Value(11), 0.0F);
    expectMessage(4203, "Tentative d'accès à l'élément 11 d'un objet rapport (Get Value)!");
}

TEST_F(RapportTest, AnAmountReadAtANegativeIndexIsReportedAndZero) {
    EXPECT_EQ(table.Value(-1), 0.0F);
    expectMessage(4203, "Tentative d'accès à l'élément -1 d'un objet rapport (Get Value)!");
}

} // namespace
} // namespace boulix
