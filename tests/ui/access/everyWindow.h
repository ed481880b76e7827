// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/support/screenTest.h"

#include <functional>
#include <string>

class QWidget;

namespace boulix::testing_support {

/// The program with something in every list and board: draws, a statistic, a game, a forecast.
class EveryWindowTest : public ScreenTest {
  protected:
    EveryWindowTest();
    ~EveryWindowTest() override;

    using Look = std::function<void(QWidget &window, const std::string &name)>;

    /// Goes to every place of the main window.
    void lookAtEveryPage(const Look &look);
    /// Opens every other window and dialog in turn, with something in it.
    void lookAtEveryDialog(const Look &look);

    MainWindow &window;

  private:
    static void open(QWidget &dialog, const Look &look);
    static void openFrameWindows(const Look &look);
    static void openGameWindows(const Look &look);
    static void openWinningsWindows(const Look &look);
    static void openPrintWindows(const Look &look);
    static void openGraphWindows(const Look &look);
    void openMessages(const Look &look);
};

} // namespace boulix::testing_support
