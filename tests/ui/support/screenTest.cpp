// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/screenTest.h"

#include "core/globals.h"
#include "sill/appInfo.h"
#include "sill/modMain.h"
#include "ui/workbench/mainParts.h"
#include "winnings/rapport.h"

#include <QtTest/QTest>

namespace boulix::testing_support {

ScreenTest::ScreenTest() : desktop(std::make_unique<QtDesktop>(mainParts())) {
    setPlatform(&platform);
    setDesktop(desktop.get());
    setPrinterSystem(&printers);
    resetGlobals();
    gAppInfo->init("", "", "", 2003);
    gRapport->save(file("defrapp.rap"));
    resetGlobals();
}

ScreenTest::~ScreenTest() {
    forget();
    setDesktop(nullptr);
    setPrinterSystem(nullptr);
    setPlatform(nullptr);
}

MainWindow &ScreenTest::start() {
    modMain::Main();
    MainWindow &window = mainWindowOnScreen();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    return window;
}

MainWindow &ScreenTest::mainWindowOnScreen() const {
    auto *window = dynamic_cast<MainWindow *>(desktop->mainWidget());
    if (!window)
        throw std::runtime_error("no main window");
    return *window;
}

void ScreenTest::forget() {
    desktop = std::make_unique<QtDesktop>(mainParts()); // the windows go before what they show
    setDesktop(desktop.get());
    resetGlobals();
    modMain::gDebug = false;
    modMain::gLogFile = std::ofstream();
}

} // namespace boulix::testing_support
