// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/fakePlatform.h"
#include "support/recordingPrinters.h"
#include "ui/frame/mainWindow.h"
#include "ui/frame/qtDesktop.h"
#include "ui/support/robot.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace boulix::testing_support {

/// The program with its real screens, on a settable system whose application folder holds nothing
/// but a default prize table, so that a start asks nothing. A robot stands in for the user.
class ScreenTest : public ::testing::Test {
  protected:
    ScreenTest();
    ~ScreenTest() override;

    std::string file(const std::string &name) const {
        return platform.applicationFolder() + "/" + name;
    }
    /// Starts the program: `Main` runs, and the main window is there afterwards.
    MainWindow &start();
    MainWindow &mainWindowOnScreen() const;
    /// Ends the program without a question, as far as a second start needs it.
    void forget();

    FakePlatform platform;
    RecordingPrinters printers;
    std::unique_ptr<QtDesktop> desktop;
    Robot robot;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::click;
using testing_support::control;
using testing_support::ScreenTest;
using testing_support::visibleWindow;
} // namespace boulix
