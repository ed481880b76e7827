// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/fakePlatform.h"
#include "support/recordingPrinters.h"
#include "ui/printing/qtPrintWindows.h"
#include "ui/random/fileCabinet.h"
#include "ui/random/hand.h"
#include "ui/random/judge.h"
#include "ui/random/playerDesktop.h"

#include <QElapsedTimer>
#include <QObject>

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace boulix::testing_support {

/// A player without a plan, on the program's own windows. The same seed plays the same game.
class RandomPlayer : public QObject {
  public:
    explicit RandomPlayer(std::uint32_t seed);
    ~RandomPlayer() override;

    /// Plays so many steps, and starts the program again whenever it was quit. Ends early where
    /// something is wrong; that fails the test, with the way to it.
    void play(int steps);

  private:
    void startProgram();
    void endProgram();
    void changeTheWorld();
    void plantTrouble();
    void removeTrouble();
    void removeFolders();

    void watch();
    void turn();
    void step();
    void leave();
    void look();
    void commandCutShort();
    void boxShown(const std::string &title, const std::string &text);
    void report(const std::string &what);

    std::uint32_t seed_;
    Dice dice_;
    FakePlatform platform_;
    RecordingPrinters printers_;
    QtPrintWindows printWindows_;
    FileCabinet files_;
    Hand hand_;
    DiskWatch disk_;
    std::unique_ptr<PlayerDesktop> desktop_;
    std::map<std::string, int> visited_; ///< steps taken in each dialog
    int step_ = 0;
    int steps_ = 0;
    QElapsedTimer sinceStep_;
    int depth_ = 0;           ///< windows that wait within one another
    std::string prizes_;      ///< the default prize table, as it was at first
    bool troubled_ = false;   ///< a file of the start was spoilt
    bool stopped_ = false;    ///< a system of fixed positions stands in the way of the start
    bool unfinished_ = false; ///< a command was cut short since all agreed
    bool failed_ = false;
};

} // namespace boulix::testing_support
