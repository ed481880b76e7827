// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/drawAnalysisPage.h"

#include "core/globals.h"
#include "core/numbers.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "sill/numberBoard.h"
#include "stats/drawAnalysis.h"

#include <memory>
#include <utility>

namespace boulix {

namespace {

/// The grounds of the labels: the complementary number is green, the others are ochre; a number
/// that the board holds stands on the pale shade.
constexpr Color complementaryGround{0x00, 0x80, 0x00};
constexpr Color complementarySelected{0x80, 0xFF, 0x80};
constexpr Color numberGround{0xC0, 0xC0, 0x00};
constexpr Color numberSelected{0xFF, 0xFF, 0xC0};

struct Analysis {
    std::vector<std::int32_t> values{0};
    std::vector<std::string> labels{""};
    std::int32_t rows = 0;
};

} // namespace

drawAnalysisPage::drawAnalysisPage(NumberBoard &board) : board_(board) {
    updnTirNbr.changed = [this] { ShowDrawAnalysis(); };
}

void drawAnalysisPage::init() {
    lvwTirStat.columns(
        {{"Type de recherche", "Somme des numéros de la combinaison sans complémentaire   ", false},
         {"Résultat", " 0000 ", true}});
}

void drawAnalysisPage::followBase() {
    const std::int32_t count = gDbCombs->Count();
    updnTirNbr.enabled = count > 0;
    lvwTirStat.whenEmpty({count > 0 ? "Choisissez une ou plusieurs analyses dans la liste."
                                    : "La base est vide : importez d'abord des tirages."});
    if (count == 0)
        return;
    updnTirNbr.range(1, count);
    updnTirNbr.set(count);
    ShowDrawAnalysis(); // the draw can be another one under the same number
}

void drawAnalysisPage::selectAnalyses(std::vector<std::int32_t> analyses) {
    analyses_ = std::move(analyses);
    ShowDrawAnalysis();
}

void drawAnalysisPage::ShowDrawAnalysis() {
    const std::int32_t draw = updnTirNbr.value();
    if (draw < 1 || draw > gDbCombs->Count())
        return;
    showNumbers(draw);
    fillList(draw);
    refresh();
}

void drawAnalysisPage::showNumbers(std::int32_t draw) {
    const dbComb &shown = gDbCombs->Item(draw);
    lblTirInfo = "Tirage N° " + std::to_string(shown.id()) + " du " + shortDate(shown.day());
    lblNumTir[0].caption = zeroPadded(shown.comb().compl_(), 2);
    for (int i = 1; i <= lotoComb::size; ++i)
        lblNumTir[static_cast<std::size_t>(i)].caption = zeroPadded(shown.comb().num(i), 2);
    for (std::size_t k = 0; k < lblNumTir.size(); ++k)
        colour(k, board_.isSelected(toInt16(numericPrefix(lblNumTir[k].caption))));
}

void drawAnalysisPage::fillList(std::int32_t draw) {
    auto result = std::make_shared<Analysis>();
    std::vector<std::int32_t> fromOne = {0};
    fromOne.insert(fromOne.end(), analyses_.begin(), analyses_.end());
    modStats::ComputeDrawAnalysis(draw, result->values, result->labels, result->rows, fromOne,
                                  static_cast<std::int32_t>(analyses_.size()));
    lvwTirStat.rows(result->rows, [result](std::int64_t row, int column) {
        const auto at = static_cast<std::size_t>(row + 1);
        return column == 0 ? result->labels[at] : zeroPadded(result->values[at], 2);
    });
}

void drawAnalysisPage::clickNumber(std::size_t k) {
    const std::int16_t n = toInt16(numericPrefix(lblNumTir.at(k).caption));
    board_.toggle(n);
    colour(k, board_.isSelected(n));
    refresh();
}

void drawAnalysisPage::leaveBox(const std::string &text) {
    const double number = numericPrefix(text);
    if (updnTirNbr.enabled && !trimmed(text).empty() && number >= 1 && number <= updnTirNbr.max())
        updnTirNbr.set(toInt32(number));
    refresh();
}

void drawAnalysisPage::colour(std::size_t k, bool selected) {
    lblNumTir[k].selected = selected;
    if (k == 0)
        lblNumTir[k].ground = selected ? complementarySelected : complementaryGround;
    else
        lblNumTir[k].ground = selected ? numberSelected : numberGround;
}

void drawAnalysisPage::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
