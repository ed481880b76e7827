// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/canvas.h"

#include <array>
#include <cstdint>

/// The bet slip: where its boxes lie, and the crosses that are struck into them.
namespace boulix::slip {

inline constexpr std::int32_t gridsPerSlip = 8;

/// How a cross is moved after it was turned.
inline constexpr std::int16_t onSlip = 0;    ///< by the offsets of the printer settings
inline constexpr std::int16_t onCanvas1 = 1; ///< onto the first slip of the canvas sheet
inline constexpr std::int16_t onCanvas2 = 2; ///< onto the second one
inline constexpr std::int16_t onPicture = 3; ///< not at all

/// How a cross goes on the sheet: the movement, and the direction in which the slip is fed.
/// A movement that is none of the four above moves nothing.
struct Placement {
    std::int16_t mode;
    std::int32_t direction;
};

using GridNumbers = std::array<std::int16_t, 6>;

/// Strikes the six numbers of a grid that stands at `position` (from 1) on the slip.
void drawGrid(Canvas &target, const GridNumbers &numbers, std::int16_t position,
              Placement placement);

/// The option marks, one cross each.
void drawWeekDraws(Canvas &target, bool wedAndSat, Placement placement);
void drawJoker(Canvas &target, bool plays, Placement placement);
/// `option` 1 to 4 stands for 2 to 5 weeks; any other leaves no mark.
void drawSubscription(Canvas &target, std::int16_t option, Placement placement);

/// Draws the slip as it is before anything is struck: boxes, their numbers, separators.
void drawEmptySlip(Picture &picture);

} // namespace boulix::slip
