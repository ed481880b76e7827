// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/numbers.h"
#include "draws/dbCombs.h"
#include "sill/desktop.h"
#include "sill/selector.h"

namespace boulix {

namespace {

constexpr std::int16_t numbersOfDraw = 7; // the complementary is the one marked last

/// Sets the six numbers, adding each to the sum that stands there, then complementary and total.
void fillFrom(const selector &selection, lotoComb &comb) {
    for (std::int16_t i = 1; i <= lotoComb::size; ++i) {
        comb.num(i, selection.selectedNbr(i));
        comb.sum(narrow16(comb.sum() + comb.num(i)));
    }
    comb.compl_(selection.selectedNbr(numbersOfDraw));
    comb.sumtot(narrow16(comb.sum() + comb.compl_()));
}

} // namespace

void dbComb::modify() {
    std::vector<std::int16_t> present;
    for (int i = 1; i <= lotoComb::size; ++i)
        present.push_back(comb_.num(i));
    present.push_back(comb_.compl_());

    selector selection;
    selection.setSelect(numbersOfDraw, numbersOfDraw);
    selection.lastIsComplementary();
    selection.setPrevSelect(numbersOfDraw, present);
    selection.selectNbr();
    if (selection.nSelectedNbr() == 0)
        return;
    const std::optional<DrawDate> date = desktop().runDateDialog(DrawDate{day_, id_});
    if (!date)
        return;
    day_ = date->day;
    id_ = date->id;
    // The sum is not set back before: it piles up on the old one until the base is loaded again.
    fillFrom(selection, comb_);
}

void dbCombs::modify(std::int32_t index) {
    Item(index).modify();
    sort();
    save();
}

void dbCombs::AddNewDBComb() {
    selector selection;
    selection.setSelect(numbersOfDraw, numbersOfDraw);
    selection.lastIsComplementary();
    selection.selectNbr();
    if (selection.nSelectedNbr() == 0)
        return;
    const std::optional<DrawDate> date = desktop().runDateDialog(std::nullopt);
    if (!date)
        return;
    lotoComb comb;
    fillFrom(selection, comb);
    Add(date->day, date->id, comb, true, "");
}

} // namespace boulix
