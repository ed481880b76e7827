// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/appInfo.h"

#include "support/boulixTest.h"

namespace boulix {
namespace {

using AppInfo = FreshProgramTest;

TEST_F(AppInfo, InitTakesTheProgramsOwnNameAndVersionAndTheRestFromItsArguments) {
    appInfo info;
    info.init("Attention!!!", "Marcel Quillon", "Quillon Logiciels", 2003);
    EXPECT_EQ(info.name(), "boulix");
    EXPECT_EQ(info.version(), "4.0.3");
    EXPECT_EQ(info.fullName(), "boulix Version 4.0.3");
    EXPECT_EQ(info.description(), "");
    EXPECT_EQ(info.disclaimer(), "Attention!!!");
    EXPECT_EQ(info.author(), "Marcel Quillon");
    EXPECT_EQ(info.company(), "Quillon Logiciels");
    EXPECT_EQ(info.copyright(), 2003);
}

TEST_F(AppInfo, EveryFieldIsWrittenAndReadUnderItsOwnName) {
    appInfo info;
    info.name("a");
    info.version("b");
    info.fullName("c");
    info.description("d");
    info.disclaimer("e");
    info.author("f");
    info.company("g");
    info.copyright(1);
    EXPECT_EQ(info.name() + info.version() + info.fullName() + info.description() +
                  info.disclaimer() + info.author() + info.company(),
              "abcdefg");
    EXPECT_EQ(info.copyright(), 1);
}

TEST_F(AppInfo, TheSplashShowsItsSixLabels) {
    appInfo info;
    info.init("Attention!!!", "Marcel Quillon", "Quillon Logiciels", 2003);
    info.showSplash();
    ASSERT_EQ(desktop.splashes.size(), 1U);
    EXPECT_TRUE(desktop.splashVisible);
    const SplashTexts &splash = desktop.splashes.front();
    EXPECT_EQ(splash.lblVersion, "Version 4.0.3");
    EXPECT_EQ(splash.lblProductName, "boulix");
    EXPECT_EQ(splash.lblCompany, "Quillon Logiciels");
    EXPECT_EQ(splash.lblCopyright, "(c) 2003");
    EXPECT_EQ(splash.lblPlatform, "Windows 98, ME, NT, 2000, XP");
    EXPECT_EQ(splash.lblWarning, "Attention!!!");
}

} // namespace
} // namespace boulix
