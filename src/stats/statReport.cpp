// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/statReport.h"

#include "core/fileAccess.h"
#include "core/globals.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "files/modFileSelector.h"
#include "printing/modPrinter.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/selector.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "stats/statTable.h"
#include "stats/statTypes.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace boulix::modStats {

namespace {

using Lines = std::vector<std::string>;

/// File and paper differ in their head lines and in the length of a dash line.
enum class Medium { file, paper };

std::string dashes(Medium medium) {
    return std::string(medium == Medium::file ? 60 : 120, '-');
}

std::string blanks(std::size_t count) {
    return std::string(count, ' ');
}

std::string headLine(std::int16_t type, Medium medium) {
    const bool onFile = medium == Medium::file;
    switch (type) {
    case 1:
        return "Numéro Fréquence";
    case 6:
        return onFile ? "Somme   Fréquence" : "Somme Fréquence";
    case 7:
        return "Numéro Dernière Sortie";
    case 8:
        return "Numéro Consécutifs";
    case 9:
        return "Numéro Max sans sortir";
    case 10:
        return "Numéro Max consécutifs";
    case 11:
    case 12:
        return onFile ? "Numéro 01  Numéro 02  Numéro 03" : "Numéro 01 Numéro 02 Numéro 03";
    case 13:
    case 14:
    case 15:
    case 16:
        return "Période  Nombre d'absences";
    case 17:
        return "Nombre de numéros pairs   Fréquence";
    default:
        break;
    }
    std::string head;
    for (std::int16_t i = 1; i <= statTypes(type).nNumbers + 1; ++i)
        head += "Numéro " + zeroPadded(i, 2) + " ";
    return head + "Fréquence";
}

/// One row of the table; `cells` points at its numbers.
std::string rowLine(std::int16_t type, const std::int32_t *cells, std::size_t columns) {
    if (type >= 13 && type <= 16) {
        constexpr std::size_t periodWidth = 9;
        std::string line = std::to_string(cells[0]);
        line.resize(std::max(line.size(), periodWidth), ' ');
        return line + std::to_string(cells[1]);
    }
    if (type == 17)
        return std::to_string(cells[0]) + blanks(23) + std::to_string(cells[1]);
    const std::string gap = blanks(type == 11 || type == 12 ? 7 : type >= 2 && type <= 5 ? 6 : 5);
    std::string line;
    for (std::size_t column = 0; column < columns; ++column)
        line += (column > 0 ? gap : "") + zeroPadded(cells[column], 2);
    return line;
}

std::string drawText(std::int32_t position) {
    const dbComb &draw = gDbCombs->Item(position);
    return std::to_string(position) + " (" + shortDate(draw.day()) + " - " +
           std::to_string(draw.id()) + ") ";
}

std::string summaryLine(std::int16_t type, const selector &chooser) {
    if (type == 17) {
        const Best best = bestOf(type);
        return "Meilleur compromis: " + std::to_string(best.at - 1) + " numéros pairs (" +
               std::to_string(best.value) + " fois)";
    }
    const bool withoutNumbers = type >= 2 && type <= 5 && chooser.nSelectedNbr() == 0;
    return withoutNumbers ? std::string() : statSummary(type, chooser);
}

/// All lines behind the identity of a file or the banner of a report. `underTitle` goes under the
/// statistic's name.
Lines reportLines(std::int16_t type, std::int16_t withCompl, std::int32_t first, std::int32_t last,
                  const selector &chooser, Medium medium, const Lines &underTitle) {
    const std::string dashLine = dashes(medium);
    Lines lines = {dashLine, statTitle(type, withCompl)};
    lines.insert(lines.end(), underTitle.begin(), underTitle.end());
    lines.insert(lines.end(), {dashLine, statDescription(type, withCompl), dashLine,
                               "Analyse réalisée pour du tirage N° " + drawText(first) +
                                   " au tirage N° " + drawText(last),
                               dashLine, headLine(type, medium)});
    const StatTable table = statTable(type, chooser);
    const std::size_t columns = table.columns.size();
    for (std::size_t at = 0; at < table.cells.size(); at += columns)
        lines.push_back(rowLine(type, &table.cells[at], columns));
    lines.insert(lines.end(), {dashLine, summaryLine(type, chooser), dashLine});
    return lines;
}

} // namespace

void ExportStats(std::int16_t type, std::int16_t withCompl, std::int32_t first, std::int32_t last,
                 selector &chooser) {
    ComputeStat(type, withCompl, first, last, chooser);
    const std::string name =
        modFileSelector::saveDialog("Fichier Statistiques texte Boulix (*.txt)|*.txt",
                                    "Exportation des statistiques au format texte");
    if (name.empty())
        return;
    WriteStatsText(name, type, withCompl, first, last, chooser);
    desktop().announce("Statistique exportée dans " + name.substr(name.find_last_of("/\\") + 1) +
                       ".");
}

void WriteStatsText(const std::string &name, std::int16_t type, std::int16_t withCompl,
                    std::int32_t first, std::int32_t last, const selector &chooser) {
    std::string text = "Fichier de statistiques généré par " + gAppInfo->fullName() + crlf;
    for (const std::string &line :
         reportLines(type, withCompl, first, last, chooser, Medium::file, {}))
        text += line + crlf;
    replaceFile(name, toWestern(text));
}

void PrintStats(std::int16_t type, std::int16_t withCompl, std::int32_t first, std::int32_t last,
                const selector &chooser) {
    std::optional<TextReport> report = modPrinter::startReport(statTypes(type).name);
    if (!report)
        return;
    const std::string printed = "(Statistique imprimée le " + longDate(platform().today()) + ")";
    for (const std::string &line :
         reportLines(type, withCompl, first, last, chooser, Medium::paper, {printed}))
        report->line(line);
    report->end();
}

} // namespace boulix::modStats
