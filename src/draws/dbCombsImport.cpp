// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modMaths.h"
#include "core/numbers.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "draws/lineReader.h"
#include "files/modFileSelector.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "sill/modMain.h"
#include "sill/reports.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace boulix {

namespace {

constexpr std::array<std::string_view, 9> columnNames = {"BOULE1",
                                                         "BOULE2",
                                                         "BOULE3",
                                                         "BOULE4",
                                                         "BOULE5",
                                                         "BOULE6",
                                                         "BOULE_COMPLEMENTAIRE",
                                                         "DATE_DE_TIRAGE",
                                                         "1ER_OU_2EME_TIRAGE"};

void reportDbError(int number) {
    reportNumbered(number, std::string("Impossible de mettre à jour la base de données.") + crlf +
                               "Le fichier n'est pas reconnu!!!" + crlf +
                               "Veuillez contacter le support technique.");
}

/// Where the columns stand in the header line of the operator's file; of two columns of the same
/// name the later one counts.
ColumnPositions parseColumns(std::string_view header) {
    ColumnPositions columns{};
    for (std::int64_t position = 1;; ++position) {
        const std::size_t end = header.find(';');
        const std::string name = upperCased(trimmed(header.substr(0, end)));
        for (std::size_t i = 0; i < columnNames.size(); ++i)
            if (name == columnNames[i])
                columns[i + 1] = narrow16(position);
        if (end == std::string_view::npos)
            return columns;
        header.remove_prefix(end + 1);
    }
}

/// The number of lines behind the header.
std::int64_t countLines(const std::string &fileName) {
    LineReader file(fileName);
    std::string line;
    file.readLine(line);
    std::int64_t lines = 0;
    while (!file.eof()) {
        file.readLine(line);
        ++lines;
    }
    return lines;
}

/// The order of draws as a sort of the library can use it: a day that is no number, which a
/// damaged file can hold, comes before all others.
bool isEarlier(const dbComb &a, const dbComb &b) {
    if (std::isnan(a.day()) || std::isnan(b.day()))
        return std::isnan(a.day()) && !std::isnan(b.day());
    return b.isGreater(a);
}

} // namespace

bool dbCombs::ImportFdjFile() {
    const std::string fileName =
        modFileSelector::openDialog("Fichier texte de la française des jeux (*.*)|*.*",
                                    "Importation d'un fichier texte de la française des jeux");
    return !fileName.empty() && ImportFrom(fileName);
}

bool dbCombs::ImportFrom(const std::string &fileName) {
    importedDraws_ = 0;
    ProgressShown progress("Importation de combinaisons", "Importation en cours...");
    if (!readImport(fileName, *progress))
        return false;
    sort();
    restoreOrder();
    if (!removeDoubles(*progress)) {
        load(); // under the progress window: no command of the user may meet a base half loaded
        return false;
    }
    progress.unload();
    save();
    return true;
}

bool dbCombs::readImport(const std::string &fileName, frmProgress &progress) {
    const std::int64_t lines = countLines(fileName);
    progress.ProgressBar.range(1, lines);
    LineReader file(fileName);
    std::string line;
    file.readLine(line);
    const ColumnPositions columns = parseColumns(line);
    if (std::count(columns.begin() + 1, columns.end(), 0) > 0) {
        reportDbError(2701);
        return false;
    }
    for (std::int64_t i = 1; i <= lines; ++i) {
        file.readLine(line);
        dbComb draw;
        draw.fromString(line, columns);
        Add(draw.day(), draw.id(), draw.comb(), false, "");
        importedDraws_ = i;
        desktop().runEvents();
        if (progress.cancelled())
            return false;
        progress.ProgressBar.value = i;
    }
    return true;
}

// The exchange sort can leave a base out of order, and doubles that do not lie side by side would
// not be found. Where it did its work, the draws stay as it left them.
void dbCombs::restoreOrder() {
    if (std::is_sorted(draws_.begin(), draws_.end(), isEarlier))
        return;
    changing();
    std::stable_sort(draws_.begin(), draws_.end(), isEarlier);
    modMain::logNote("dbCombs.ImportFdjFile: ordre rétabli après le tri");
}

// Each step compares the last draw that stays with the next one. The draws that stay move to the
// front one by one and the rest goes at the end, in place of a shift of all draws for each double.
bool dbCombs::removeDoubles(frmProgress &progress) {
    progress.lblInfo = "elimination des doublons...";
    progress.ProgressBar.range(1, modMaths::maxOf(Count(), 2));
    checkedIndex(2, 1, Count()); // a base of a single draw has nothing to compare it with
    std::int64_t kept = 1;
    for (std::int64_t next = 2; next <= Count(); ++next) {
        const dbComb &draw = Item(next);
        if (Item(kept).day() != draw.day() || Item(kept).id() != draw.id())
            Item(++kept) = draw;
        desktop().runEvents();
        if (progress.cancelled())
            return false;
        progress.ProgressBar.value = kept;
    }
    changing().resize(static_cast<std::size_t>(kept));
    return true;
}

} // namespace boulix
