// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "games/game.h"
#include "support/demand.h"
#include "support/quietProgram.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

// The input is a game file, loaded into a game that holds a grid. What was loaded is saved again,
// and loads as the same numbers.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static bench_support::QuietDesktop desktop;
    static const bench_support::QuietProgram program(desktop);
    desktop.fileName = program.file("jeu.lst");
    replaceFile(desktop.fileName, {reinterpret_cast<const char *>(data), size});
    game grids;
    grids.Add();
    try {
        grids.load();
    } catch (const RuntimeFailure &) {
        demand(grids.Count() == 1, "a failure leaves the game alone");
        return 0;
    }
    const auto slots = static_cast<std::int32_t>(std::nearbyint(static_cast<double>(size) / 128));
    demand(grids.Count() == 1 || grids.Count() == 1 + slots,
           "the length of the file says how many grids it holds");

    desktop.fileName = program.file("copie.lst");
    grids.save();
    game again;
    again.load();
    demand(again.Count() == (grids.Count() > 1 ? grids.Count() : 0), "a saved game loads back");
    for (std::int32_t i = 1; i <= again.Count(); ++i)
        demand(again.Item(i).numbers() == grids.Item(i).numbers(), "number by number");
    deleteFile(desktop.fileName);
    return 0;
}
