// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/selector.h"

#include "core/modMaths.h"
#include "core/numbers.h"
#include "core/text.h"
#include "sill/desktop.h"
#include "sill/frmNbrSelector.h"
#include "sill/reports.h"

#include <iterator>
#include <string>

namespace boulix {

namespace {

void reportOutside(std::int16_t i, std::int16_t count) {
    reportNumbered(4301,
                   std::string("Erreur fatale!!!") + crlf +
                       "Impossible d'accéder au numéro sélectionné " + std::to_string(i) + "." +
                       crlf + "L'index doit être strictement positif ou inférieur ou égal à " +
                       std::to_string(count) + "." + crlf +
                       "Veuillez contacter le support technique.",
                   Icon::critical);
}

void reportNothingSelected() {
    reportNumbered(4302, "Vous avez sélectionné aucun numéro! Utiliser le bouton \"Annuler\" pour "
                         "sortir.");
}

void reportTooFew(std::int16_t minimum) {
    reportNumbered(4303,
                   "Vous devez sélectionner au moins " + std::to_string(minimum) + " numéros!!!");
}

} // namespace

std::int16_t selector::selectedNbr(std::int16_t i) const {
    if (i < 1 || i > nSelectedNbr_) {
        reportOutside(i, nSelectedNbr_);
        return 0;
    }
    return numberAt(i);
}

void selector::setSelect(std::int16_t nMax, std::int16_t nMin) {
    nSelectedNbr_ = nMax;
    nMinSelectedNbr_ = nMin;
}

void selector::setPrevSelect(std::int16_t n, const std::vector<std::int16_t> &numbers) {
    nPrevSelected_ = n;
    if (n > 0)
        selected_.assign(numbers.begin(),
                         numbers.begin() + checkedIndex(n, 1, std::ssize(numbers)));
}

/// The `i`-th number held, whatever `nSelectedNbr` says.
std::int16_t selector::numberAt(std::int16_t i) const {
    return selected_[static_cast<std::size_t>(checkedIndex(i, 1, std::ssize(selected_)) - 1)];
}

void selector::selectNbr() {
    frmNbrSelector dialog;
    dialog.grd.editable(true);
    dialog.grd.clearSelection();
    dialog.grd.maxSelected(nSelectedNbr_);
    dialog.minimum = nMinSelectedNbr_;
    dialog.lastIsComplementary = lastIsComplementary_;
    if (lastIsComplementary_)
        dialog.grd.complementaryAt(nSelectedNbr_);
    // A selection made since then can hold fewer numbers than were set.
    const auto held = static_cast<std::int16_t>(selected_.size());
    const std::int16_t set = modMaths::minOf(nPrevSelected_, held);
    const std::int16_t preset = nSelectedNbr_ != 0 ? modMaths::minOf(nSelectedNbr_, set) : set;
    for (std::int16_t i = 1; i <= preset; ++i)
        dialog.grd.selectNumber(numberAt(i));

    while (true) {
        dialog.shown();
        desktop().runNumberDialog(dialog);
        if (numericPrefix(dialog.tag()) < 0) {
            nSelectedNbr_ = 0;
            return;
        }
        nSelectedNbr_ = dialog.grd.selectedCount();
        selected_.clear();
        for (std::int16_t i = 1; i <= nSelectedNbr_; ++i)
            selected_.push_back(dialog.grd.selectedNumber(i));
        if (nSelectedNbr_ == 0)
            reportNothingSelected();
        else if (nMinSelectedNbr_ <= nSelectedNbr_ || nMinSelectedNbr_ < 1)
            return;
        else
            reportTooFew(nMinSelectedNbr_);
    }
}

} // namespace boulix
