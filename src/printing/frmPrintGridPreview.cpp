// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/frmPrintGridPreview.h"

#include "core/modMaths.h"
#include "printing/modPrinter.h"

#include <algorithm>
#include <utility>

namespace boulix {

using modMaths::maxOf;
using modMaths::minOf;

frmPrintGridPreview::frmPrintGridPreview(std::int32_t count, slipRun::GridDrawer drawGrid)
    : drawGrid_(std::move(drawGrid)) {
    updnBeg.range(1, count);
    updnEnd.range(1, count);
    updnBeg.set(1);
    updnEnd.set(count);
    countSlips();
    updnBeg.changed = [this] {
        updnEnd.range(updnBeg.value(), updnEnd.max());
        changeRange();
    };
    updnEnd.changed = [this] {
        updnBeg.range(updnBeg.min(), updnEnd.value());
        changeRange();
    };
}

std::string frmPrintGridPreview::statusPanel1() const {
    return std::to_string(grids_) + " combinaisons à imprimer";
}

std::string frmPrintGridPreview::statusPanel2() const {
    return "Grille " + std::to_string(page_) + " de " + std::to_string(slips_);
}

void frmPrintGridPreview::countSlips() {
    grids_ = updnEnd.value() - updnBeg.value() + 1;
    slips_ = slipRun::slipCount(updnBeg.value(), updnEnd.value());
}

/// The slip on show may be gone with the new range.
void frmPrintGridPreview::changeRange() {
    countSlips();
    page_ = minOf(page_, slips_);
    notify();
}

void frmPrintGridPreview::clickAbon(bool ticked) {
    if (ticked == chkAbon_)
        return;
    chkAbon_ = ticked;
    if (ticked) {
        optWeek_.at(rememberedWeek_) = true;
    } else {
        for (std::size_t i = 0; i < optWeek_.size(); ++i)
            if (std::exchange(optWeek_.at(i), false))
                rememberedWeek_ = i;
    }
    notify();
}

void frmPrintGridPreview::clickWeek(std::size_t index) {
    if (!frameAbonEnabled())
        return;
    optWeek_.fill(false);
    optWeek_.at(index) = true;
    notify();
}

void frmPrintGridPreview::clickPlayJoker(bool plays) {
    joker_ = plays;
    notify();
}

void frmPrintGridPreview::clickWedAndSat(bool both) {
    wedAndSat_ = both;
    notify();
}

void frmPrintGridPreview::clickToolbar(int button) {
    switch (button) {
    case 1:
        showPage(maxOf(page_ - 1, 1));
        break;
    case 2:
        showPage(minOf(page_ + 1, slips_));
        break;
    case 3:
        hide(1);
        break;
    case 4:
        hide(0);
        break;
    case 5:
        modPrinter::printerDialog();
        break;
    case 6:
        asPdf_ = true;
        hide(1);
        break;
    default:
        break;
    }
}

void frmPrintGridPreview::drawPicture(Picture &picGrid) const {
    slipRun::displaySlip(picGrid, updnBeg.value(), updnEnd.value(), page_, drawGrid_);
}

slipRun::Choice frmPrintGridPreview::choice() const {
    slipRun::Choice choice{updnBeg.value(), updnEnd.value(), wedAndSat_, joker_, 0};
    const auto on = std::find(optWeek_.begin(), optWeek_.end(), true);
    if (chkAbon_ && on != optWeek_.end())
        choice.weekOption = static_cast<std::int16_t>(on - optWeek_.begin() + 1);
    return choice;
}

void frmPrintGridPreview::showPage(std::int32_t page) {
    page_ = page;
    notify();
}

void frmPrintGridPreview::hide(std::int32_t answer) {
    answer_ = answer;
    hidden_ = true;
    notify();
}

void frmPrintGridPreview::notify() const {
    if (changed)
        changed();
}

} // namespace boulix
