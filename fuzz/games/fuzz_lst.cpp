// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/fileAccess.h"
#include "core/globals.h"
#include "eliminators/eliminators.h"
#include "games/game.h"
#include "support/demand.h"
#include "support/quietProgram.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

namespace {

/// All rules on, with thresholds in the middle.
void turnRulesOn() {
    gEliminators->init();
    const std::int16_t values[] = {4, 4, 60, 240, 5, 5, 3, 0};
    for (int rule = 1; rule <= eliminators::ruleCount; ++rule) {
        gEliminators->Item(rule).status(eliminator::on);
        gEliminators->Item(rule).Value(values[rule - 1]);
    }
    gEliminators->Item(eliminators::listRule).eliminNbr(13, eliminator::on);
}

/// The rules thin a game or fail without touching it, whatever numbers it holds.
void thin(game grids) {
    const std::int32_t before = grids.Count();
    for (gameComb &grid : grids)
        grid.sum(150);
    try {
        grids.EliminComb();
        demand(grids.Count() <= before, "the rules add no grid");
    } catch (const RuntimeFailure &) {
        demand(grids.Count() == before, "a rule that fails leaves the game alone");
    }
}

} // namespace

// The input is a game file, loaded into a game that holds a grid. What was loaded is saved again,
// and loads as the same numbers; then the rules run over it.
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

    if (gEliminators->Count() == 0)
        turnRulesOn();
    thin(grids);
    return 0;
}
