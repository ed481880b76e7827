// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"

#include <cstdint>
#include <string>
#include <vector>

namespace boulix {

class gameComb;

/// The look that all lists of grids share: a column "N°" and one for each of the six numbers.
namespace gridList {

std::vector<ReportColumn> columns();

/// The text of the grid at `row` (from 0) in a column: the row's number followed by ")", or a
/// number as it is.
std::string cell(const gameComb &grid, std::int64_t row, int column);

} // namespace gridList
} // namespace boulix
