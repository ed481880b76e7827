// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/fileAccess.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "files/modFileSelector.h"
#include "printing/modPrinter.h"
#include "sill/desktop.h"

#include <algorithm>

namespace boulix {

namespace {

constexpr std::int64_t drawsPerLine = 3;
constexpr double reportFontSize = 8;
constexpr std::string_view entrySeparator = " --- ";

std::string exportLine(const dbComb &draw) {
    std::string line = shortDate(draw.day()) + ";" + std::to_string(draw.id()) + ";";
    for (int i = 1; i <= lotoComb::size; ++i)
        line += std::to_string(draw.comb().num(i)) + ";";
    return line + std::to_string(draw.comb().compl_());
}

std::string printEntry(std::int64_t position, const dbComb &draw) {
    std::string entry = zeroPadded(position, 4) + ") " + shortDate(draw.day()) + " - (" +
                        std::to_string(draw.id()) + ") ";
    for (int i = 1; i <= lotoComb::size; ++i)
        entry += zeroPadded(draw.comb().num(i), 2) + " ";
    return entry + "(" + zeroPadded(draw.comb().compl_(), 2) + ")";
}

} // namespace

void dbCombs::ExportDB() {
    const std::string fileName =
        modFileSelector::saveDialog("Fichier Texte Base de données Boulix (*.txt)|*.txt",
                                    "Exportation de la base de données en fichier texte");
    if (fileName.empty())
        return;
    std::string text = std::string("Date;Tirage;N1;N2;N3;N4;N5;N6;Complémentaire") + crlf;
    for (const dbComb &draw : draws_)
        text += exportLine(draw) + crlf;
    replaceFile(fileName, toWestern(text));
    desktop().announce((Count() > 1 ? std::to_string(Count()) + " tirages exportés dans "
                                    : "Base exportée dans ") +
                       fileName.substr(fileName.find_last_of("/\\") + 1) + ".");
}

void dbCombs::PrintDB() {
    auto report = modPrinter::startReport("base de données");
    if (!report)
        return;
    report->line("Base de données imprimée le " + longDate(platform().today()));
    report->line();
    report->fontSize(reportFontSize);
    for (std::int64_t first = 1; first <= Count(); first += drawsPerLine) {
        const std::int64_t last = std::min<std::int64_t>(first + drawsPerLine - 1, Count());
        std::string line = printEntry(first, Item(first));
        for (std::int64_t i = first + 1; i <= last; ++i)
            line.append(entrySeparator).append(printEntry(i, Item(i)));
        report->line(line);
    }
    report->end();
}

} // namespace boulix
