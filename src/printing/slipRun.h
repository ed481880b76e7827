// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/slip.h"

#include <cstdint>
#include <functional>

/// The printing of a game slip by slip.
namespace boulix::slipRun {

/// Strikes grid `grid` of a game (from 1) at `position` of the slip on the target.
using GridDrawer = std::function<void(std::int32_t grid, std::int16_t position, Canvas &target,
                                      slip::Placement placement)>;

/// What the user chose in the preview for a print run.
struct Choice {
    std::int32_t first = 1;
    std::int32_t last = 0;
    bool wedAndSat = false;
    bool joker = false;
    std::int16_t weekOption = 0; ///< 1 to 4 for 2 to 5 weeks of subscription, 0 for none
};

/// The paper of a run: pre-printed slips, or plain sheets with two slips each.
enum class Sheets { slips, canvas };

/// How many slips the grids `first` to `last` take.
std::int32_t slipCount(std::int32_t first, std::int32_t last);

/// Draws one page of the preview: an empty slip, and on it what slip `page` (from 1) of the grids
/// `first` to `last` holds.
void displaySlip(Picture &picture, std::int32_t first, std::int32_t last, std::int32_t page,
                 const GridDrawer &drawGrid);

/// Draws all slips of the choice, each with its grids and option marks, and ends the document.
void printSlips(Paper &paper, const Choice &choice, Sheets sheets, const GridDrawer &drawGrid);

/// The whole run for a game of `count` grids: printer check, preview, document. Nothing is
/// printed without grids, without a printer, or when the user cancels.
void run(std::int32_t count, Sheets sheets, const GridDrawer &drawGrid);

} // namespace boulix::slipRun
