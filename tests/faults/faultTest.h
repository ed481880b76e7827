// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/globals.h"
#include "core/modMaths.h"
#include "draws/dbCombs.h"
#include "eliminators/eliminators.h"
#include "faultySystem.h"
#include "forecasts/pronostics.h"
#include "games/game.h"
#include "games/gameDef.h"
#include "games/modGame.h"
#include "sill/appInfo.h"
#include "sill/reports.h"
#include "support/boulixTest.h"
#include "support/lottery.h"
#include "winnings/rapport.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// What breaks, and the number under which the user is told.
struct Fault {
    int error;
    int number;
};
inline constexpr Fault faults[] = {{ENOSPC, 61}, {EIO, 57}, {EACCES, 70}};

/// Runs a command again and again in a folder of its own, and each time another of its system
/// calls fails.
class FaultTest : public BoulixTest {
  protected:
    /// The program as the start leaves it, with some data of each kind in memory, in an empty
    /// folder.
    void startAfresh() {
        for (const auto &entry : std::filesystem::directory_iterator(folder()))
            std::filesystem::remove_all(entry);
        resetGlobals();
        gAppInfo->init("", "", "", 2003);
        gDbCombs->dbFile().path(folder());
        gDbCombs->dbFile().name("tirages.dbl");
        for (std::int16_t first = 1; first <= 40; ++first)
            addDraw({first, 42, 43, 44, 45, 46, 47});
        for (int i = 0; i < 40; ++i)
            currentGame->Add(GridRef({1, 2, 3, 4, 5, 6}, 21));
        gEliminators->init();
        gEliminators->Item(3).Value(50);
        gPronostics->init();
        gRapport->Value(10, 12.5F);
        desktop.messages.clear();
    }

    static std::string draws() {
        std::ostringstream text;
        for (const dbComb &draw : *gDbCombs)
            text << draw.day() << '/' << draw.id() << ':' << draw.comb().num(1) << '\n';
        return text.str();
    }
    static std::string grids() {
        std::ostringstream text;
        for (const gameComb &grid : *currentGame)
            for (const std::int16_t n : grid.numbers())
                text << n << ' ';
        return text.str();
    }
    static std::string rules() {
        std::ostringstream text;
        for (int i = 1; i <= gEliminators->Count(); ++i)
            text << gEliminators->Item(i).label() << gEliminators->Item(i).Value() << '\n';
        return text.str();
    }
    static std::string prizes() {
        std::ostringstream text;
        for (std::int16_t i = 0; i < rapport::size; ++i)
            text << gRapport->Value(i) << ' ';
        return text.str();
    }
    static std::string forecasts() {
        std::ostringstream text;
        for (int i = 1; i <= gPronostics->Count(); ++i)
            text << gPronostics->Item(i).label() << '\n';
        return text.str();
    }
    static std::string textOf(const gameDef &def) {
        std::ostringstream text;
        text << def.label() << ' ' << def.nComb();
        return text.str();
    }

    std::string bytesOf(const std::string &name) const {
        return fileExists(file(name)) ? readBytes(file(name)) : "(none)";
    }
};

/// A call that closes what was only read: nothing is lost whatever the system says to it.
inline bool closesARead(const std::vector<std::string> &calls, std::size_t n) {
    const std::string &call = calls[n - 1];
    return n > 1 && call.rfind("close ", 0) == 0 && calls[n - 2] == "read " + call.substr(6);
}

} // namespace boulix::testing_support

namespace boulix {
using testing_support::closesARead;
using testing_support::Fault;
using testing_support::faults;
using testing_support::FaultTest;
using testing_support::FaultySystem;
} // namespace boulix
