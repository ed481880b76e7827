// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/modMain.h"

#include "support/boulixTest.h"

#include <filesystem>

namespace boulix {
namespace {

struct CommandLineCase {
    const char *behaviour;
    const char *commandLine;
    std::int16_t maxArgs;
    std::vector<std::string> tokens;
};

class CommandLine : public FreshProgramTest,
                    public ::testing::WithParamInterface<CommandLineCase> {};

TEST_P(CommandLine, IsCutIntoTokens) {
    platform.arguments = GetParam().commandLine;
    EXPECT_EQ(modMain::parseCommandLine(GetParam().maxArgs), GetParam().tokens);
}

INSTANTIATE_TEST_SUITE_P(
    , CommandLine,
    ::testing::Values(
        CommandLineCase{"EmptyGivesAnEmptyFirstToken", "", 1, {"", ""}},
        CommandLineCase{"OnlyBlanksGiveAnEmptyFirstToken", " \t  ", 1, {"", ""}},
        CommandLineCase{"OneToken", "-debug", 1, {"", "-debug"}},
        CommandLineCase{"BlanksAndTabsAroundDoNotCount", "\t -debug\t", 1, {"", "-debug"}},
        CommandLineCase{"WhatIsBehindTheLastTokenAskedForIsLeft", "-debug x", 1, {"", "-debug"}},
        CommandLineCase{"TheFirstTokenComesFirst", "x -debug", 1, {"", "x"}},
        CommandLineCase{"CapitalsAreKept", "-DEBUG", 1, {"", "-DEBUG"}},
        CommandLineCase{"ThreeTokens", "a  b\tc d", 3, {"", "a", "b", "c"}},
        CommandLineCase{"FewerThanAskedFor", "a b", 5, {"", "a", "b"}},
        CommandLineCase{"NoneAskedFor", "a b", 0, {"", ""}},
        CommandLineCase{
            "OtherWhiteSpaceBelongsToATokenAndSoDoQuotes", "\"a\n b\"", 2, {"", "\"a\n", "b\""}}),
    [](const auto &test) { return test.param.behaviour; });

class Log : public FreshProgramTest {
  protected:
    void open() {
        modMain::gLogFile = std::ofstream(file("boulix.log"), std::ios::binary);
        modMain::gDebug = true;
    }
};

TEST_F(Log, OneTokenIsAskedForWithoutAnArgument) {
    platform.arguments = "a b";
    EXPECT_EQ(modMain::parseCommandLine(), (std::vector<std::string>{"", "a"}));
}

TEST_F(Log, WithoutTheSwitchALineGoesNowhere) {
    modMain::logLine("modMain.Main: rien");
    EXPECT_FALSE(fileExists(file("boulix.log")));
}

TEST_F(Log, ALineEndsWithCrLfAndStandsInCodePage1252) {
    open();
    modMain::logLine("modMain.Main: Précalcul des Cnk");
    modMain::logLine("");
    modMain::gLogFile.close();
    EXPECT_EQ(readBytes(file("boulix.log")), "modMain.Main: Pr\xE9"
                                             "calcul des Cnk\r\n\r\n");
}

TEST_F(Log, ALineAfterTheLogWasClosedIsAFailure) {
    open();
    modMain::gLogFile.close();
    EXPECT_EQ(failureNumber([] { modMain::logLine("trop tard"); }), 52);
}

TEST_F(Log, ANoteIsALineLikeAnyOtherButDroppedOnceTheLogIsClosed) {
    modMain::logNote("rien");
    EXPECT_FALSE(fileExists(file("boulix.log")));
    open();
    modMain::logNote("dbCombs.ImportFdjFile: ordre rétabli");
    modMain::gLogFile.close();
    EXPECT_EQ(failureNumber([] { modMain::logNote("trop tard"); }), 0);
    EXPECT_EQ(readBytes(file("boulix.log")), "dbCombs.ImportFdjFile: ordre r\xE9tabli\r\n");
}

TEST_F(Log, ClosingItAgainAfterAHandlerDidIsNoFailure) {
    open();
    modMain::closeLog();
    modMain::closeLog();
    EXPECT_EQ(desktop.messages, std::vector<ShownBox>{});
    EXPECT_TRUE(modMain::gDebug);
}

TEST_F(Log, OnAFullDiskIsToldAtItsCloseAtTheLatest) {
    std::filesystem::create_symlink("/dev/full", file("boulix.log"));
    modMain::openLog();
    modMain::logLine("modMain.Main: Précalcul des Cnk");
    EXPECT_EQ(desktop.messages, std::vector<ShownBox>{});
    modMain::closeLog();
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Disque plein : " + file("boulix.log"), Icon::critical,
                                      "Boulix Erreur système N° 61"}}));
}

TEST_F(Log, OnAFullDiskIsToldOnceAndTheProgramGoesOnWithoutIt) {
    std::filesystem::create_symlink("/dev/full", file("boulix.log"));
    modMain::openLog();
    for (int line = 0; line < 3; ++line)
        modMain::logLine(std::string(100'000, 'x')); // more than waits in a buffer
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"Disque plein : " + file("boulix.log"), Icon::critical,
                                      "Boulix Erreur système N° 61"}}));
    EXPECT_FALSE(modMain::gDebug);
    EXPECT_FALSE(modMain::gLogFile.is_open());
}

} // namespace
} // namespace boulix
