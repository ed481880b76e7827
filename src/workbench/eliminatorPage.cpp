// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/eliminatorPage.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/numbers.h"
#include "core/text.h"
#include "eliminators/eliminators.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "sill/selector.h"
#include "sill/typedField.h"
#include "sill/undo.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace boulix {

namespace {

/// How many rules there are to show: none after a file was refused, some after one was cut.
int shownRules() {
    return modMaths::minOf(gEliminators->Count(), eliminatorPage::ruleCount);
}

TypedField fieldOf(int index) {
    return {"txtEliminator_" + std::to_string(index), gEliminators->Item(index + 1).label(),
            "un nombre entier de " + eliminatorPage::rangeText(index)};
}

std::vector<std::int16_t> listedNumbers(const eliminator &list) {
    std::vector<std::int16_t> listed;
    for (std::int16_t n = 1; n <= eliminator::lastNumber; ++n)
        if (list.eliminNbr(n) != eliminator::off)
            listed.push_back(n);
    return listed;
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

std::string eliminatorPage::rangeText(int index) {
    if (index >= shownRules())
        return {};
    const eliminator &rule = gEliminators->Item(index + 1);
    return std::to_string(rule.ValMin()) + " à " + std::to_string(rule.ValMax());
}

std::string eliminatorPage::lblList() {
    if (shownRules() < ruleCount)
        return {};
    const auto listed = listedNumbers(gEliminators->Item(eliminators::listRule));
    if (listed.empty())
        return "Aucun numéro dans la liste";
    if (listed.size() == eliminator::lastNumber)
        return "Les 49 numéros : toutes les combinaisons seront éliminées";
    std::string text;
    for (const std::int16_t n : listed)
        text += (text.empty() ? "" : ", ") + std::to_string(n);
    return text;
}

std::string eliminatorPage::lblNoRules() {
    if (gEliminators->Count() > 0)
        return {};
    return "Il n'y a plus de règles : le fichier qui devait les remplacer n'a pas pu être lu. "
           "« Annuler » les rétablit, « Charger » en lit d'autres.";
}

void eliminatorPage::focusRefused() {
    if (const int rule = gEliminators->firstOutOfRange(); rule > 0)
        desktop().focusField("txtEliminator_" + std::to_string(rule - 1));
}

void eliminatorPage::toRules() {
    for (int i = 0; i < shownRules(); ++i) {
        eliminator &rule = gEliminators->Item(i + 1);
        rule.status(ticked(i) ? eliminator::on : eliminator::off);
        if (!ticked(i))
            continue;
        rule.Value(0);
        if (i >= valueCount)
            continue;
        std::string &text = txtEliminator[place(i)];
        rule.Value(readField(fieldOf(i), text, [](const std::string &typed) {
            return toInt16(numericPrefix(typed));
        }));
        text = std::to_string(rule.Value());
    }
    refresh();
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

struct eliminatorPage::State {
    eliminators rules;
    std::array<std::string, valueCount> texts;
    std::array<bool, ruleCount> ticked;
};

void eliminatorPage::exchange(State &other) {
    std::swap(*gEliminators, other.rules);
    txtEliminator.swap(other.texts);
    ticked_.swap(other.ticked);
    refresh();
}

/// Runs a command that may change the rules, so that it can be taken back: also where it fails on
/// the way, with the old rules gone.
void eliminatorPage::change(const char *name, const std::function<void()> &command) {
    const auto before = std::make_shared<State>(State{*gEliminators, txtEliminator, ticked_});
    const auto record = [&] {
        const eliminators &was = before->rules;
        if (!std::equal(was.begin(), was.end(), gEliminators->begin(), gEliminators->end()))
            gUndo->record({name, [this, before] { exchange(*before); }, sizeof(State)});
    };
    try {
        command();
    } catch (...) {
        record();
        refresh();
        throw;
    }
    record();
    refresh();
}

void eliminatorPage::clickButton(int index) {
    runCommand([&] {
        if (index == loadRules)
            load();
        else if (index == saveRules)
            save();
    });
}

void eliminatorPage::load() {
    change("Charger", [this] {
        const bool loaded = gEliminators->load();
        fromRules();
        if (loaded)
            desktop().announce("Eliminateurs chargés de " + gEliminators->file().name());
    });
}

void eliminatorPage::save() {
    toRules();
    if (gEliminators->save())
        desktop().announce("Eliminateurs enregistrés dans " + gEliminators->file().name());
}

/// The dialog empties the list first, also where it is cancelled then.
void eliminatorPage::clickSelectList() {
    runCommand([this] { change("Liste", selectList); });
}

void eliminatorPage::selectList() {
    eliminator &list = gEliminators->Item(eliminators::listRule);
    const std::vector<std::int16_t> listed = listedNumbers(list);
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
