// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gameDef.h"

#include "core/failure.h"
#include "core/text.h"
#include "files/xFile.h"
#include "printing/modPrinter.h"
#include "sill/desktop.h"
#include "sill/reports.h"

namespace boulix {

boulix::gameComb *gameDef::gameComb(std::int32_t i) const {
    if (i < 1 || i > nComb()) {
        reportNumbered(3201,
                       "Impossible d'accéder à l'élément numérp " + std::to_string(i) +
                           " (Get gameComb)!" + crlf + "Veuillez contacter le support technique.",
                       Icon::critical);
        return nullptr;
    }
    return &*rows_[static_cast<std::size_t>(i - 1)];
}

const GridRef &gameDef::sharedRow(std::int32_t i) const {
    return rows_[static_cast<std::size_t>(checkedIndex(i, 1, nComb()) - 1)];
}

void gameDef::addStrComb(const std::string &text) {
    boulix::gameComb row;
    row.fromString(text);
    rows_.emplace_back(row);
}

void gameDef::rename() {
    label_ =
        desktop()
            .askText("Donnez le nouveau nom du jeu", "Définition du nom du jeu", label_, maxLabel)
            .value_or("");
    save(-1, -1);
}

void gameDef::printDef() const {
    auto report = modPrinter::startReport("système de jeu");
    if (!report)
        return;
    report->fontName("Arial");
    const double column = report->textWidth("Nombre de grilles ");
    const std::string fileName = file_ ? file_->name() : std::string();
    report->line("Jeu prédéfini", column, ": " + label_);
    report->line("Fichier", column, ": " + fileName);
    report->line("Numéros fixes", column, ": " + std::to_string(nFixed_));
    report->line("Numéros Choisis", column, ": " + std::to_string(nSelect_));
    report->line("Numéros gagnants", column, ": " + std::to_string(nWin_));
    report->line("Nombre de grilles", column, ": " + std::to_string(nComb()));
    report->line();
    for (std::int32_t i = 1; i <= nComb(); ++i) {
        std::string line = std::string(10, ' ') + zeroPadded(i, 3) + ")   ";
        for (const std::int16_t n : sharedRow(i)->numbers())
            line += zeroPadded(n, 2) + "   ";
        report->line(line);
    }
    report->end();
}

} // namespace boulix
