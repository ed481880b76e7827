// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/help.h"

#include "support/boulixTest.h"
#include "support/locations.h"

#include <filesystem>

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

TEST_F(Help, EachPlaceHasThePageThatTellsOfIt) {
    const auto page = [](const std::vector<std::string> &place) {
        return help::pageName(help::contextOf(place));
    };
    EXPECT_EQ(page({"txtWinNbr", "systemMaker", "frameGameTab_3", "TabGame", "frameTab_4"}),
              "systemes");
    EXPECT_EQ(page({"txtRapPrice_0", "frameGameTab_2", "frameTab_4"}), "gains");
    EXPECT_EQ(page({"lvwGame", "frameTab_4"}), "jeux");
    EXPECT_EQ(page({"cmdOK", "frmNbrSelector", "frmMain", "frameTab_3"}), "numeros");
    EXPECT_EQ(page({"messageBox", "frmMain", "frameTab_3"}), "eliminateurs");
    EXPECT_EQ(page({"frmAbout"}), "index");
    EXPECT_EQ(page({}), "index");
}

TEST_F(Help, EveryPageOfAPlaceIsThere) {
    const auto pages = testing_support::checkoutFolder() / "help";
    int named = 0;
    for (std::int32_t context = 0; context < 1000; ++context)
        if (const std::string name = help::pageName(context); name != std::to_string(context)) {
            ++named;
            EXPECT_TRUE(std::filesystem::exists(pages / (name + ".html"))) << name;
        }
    EXPECT_EQ(named, 13);
}

TEST_F(Help, TheHelpOfAPlaceIsThatOfTheProgramsFolder) {
    help::showPageOf({"frameTab_0"});
    ASSERT_EQ(desktop.helpCalls.size(), 1U);
    EXPECT_EQ(desktop.helpCalls[0].target, file("boulix.chm") + ">DefaultWindow");
    EXPECT_EQ(desktop.helpCalls[0].context, help::contextOf({"frameTab_0"}));
}

} // namespace
} // namespace boulix
