// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/eliminatorPage.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/numbers.h"
#include "core/text.h"
#include "eliminators/eliminators.h"
#include "sill/reports.h"
#include "sill/selector.h"

#include <vector>

namespace boulix {

namespace {

/// How many rules there are to show: none after a file was refused, some after one was cut.
int shownRules() {
    return modMaths::minOf(gEliminators->Count(), eliminatorPage::ruleCount);
}

} // namespace

void eliminatorPage::init() {
    for (int i = 0; i < shownRules(); ++i)
        captions_[place(i)] = gEliminators->Item(i + 1).label();
    ticked_ = {};
    refresh();
}

void eliminatorPage::tick(int index, bool on) {
    ticked_.at(place(index)) = on;
    refresh();
}

void eliminatorPage::toRules() const {
    for (int i = 0; i < shownRules(); ++i) {
        eliminator &rule = gEliminators->Item(i + 1);
        rule.status(ticked(i) ? eliminator::on : eliminator::off);
        if (!ticked(i))
            continue;
        rule.Value(0);
        if (i < valueCount)
            rule.Value(toInt16(numericPrefix(txtEliminator[place(i)])));
    }
}

void eliminatorPage::fromRules() {
    for (int i = 0; i < shownRules(); ++i) {
        const eliminator &rule = gEliminators->Item(i + 1);
        ticked_[place(i)] = rule.status() != eliminator::off;
        if (ticked(i) && i < valueCount)
            txtEliminator[place(i)] = std::to_string(rule.Value());
    }
    refresh();
}

void eliminatorPage::clickButton(int index) {
    runCommand([&] {
        if (index == loadRules) {
            gEliminators->load();
            fromRules();
        } else if (index == saveRules) {
            toRules();
            gEliminators->save();
        }
    });
}

void eliminatorPage::clickSelectList() {
    runCommand(selectList);
}

void eliminatorPage::selectList() {
    eliminator &list = gEliminators->Item(eliminators::listRule);
    std::vector<std::int16_t> listed;
    for (std::int16_t n = 1; n <= eliminator::lastNumber; ++n)
        if (list.eliminNbr(n) != eliminator::off)
            listed.push_back(n);
    selector sel;
    sel.setSelect(eliminator::lastNumber, 0);
    sel.setPrevSelect(static_cast<std::int16_t>(listed.size()), listed);
    sel.selectNbr();

    for (int n = 1; n <= eliminator::lastNumber; ++n)
        list.eliminNbr(n, eliminator::off);
    for (std::int16_t i = 1; i <= sel.nSelectedNbr(); ++i)
        list.eliminNbr(sel.selectedNbr(i), eliminator::on);
}

void eliminatorPage::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
