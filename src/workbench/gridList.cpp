// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/gridList.h"

#include "games/gameComb.h"

namespace boulix::gridList {

std::vector<ReportColumn> columns() {
    std::vector<ReportColumn> columns = {{"N°", "00000000)", false}};
    for (const char *header : {"1", "2", "3", "4", "5", "6"})
        columns.push_back({header, "000", true});
    return columns;
}

std::string cell(const gameComb &grid, std::int64_t row, int column) {
    if (column == 0)
        return std::to_string(row + 1) + ")";
    return std::to_string(grid.num(column));
}

} // namespace boulix::gridList
