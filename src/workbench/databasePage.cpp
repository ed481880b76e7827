// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/databasePage.h"

#include "core/fileAccess.h"
#include "core/globals.h"
#include "core/platform.h"
#include "draws/dbCombs.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "sill/undo.h"
#include "workbench/windowFrame.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

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

std::string counted(std::int64_t count, const char *one, const char *many) {
    return std::to_string(count) + " " + (count > 1 ? many : one);
}

/// The invented draws that come with the program.
xFile sampleHistory() {
    xFile file;
    file.path(platform().applicationFolder() + pathSeparator + "samples");
    file.name("historique-exemple.txt");
    return file;
}

/// What a finished import has brought to a base of `before` draws. Draws that it struck out of the
/// base itself count as known.
std::string importNote(std::int32_t before) {
    const std::int64_t fresh = std::max(0, gDbCombs->Count() - before);
    const std::int64_t known = std::max<std::int64_t>(0, gDbCombs->importedDraws() - fresh);
    const std::string there = counted(known, "déjà présent", "déjà présents") + ".";
    if (fresh == 0)
        return "Aucun nouveau tirage, " + there;
    return counted(fresh, "nouveau tirage importé, ", "nouveaux tirages importés, ") + there;
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
    shown_ = 0;
    sayWhenEmpty();
    finder.followBase();
    markFound();
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
    shown_ = position;
    lvwDBcomb.pointTo(position - 1);
    if (!view_)
        return;
    view_->goToRow(position, false);
    view_->refresh();
}

void databasePage::typeSearch(const std::string &text) {
    const std::int32_t position = finder.ask(text);
    markFound();
    goTo(position);
}

void databasePage::findNext() {
    goTo(finder.next());
}

void databasePage::findPrevious() {
    goTo(finder.previous());
}

/// Selects the row, as a click on it would; with 0 the selected one stays.
void databasePage::goTo(std::int32_t position) {
    const bool isRow = position >= 1 && position <= lvwDBcomb.rowCount();
    if (isRow && view_)
        view_->goToRow(position, true);
    if (isRow)
        clickRow(position);
    else if (view_)
        view_->refresh();
}

void databasePage::markFound() {
    if (finder.found().empty())
        lvwDBcomb.marks({});
    else
        lvwDBcomb.marks([this](std::int64_t row) {
            return finder.isFound(static_cast<std::int32_t>(row + 1));
        });
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
        return importDrawsFrom([] { return gDbCombs->ImportFdjFile(); });
    case enterDraw:
        return enter();
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

databasePage::Outcome databasePage::change(const std::string &name,
                                           const std::function<bool()> &command) {
    KeptDraws before = gDbCombs->kept();
    Outcome outcome;
    try {
        outcome.carriedThrough = command();
    } catch (...) {
        record(name, std::move(before)); // memory has changed, whatever became of the file
        throw;
    }
    outcome.changed = record(name, std::move(before));
    return outcome;
}

/// True when the base is not as it was before.
bool databasePage::record(const std::string &name, KeptDraws before) {
    const auto &draws = before.draws;
    if (std::equal(draws.begin(), draws.end(), gDbCombs->begin(), gDbCombs->end()))
        return false;
    const std::size_t bytes = draws.capacity() * sizeof(dbComb);
    const auto kept = std::make_shared<KeptDraws>(std::move(before));
    gUndo->record({name, [this, kept] { exchange(*kept); }, bytes});
    return true;
}

/// The way back, and forth again. A draw that comes back is shown.
void databasePage::exchange(KeptDraws &other) {
    gDbCombs->exchange(other);
    window_.frmUpdateDBList();
    window_.showDrawCount();
    const auto back =
        std::mismatch(gDbCombs->begin(), gDbCombs->end(), other.draws.begin(), other.draws.end());
    if (std::ssize(other.draws) + 1 == gDbCombs->Count())
        goTo(static_cast<std::int32_t>(back.first - gDbCombs->begin()) + 1);
}

bool databasePage::importDrawsFrom(const std::function<bool()> &import) {
    const std::int32_t before = gDbCombs->Count();
    const Outcome outcome = change("Importer des tirages", import);
    if (outcome.carriedThrough) {
        window_.frmUpdateDBList();
        desktop().announce(importNote(before));
    } else if (outcome.changed) {
        desktop().announce("Importation interrompue. Ctrl+Z retire les tirages déjà lus.");
    }
    return outcome.carriedThrough;
}

void databasePage::importSample() {
    if (importDrawsFrom([] { return gDbCombs->ImportFrom(sampleHistory().fullName()); }))
        window_.showDrawCount();
}

/// A base without draws leads to the first ones.
void databasePage::sayWhenEmpty() {
    if (gDbCombs->Count() > 0) {
        lvwDBcomb.whenEmpty({"Aucun tirage de la base ne peut être montré."});
        return;
    }
    EmptyPlace place{"La base est vide.", "Importer un historique",
                     [this] { clickButton(importDraws); }};
    if (sampleHistory().exist()) {
        place.otherLink = "Importer l'historique d'exemple, inventé";
        place.followOther = [this] { importSample(); };
    }
    lvwDBcomb.whenEmpty(std::move(place));
}

bool databasePage::enter() {
    const Outcome outcome = change("Ajouter un tirage", [] {
        gDbCombs->AddNewDBComb();
        return true;
    });
    window_.frmUpdateDBList();
    if (outcome.changed)
        desktop().announce("Tirage ajouté. Ctrl+Z l'annule.");
    return true;
}

bool databasePage::modifySelected() {
    const std::int32_t row = getSelectedDraw();
    if (row == 0)
        return false;
    const Outcome outcome = change("Modifier un tirage", [row] {
        gDbCombs->modify(row);
        return true;
    });
    window_.frmUpdateDBList();
    if (outcome.changed)
        desktop().announce("Tirage modifié. Ctrl+Z l'annule.");
    return true;
}

bool databasePage::removeSelected() {
    const std::int32_t row = getSelectedDraw();
    if (row == 0)
        return false;
    change("Supprimer un tirage", [row] {
        gDbCombs->Remove(row);
        return true;
    });
    window_.frmUpdateDBList();
    desktop().announce("Tirage supprimé. Ctrl+Z l'annule.");
    return true;
}

} // namespace boulix
