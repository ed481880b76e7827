// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/failure.h"
#include "support/fakePlatform.h"
#include "support/files.h"
#include "support/recordingPrinters.h"
#include "support/scriptedDesktop.h"
#include "support/scriptedPrintWindows.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

namespace boulix::testing_support {

/// A program that has just been started: a scripted desktop, a settable platform and recording
/// printers stand behind the window sill, no global object is there yet, no log, no current folder.
class FreshProgramTest : public ::testing::Test {
  protected:
    FreshProgramTest();
    /// Fails the test when answers were left over or the progress window is still up.
    ~FreshProgramTest() override;

    /// The application folder of this test, empty at first, removed at its end.
    std::string folder() const { return platform.applicationFolder(); }
    /// The full name of `name` in that folder.
    std::string file(const std::string &name) const { return folder() + "/" + name; }

    ScriptedDesktop desktop;
    FakePlatform platform;
    RecordingPrinters printers;
    ScriptedPrintWindows printWindows;
};

/// The usual fixture: identity and binomial table are there, as the start-up leaves
/// them; no data file has been looked for. The user has opened a file in another folder
/// since: what belongs into the application folder and lands in this one is seen.
class BoulixTest : public FreshProgramTest {
  protected:
    BoulixTest();

    /// The folder last used, with a separator at its end, as a dialog leaves it.
    std::string lastUsedFolder() const { return lastUsed_.path() + "/"; }

  private:
    TemporaryFolder lastUsed_;
};

/// Runs `action` and gives the run-time failure it ended with, or nothing.
std::optional<RuntimeFailure> failureOf(const std::function<void()> &action);
/// The number of that failure, 0 where there was none.
int failureNumber(const std::function<void()> &action);

} // namespace boulix::testing_support

namespace boulix {
using testing_support::BoulixTest;
using testing_support::failureNumber;
using testing_support::failureOf;
using testing_support::fileExists;
using testing_support::FreshProgramTest;
using testing_support::NumberScript;
using testing_support::readBytes;
using testing_support::ShownBox;
using testing_support::ShownChoice;
using testing_support::writeBytes;
} // namespace boulix
