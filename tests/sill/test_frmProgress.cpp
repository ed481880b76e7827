// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/frmProgress.h"

#include "sill/desktop.h"
#include "support/boulixTest.h"

namespace boulix {
namespace {

using Progress = BoulixTest;

TEST_F(Progress, AppearsWithItsTextsOneBarAndTheCancelFlagReset) {
    ProgressShown window("Importation", "Lecture en cours...");
    EXPECT_EQ(window->caption, "Importation");
    EXPECT_EQ(window->lblInfo, "Lecture en cours...");
    EXPECT_TRUE(window->ProgressBar.visible);
    EXPECT_FALSE(window->ProgressBar2.visible);
    EXPECT_TRUE(window->cancelVisible);
    EXPECT_FALSE(window->cancelled());
}

TEST_F(Progress, TheMainWindowTakesNoClicksWhileItIsUp) {
    EXPECT_TRUE(desktop.mainWindowEnabled());
    {
        const ProgressShown window("a", "b");
        EXPECT_FALSE(desktop.mainWindowEnabled());
    }
    EXPECT_TRUE(desktop.mainWindowEnabled());
}

TEST_F(Progress, TheMainWindowComesBackWhenAFailureEndsTheJob) {
    EXPECT_EQ(failureNumber([] {
                  const ProgressShown window("a", "b");
                  fail(Failure::inputPastEnd);
              }),
              62);
    EXPECT_TRUE(desktop.mainWindowEnabled());
}

TEST_F(Progress, UnloadsOnceEvenWhenItIsUnloadedEarly) {
    {
        ProgressShown window("a", "b");
        window.unload();
        EXPECT_TRUE(desktop.mainWindowEnabled());
        window.unload();
    }
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    EXPECT_TRUE(desktop.progressRuns.front().unloaded);
}

TEST_F(Progress, ACancelClickIsSeenAtTheNextTestOfTheFlag) {
    desktop.cancelProgressAt(2);
    ProgressShown window("a", "b");
    boulix::desktop().runEvents();
    EXPECT_FALSE(window->cancelled());
    boulix::desktop().runEvents();
    EXPECT_TRUE(window->cancelled());
    EXPECT_EQ(window->cancelTag, "1");
}

TEST_F(Progress, OnlyATagWhoseNumericValueIsOneCancels) {
    frmProgress window;
    for (const char *tag : {"1", " 1", "1.0", "1 x"}) {
        window.cancelTag = tag;
        EXPECT_TRUE(window.cancelled()) << tag;
    }
    for (const char *tag : {"", "0", "-1", "10", "oui"}) {
        window.cancelTag = tag;
        EXPECT_FALSE(window.cancelled()) << tag;
    }
}

TEST_F(Progress, ABarStartsAtTheBeginningOfItsRange) {
    progressBar bar;
    bar.value = 50;
    bar.range(1, 4858);
    EXPECT_EQ(bar.min, 1);
    EXPECT_EQ(bar.max, 4858);
    EXPECT_EQ(bar.value, 1);
    bar.range(1, 1);
    EXPECT_EQ(failureNumber([&bar] { bar.range(1, 0); }), 380);
    EXPECT_EQ(bar.max, 1);
}

} // namespace
} // namespace boulix
