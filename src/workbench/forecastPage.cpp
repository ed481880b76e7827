// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/forecastPage.h"

#include "core/globals.h"
#include "core/numbers.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "files/modFileSelector.h"
#include "files/xFile.h"
#include "forecasts/pronostics.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "sill/typedField.h"
#include "workbench/frmTestProno.h"

#include <algorithm>

namespace boulix {

namespace {

constexpr const char *fileFilter = "Fichier de pronostique Boulix (*.pro)|*.pro";

/// How many rules have boxes: a file can hold more of them, or fewer.
int shownRules() {
    return std::min(gPronostics->Count(), forecastPage::ruleCount);
}

std::string bareName(const std::string &fullName) {
    xFile file;
    file.fullName(fullName);
    return file.name();
}

std::size_t place(int rule) {
    return static_cast<std::size_t>(rule - 1);
}

std::size_t numberOf(std::int64_t sourceRow) {
    return static_cast<std::size_t>(sourceRow + 1);
}

} // namespace

void forecastPage::init() {
    for (int rule = 1; rule <= shownRules(); ++rule) {
        const pronos &shown = gPronostics->Item(rule);
        lblPronoTitle[place(rule)] = shown.label();
        visibleN[place(rule)] = shown.enableN();
        visibleP[place(rule)] = shown.enableP();
    }
    points_.fill({});
    ticked_.fill(false);
    lvwPronoResults.columns({{"Numéro", " Numéro ", true}, {"Points", " 000000 ", true}});
    lvwPronoResults.rows(pronostics::lastNumber, [this](std::int64_t row, int column) {
        return column == 0 ? zeroPadded(row + 1, 2) : points_[numberOf(row)];
    });
    refresh();
}

void forecastPage::clickButton(int index) {
    runCommand([&] { runButton(index); });
    refresh();
}

void forecastPage::runButton(int index) {
    switch (index) {
    case loadRules:
        return load();
    case saveRules:
        return save();
    case computePoints:
        return compute();
    case testOnPast: {
        frmTestProno window;
        if (view_)
            view_->runTestWindow(window);
        return;
    }
    default:
        return;
    }
}

void forecastPage::load() {
    const std::string name = modFileSelector::openDialog(fileFilter, "Chargement d'un pronostique");
    if (name.empty())
        return;
    gPronostics->load(name);
    if (gPronostics->Count() == 0)
        desktop().announce("Il n'y a plus de règles : chargez un autre fichier .pro, ou relancez "
                           "Boulix pour retrouver celles du départ");
    else
        desktop().announce("Pronostique chargé de " + bareName(name));
    for (int rule = 1; rule <= shownRules(); ++rule) {
        const pronos &loaded = gPronostics->Item(rule);
        if (loaded.enableN())
            txtN[place(rule)] = std::to_string(loaded.n());
        if (loaded.enableP())
            txtP[place(rule)] = std::to_string(loaded.p());
        txtPoints[place(rule)] = std::to_string(loaded.nPoint());
    }
}

void forecastPage::save() {
    const std::string name =
        modFileSelector::saveDialog(fileFilter, "Sauvegarde du pronostique", "pronostique.pro");
    if (name.empty())
        return;
    for (int rule = 1; rule <= shownRules(); ++rule)
        takeBoxes(rule);
    gPronostics->save(name);
    desktop().announce("Pronostique enregistré dans " + bareName(name));
}

void forecastPage::compute() {
    for (int rule = 1; rule <= shownRules(); ++rule)
        takeBoxes(rule);
    for (pronos &rule : *gPronostics)
        rule.baseTir(narrow16(gDbCombs->Count()));
    if (!gPronostics->compute(true))
        return;
    showPoints();
    desktop().announce("Points calculés pour les 49 numéros");
}

/// What stands in the boxes of a rule becomes its parameters, and the boxes show what was taken: an
/// empty box or a word is 0.
void forecastPage::takeBoxes(int rule) {
    pronos &taken = gPronostics->Item(rule);
    const std::string end = "_" + std::to_string(rule - 1);
    const std::string ofRule = ", règle " + std::to_string(rule);
    const auto as16 = [](const std::string &text) { return toInt16(numericPrefix(text)); };
    const auto as32 = [](const std::string &text) { return toInt32(numericPrefix(text)); };
    std::string &n = txtN[place(rule)];
    std::string &p = txtP[place(rule)];
    std::string &points = txtPoints[place(rule)];
    if (taken.enableN()) {
        taken.n(readField({"txtN" + end, "N" + ofRule, countHolds}, n, as16));
        n = std::to_string(taken.n());
    }
    if (taken.enableP()) {
        taken.p(readField({"txtP" + end, "P" + ofRule, countHolds}, p, as16));
        p = std::to_string(taken.p());
    }
    taken.nPoint(readField({"txtPoints" + end, "Points" + ofRule, pointsHold}, points, as32));
    points = std::to_string(taken.nPoint());
}

void forecastPage::showPoints() {
    for (std::int16_t number = 1; number <= pronostics::lastNumber; ++number)
        points_[static_cast<std::size_t>(number)] = zeroPadded(gPronostics->nbrPoint(number), 4);
    lvwPronoResults.textsChanged();
}

void forecastPage::clickHeader(int column) {
    lvwPronoResults.sortOrReverse(column);
}

bool forecastPage::ticked(std::int64_t row) const {
    return ticked_[numberOf(lvwPronoResults.sourceRow(row))];
}

void forecastPage::tick(std::int64_t row, bool on) {
    ticked_[numberOf(lvwPronoResults.sourceRow(row))] = on;
}

std::vector<std::int16_t> forecastPage::tickedNumbers() const {
    std::vector<std::int16_t> numbers;
    for (std::int64_t row = 0; row < lvwPronoResults.rowCount(); ++row)
        if (ticked(row))
            numbers.push_back(static_cast<std::int16_t>(lvwPronoResults.sourceRow(row) + 1));
    return numbers;
}

void forecastPage::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
