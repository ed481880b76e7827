// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "eliminators/eliminator.h"

#include "support/boulixTest.h"

namespace boulix {
namespace {

class EliminatorTest : public BoulixTest {
  protected:
    static ShownBox fatalBox(const std::string &number) {
        return {"Erreur fatale!!!\r\nVeuillez contacter le support technique.", Icon::critical,
                "boulix: Erreur N° " + number};
    }
    int flagged() const {
        int count = 0;
        for (int n = 1; n <= eliminator::lastNumber; ++n)
            count += rule.eliminNbr(n) != 0;
        return count;
    }

    eliminator rule;
};

TEST_F(EliminatorTest, ANewRuleIsOffWithoutThresholdAndWithoutFlags) {
    EXPECT_EQ(rule.label(), "");
    EXPECT_EQ(rule.Value(), 0);
    EXPECT_EQ(rule.status(), 0);
    EXPECT_EQ(flagged(), 0);
}

TEST_F(EliminatorTest, EachNumberOf1To49HasAFlagOfItsOwn) {
    for (int n = 1; n <= 49; ++n) {
        rule.eliminNbr(n, -1);
        EXPECT_EQ(rule.eliminNbr(n), -1);
        EXPECT_EQ(flagged(), n);
    }
}

TEST_F(EliminatorTest, WritingAFlagOutside0To49ShowsNumber2801AndChangesNothing) {
    rule.eliminNbr(50, -1);
    rule.eliminNbr(-1, -1);
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{fatalBox("2801"), fatalBox("2801")}));
    EXPECT_EQ(flagged(), 0);
}

TEST_F(EliminatorTest, ReadingAFlagOutside0To49ShowsNumber2802AndGives0) {
    EXPECT_EQ(rule.eliminNbr(50), 0);
    EXPECT_EQ(rule.eliminNbr(-1), 0);
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{fatalBox("2802"), fatalBox("2802")}));
}

TEST_F(EliminatorTest, Index0PassesTheGuardAndIsARunTimeFailure) {
    EXPECT_EQ(failureNumber([&] { (void)rule.eliminNbr(0); }), 9);
    EXPECT_EQ(failureNumber([&] { rule.eliminNbr(0, -1); }), 9);
    EXPECT_TRUE(desktop.messages.empty());
}

} // namespace
} // namespace boulix
