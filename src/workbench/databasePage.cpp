// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/databasePage.h"

#include "core/globals.h"
#include "core/platform.h"
#include "draws/dbCombs.h"
#include "sill/reports.h"
#include "workbench/windowFrame.h"

#include <iterator>
#include <memory>

namespace boulix {

namespace {

enum Column { dateColumn, idColumn, firstNumberColumn, complementaryColumn = 8 };

std::string cellText(const dbComb &draw, int column) {
    switch (column) {
    case dateColumn:
        return shortDate(draw.day());
    case idColumn:
        return std::to_string(draw.id());
    case complementaryColumn:
        return std::to_string(draw.comb().compl_());
    default:
        return std::to_string(draw.comb().num(column - firstNumberColumn + 1));
    }
}

/// The draws up to the first one whose date cannot be shown.
std::vector<dbComb> showableDraws() {
    std::vector<dbComb> draws;
    for (const dbComb &draw : *gDbCombs) {
        if (!isValidDate(draw.day()))
            break;
        draws.push_back(draw);
    }
    return draws;
}

} // namespace

void databasePage::init() {
    std::vector<ReportColumn> columns = {{"Date", " 00/00/0000 ", false}};
    for (const char *header : {"T", "1", "2", "3", "4", "5", "6", "C"})
        columns.push_back({header, " 000 ", true});
    lvwDBcomb.columns(std::move(columns));
    grdDB.editable(false); // it only displays, on an empty base too
}

void databasePage::fillList() {
    // Copies: until the next filling the list stays as it is, whatever becomes of the base.
    const auto draws = std::make_shared<const std::vector<dbComb>>(showableDraws());
    lvwDBcomb.rows(std::ssize(*draws), [draws](std::int64_t row, int column) {
        return cellText((*draws)[static_cast<std::size_t>(row)], column);
    });
    if (std::ssize(*draws) < gDbCombs->Count())
        throw withLine(RuntimeFailure(Failure::overflow),
                       "La date du tirage n° " + std::to_string(std::ssize(*draws) + 1) +
                           " du fichier " + gDbCombs->dbFile().name() + " est illisible.");
}

std::int32_t databasePage::getSelectedDraw() const {
    if (!view_)
        return 0;
    const std::vector<std::int64_t> rows = view_->selectedRows();
    return rows.empty() ? 0 : static_cast<std::int32_t>(rows.front());
}

void databasePage::clickRow(std::int32_t position) {
    const dbComb &draw = gDbCombs->Item(position);
    grdDB.editable(true);
    grdDB.maxSelected(7);
    grdDB.clearSelection();
    for (int i = 1; i <= lotoComb::size; ++i)
        grdDB.selectNumber(draw.comb().num(i));
    grdDB.selectComplementary(draw.comb().compl_());
    grdDB.editable(false);
    lblDBCombDesc = "Tirage n° " + std::to_string(draw.id()) + " du " + shortDate(draw.day());
    if (view_)
        view_->refresh();
}

void databasePage::clickButton(int index) {
    bool carriedThrough = false;
    runCommand([&] { carriedThrough = runButton(index); });
    if (carriedThrough)
        window_.showDrawCount();
}

/// True when the action was carried through.
bool databasePage::runButton(int index) {
    switch (index) {
    case importDraws:
        if (!gDbCombs->ImportFdjFile())
            return false;
        window_.frmUpdateDBList();
        return true;
    case enterDraw:
        gDbCombs->AddNewDBComb();
        window_.frmUpdateDBList();
        return true;
    case modifyDraw:
        return modifySelected();
    case removeDraw:
        return removeSelected();
    case printBase:
        gDbCombs->PrintDB();
        return true;
    case exportBase:
        gDbCombs->ExportDB();
        return true;
    default:
        return false;
    }
}

bool databasePage::modifySelected() {
    const std::int32_t row = getSelectedDraw();
    if (row == 0)
        return false;
    gDbCombs->modify(row);
    window_.frmUpdateDBList();
    return true;
}

bool databasePage::removeSelected() {
    const std::int32_t row = getSelectedDraw();
    if (row == 0)
        return false;
    gDbCombs->Remove(row);
    window_.frmUpdateDBList();
    return true;
}

} // namespace boulix
