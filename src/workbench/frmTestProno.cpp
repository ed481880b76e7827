// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/frmTestProno.h"

#include "core/failure.h"
#include "core/frenchNumbers.h"
#include "core/globals.h"
#include "core/numbers.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/reports.h"
#include "sill/typedField.h"

#include <algorithm>

namespace boulix {

namespace {

// What stands between the draw's own number and its date, after an upward step and on leaving the
// box, and after everything else. The sign in the first one belongs to it.
constexpr const char *joinedWithSign = " du & ";
constexpr const char *joined = " du ";

/// The number in a box, rounded. What is no position or count is left to the caller to refuse.
double numberIn(const std::string &text) {
    return roundHalfEven(numericPrefix(text));
}

std::int32_t countIn(const std::string &text) {
    return toInt32(numberIn(text));
}

bool isBetween(double value, double first, double last) {
    return value >= first && value <= last;
}

std::string lineText(std::int32_t position) {
    const dbComb &draw = gDbCombs->Item(position);
    const std::string day = isValidDate(draw.day()) ? shortDate(draw.day()) : std::string();
    return "Tirage N° " + zeroPadded(position, 4) + " du " + day + " - " +
           std::to_string(draw.id());
}

} // namespace

frmTestProno::frmTestProno() {
    lvWResult.columns(
        {{"Tirage", "Tirage N° 00000 du 00/00/0000 - 0", false}, {"Nombre de numéros", "", false}});
    lvWResult.whenEmpty({gDbCombs->Count() == 0
                             ? "La base est vide : importez d'abord un historique."
                             : "Remplissez les champs, puis cliquez sur « Calculer »."});
    takeNumTir(std::to_string(gDbCombs->Count()));
}

void frmTestProno::editNumTir(const std::string &text) {
    runCommand([&] { takeNumTir(text); });
    notify();
}

void frmTestProno::takeNumTir(const std::string &text) {
    txtNumTir_ = text;
    const double number = numberIn(text);
    if (!isBetween(number, 1, gDbCombs->Count()))
        return;
    position_ = toInt32(number);
    describe(joined);
}

void frmTestProno::leaveNumTir() {
    if (position_ > 0)
        runCommand([this] { describe(joinedWithSign); });
    notify();
}

void frmTestProno::stepUp() {
    if (gDbCombs->Count() == 0)
        return;
    gPronostics->computed(false);
    step(position_ >= gDbCombs->Count() ? 1 : position_ + 1, joinedWithSign);
}

void frmTestProno::stepDown() {
    if (gDbCombs->Count() == 0)
        return;
    step(position_ <= 1 ? gDbCombs->Count() : position_ - 1, joined);
}

void frmTestProno::step(std::int32_t to, const char *joining) {
    position_ = to;
    txtNumTir_ = std::to_string(to);
    runCommand([&] { describe(joining); });
    notify();
}

void frmTestProno::describe(const char *joining) {
    const dbComb &draw = gDbCombs->Item(position_);
    lblDescTir_ = "Tirage N° " + std::to_string(draw.id()) + joining + shortDate(draw.day());
}

void frmTestProno::editNbrCount(const std::string &text) {
    txtNbrCount_ = text;
    gPronostics->computed(false);
}

void frmTestProno::clickCompute() {
    runCommand([this] { compute(); });
    notify();
}

void frmTestProno::compute() {
    const double testDraw = numberIn(txtNumTir_);
    const double best = numberIn(txtNbrCount_);
    const bool blank = trimmed(txtNumTir_).empty() || trimmed(txtTirBefore).empty() ||
                       trimmed(txtTirAfter).empty() || trimmed(txtNbrCount_).empty();
    if (blank || !isBetween(testDraw, 1, gDbCombs->Count()) ||
        !isBetween(best, 1, pronostics::lastNumber)) {
        desktop().showMessage("Veuillez remplir tous les champs correctement", Icon::information,
                              gAppInfo->name());
        return;
    }
    const std::int32_t draw = toInt32(testDraw);
    const std::int32_t before =
        readField({"txtTirBefore", "tirages avant ce tirage", countHolds}, txtTirBefore, countIn);
    const std::int32_t after =
        readField({"txtTirAfter", "tirages après ce tirage", countHolds}, txtTirAfter, countIn);
    txtTirBefore = std::to_string(before); // a word has counted as 0
    txtTirAfter = std::to_string(after);
    gPronostics->test(draw, before, after, toInt32(best));
    lvWResult.clear();
    listFrom(std::max<std::int64_t>(std::int64_t{draw} - before, 1));
    const std::int64_t tested = lvWResult.rowCount();
    desktop().announce("Pronostique testé sur " +
                       groupedNumber(static_cast<std::uint64_t>(tested)) +
                       (tested < 2 ? " tirage" : " tirages"));
}

/// Lists the result of the last test, its first line for the draw at `first`. After a refused
/// rule that is an earlier test's, which can be longer than the base goes from there.
void frmTestProno::listFrom(std::int64_t first) {
    const std::int64_t asked = gPronostics->maxSearched();
    const std::int64_t there = std::clamp<std::int64_t>(gDbCombs->Count() - first + 1, 0, asked);
    lvWResult.rows(there, [first](std::int64_t row, int column) {
        const auto line = static_cast<std::int32_t>(row);
        return column == 0 ? lineText(static_cast<std::int32_t>(first) + line)
                           : std::to_string(gPronostics->nFound(line + 1));
    });
    if (there < asked)
        fail(Failure::subscriptOutOfRange);
}

void frmTestProno::notify() const {
    if (changed)
        changed();
}

} // namespace boulix
