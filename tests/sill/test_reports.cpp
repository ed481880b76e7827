// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/reports.h"

#include "sill/modMain.h"
#include "support/boulixTest.h"

#include <new>

namespace boulix {
namespace {

class Reports : public FreshProgramTest {
  protected:
    void openLog() {
        modMain::gLogFile = std::ofstream(file("boulix.log"), std::ios::binary);
        modMain::gDebug = true;
    }
};

TEST_F(Reports, ANumberedErrorIsABoxWithItsNumberInTheTitle) {
    reportNumbered(2701, "Ligne illisible.");
    reportNumbered(4301, "Erreur fatale!!!", Icon::critical);
    EXPECT_EQ(
        desktop.messages,
        (std::vector<ShownBox>{{"Ligne illisible.", Icon::information, "boulix: Erreur N° 2701"},
                               {"Erreur fatale!!!", Icon::critical, "boulix: Erreur N° 4301"}}));
}

TEST_F(Reports, TheHandlerShowsAnUnexpectedFailureUnderItsNumber) {
    handleUnexpected(RuntimeFailure(Failure::overflow));
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{{"Dépassement de capacité", Icon::critical,
                                                        "Boulix Erreur système N° 6"}}));
}

TEST_F(Reports, TheHandlerClosesTheLogBeforeTheBoxAndLeavesTheSwitchOn) {
    openLog();
    desktop.onMessage = [](const ShownBox &) { EXPECT_FALSE(modMain::gLogFile.is_open()); };
    handleUnexpected(RuntimeFailure(Failure::overflow));
    EXPECT_EQ(desktop.messages.size(), 1U);
    EXPECT_TRUE(modMain::gDebug);
}

TEST_F(Reports, AMainRoutineThatFailsOrRunsOutOfMemoryEndsInItsHandlerWithTheLogClosed) {
    openLog();
    desktop.onMessage = [](const ShownBox &) { EXPECT_FALSE(modMain::gLogFile.is_open()); };
    underHandler([] { fail(Failure::overflow); });
    openLog();
    underHandler([] { throw std::bad_alloc(); });
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  {"Dépassement de capacité", Icon::critical, "Boulix Erreur système N° 6"},
                  {"Mémoire insuffisante", Icon::critical, "Boulix Erreur système N° 7"}}));
    EXPECT_TRUE(modMain::gDebug);
}

TEST_F(Reports, ACommandThatFailsIsToldAndTheLogStaysOpen) {
    openLog();
    EXPECT_FALSE(runCommand([] { fail(Failure::fileNotFound, "Fichier introuvable : x"); }));
    EXPECT_TRUE(modMain::gLogFile.is_open());
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{{"Fichier introuvable : x", Icon::critical,
                                                        "Boulix Erreur système N° 53"}}));
}

TEST_F(Reports, ACommandThatRunsOutOfMemoryIsToldInTheSameForm) {
    EXPECT_FALSE(runCommand([] { throw std::bad_alloc(); }));
    EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{{"Mémoire insuffisante", Icon::critical,
                                                        "Boulix Erreur système N° 7"}}));
}

TEST_F(Reports, ACommandThatSucceedsShowsNothing) {
    bool ran = false;
    EXPECT_TRUE(runCommand([&ran] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(Reports, WithoutADesktopOrAPlatformEveryUseIsAFailure) {
    setDesktop(nullptr);
    setPlatform(nullptr);
    EXPECT_EQ(failureNumber([] { boulix::desktop(); }), 91);
    EXPECT_EQ(failureNumber([] { boulix::platform(); }), 91);
}

} // namespace
} // namespace boulix
