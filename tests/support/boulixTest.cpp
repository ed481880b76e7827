// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/boulixTest.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "printing/modPrinter.h"
#include "sill/appInfo.h"
#include "sill/modMain.h"

namespace boulix::testing_support {

namespace {

void forgetTheLastRun() {
    resetGlobals();
    modMaths::cnkTable = {};
    modMain::gDebug = false;
    modMain::gLogFile = std::ofstream();
    modMain::gCurrentDir.clear();
    modPrinter::offset_X = 0;
    modPrinter::offset_Y = 0;
    modPrinter::direction = modPrinter::directionUp;
    modPrinter::currentPrinter("");
}

} // namespace

FreshProgramTest::FreshProgramTest() {
    setDesktop(&desktop);
    setPlatform(&platform);
    setPrinterSystem(&printers);
    setPrintWindows(&printWindows);
    forgetTheLastRun();
}

FreshProgramTest::~FreshProgramTest() {
    EXPECT_EQ(desktop.unusedAnswers(), "") << "answers were laid down and never asked for";
    EXPECT_TRUE(desktop.mainWindowEnabled()) << "the progress window is still up";
    forgetTheLastRun(); // before the platform: a log may lie in its folder
    setDesktop(nullptr);
    setPlatform(nullptr);
    setPrinterSystem(nullptr);
    setPrintWindows(nullptr);
}

BoulixTest::BoulixTest() {
    gAppInfo->init("Avertissement.", "Marcel Quillon", "Quillon Logiciels", 2003);
    modMaths::precomputeCnk();
    modMain::gCurrentDir = lastUsedFolder();
}

std::optional<RuntimeFailure> failureOf(const std::function<void()> &action) {
    try {
        action();
    } catch (const RuntimeFailure &failure) {
        return failure;
    }
    return std::nullopt;
}

int failureNumber(const std::function<void()> &action) {
    const auto failure = failureOf(action);
    return failure ? failure->number() : 0;
}

} // namespace boulix::testing_support
