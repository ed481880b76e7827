// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/frmWinDate.h"

#include "core/globals.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "winnings/gameWin.h"

namespace boulix {

frmWinDate::frmWinDate(const std::vector<gameWin> &wins, bool upToDate) {
    std::vector<ReportColumn> columns = {{"Date", "000000000000", false}, {"N°", "0000", true}};
    for (int i = 1; i <= lotoComb::size; ++i)
        columns.push_back({zeroPadded(i, 4), "0000", true});
    columns.push_back({"C", "0000000", true});
    columns.push_back({"Gains", "0000000000", true});
    lvwWinDate.columns(std::move(columns));
    lvwWinDate.whenEmpty({upToDate ? "Le jeu n'a gagné à ce rang dans aucun tirage de la base."
                                   : "Des tirages ont changé depuis la vérification : relancez "
                                     "« Tirages de la base »."});
    for (const gameWin &win : wins) {
        const dbComb &draw = gDbCombs->Item(win.idbcomb());
        const auto number = [&draw](int i) { return std::to_string(draw.comb().num(i)); };
        lines_.push_back({shortDate(draw.day()), std::to_string(draw.id()), number(1), number(2),
                          number(3), number(4), number(5), number(6),
                          std::to_string(draw.comb().compl_()), std::to_string(win.nWin())});
    }
    lvwWinDate.rows(std::ssize(lines_), [this](std::int64_t row, int column) {
        return lines_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    });
}

} // namespace boulix
