// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/dates.h"
#include "core/platform.h"
#include "core/text.h"
#include "games/game.h"
#include "printing/modPrinter.h"
#include "printing/slipRun.h"

namespace boulix {

namespace {

slipRun::GridDrawer drawerOf(const game &grids) {
    return [&grids](std::int32_t grid, std::int16_t position, Canvas &target,
                    slip::Placement placement) {
        grids.Item(grid).Draw(position, target, placement.mode, placement.direction);
    };
}

} // namespace

void game::DisplayGrid(std::int32_t first, std::int32_t last, std::int32_t page,
                       Picture &picture) const {
    slipRun::displaySlip(picture, first, last, page, drawerOf(*this));
}

void game::PrintGameGrid() const {
    slipRun::run(Count(), slipRun::Sheets::slips, drawerOf(*this));
}

void game::PrintGameGridCanvas() const {
    slipRun::run(Count(), slipRun::Sheets::canvas, drawerOf(*this));
}

void game::PrintGameList() const {
    auto report = modPrinter::startReport("jeu");
    if (!report)
        return;
    report->line("Jeu imprimé le " + longDate(platform().today()));
    report->line();
    std::int32_t position = 0;
    for (const gameComb &grid : *this) {
        std::string line = zeroPadded(++position, 3) + ")   ";
        for (const std::int16_t n : grid.numbers())
            line += zeroPadded(n, 2) + "   ";
        report->line(line);
    }
    report->end();
}

} // namespace boulix
