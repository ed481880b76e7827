// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/help.h"

#include "support/boulixTest.h"

namespace boulix {
namespace {

using Help = BoulixTest;

TEST_F(Help, WithAWindowTheTargetIsBothTrimmedWithASignBetween) {
    help::Show(" C:\\boulix.chm ", " DefaultWindow ");
    ASSERT_EQ(desktop.helpCalls.size(), 1U);
    EXPECT_EQ(desktop.helpCalls[0].target, "C:\\boulix.chm>DefaultWindow");
    EXPECT_EQ(desktop.helpCalls[0].context, std::nullopt);
}

TEST_F(Help, WithoutAWindowTheTargetIsTheFileAsItIs) {
    help::Show(" boulix.chm ", "");
    EXPECT_EQ(desktop.helpCalls.at(0).target, " boulix.chm ");
}

TEST_F(Help, AContextIsHandedOn) {
    help::Show("boulix.chm", "", 0);
    help::Show("boulix.chm", "w", 1200);
    EXPECT_EQ(desktop.helpCalls.at(0).context, 0);
    EXPECT_EQ(desktop.helpCalls.at(1).context, 1200);
}

} // namespace
} // namespace boulix
