// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modMaths.h"
#include "core/text.h"
#include "games/coverSearch.h"
#include "games/gameDef.h"
#include "games/modComb.h"
#include "games/modGame.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "sill/reports.h"

#include <cstdlib>

namespace boulix {

namespace {

/// C(n, k) from the table; outside the table `Failure::subscriptOutOfRange`.
std::int32_t tableEntry(int k, int n) {
    return modMaths::cnkTable[static_cast<std::size_t>(checkedIndex(k, 1, modMaths::cnkMaxK))]
                             [static_cast<std::size_t>(checkedIndex(n, 0, modMaths::cnkMaxN))];
}

/// Lets the window show itself and the user cancel. True when the user did.
bool cancelledNow(const frmProgress &progress) {
    desktop().runEvents();
    return progress.cancelled();
}

[[noreturn]] void endForUncoverable() {
    reportNumbered(
        3202, std::string("Erreur fatale!!!") + crlf + "Veuillez contacter le support technique.",
        Icon::critical);
    std::exit(EXIT_FAILURE);
}

} // namespace

bool gameDef::compute(std::int16_t nFixed, std::int16_t nWin, std::int16_t nSelect) {
    nSelect_ = nSelect;
    nWin_ = nWin;
    nFixed_ = nFixed;
    nCond_ = nWin;
    ProgressShown progress("Calcul d'un jeu itteratif", "");
    const std::int32_t grids = tableEntry(6 - nFixed, nSelect - nFixed);
    if (!announceGrids(*progress, grids))
        return false;
    const std::int32_t puplets = tableEntry(nWin - nFixed, nSelect - nFixed);
    if (!announcePuplets(*progress, puplets))
        return false;
    return chooseGrids(*progress, grids, puplets);
}

// The search lists neither the grids nor the p-uplets: it finds them by arithmetic. Their two
// stages tell the user how many there are, and take a cancel, before the long one begins.

bool gameDef::announceGrids(frmProgress &progress, std::int32_t grids) {
    progress.lblInfo = "Recherche des p-uplets";
    progress.ProgressBar2.visible = false;
    progress.ProgressBar.range(1, std::int64_t{grids} + 1);
    progress.cancelTag = "0";
    if (cancelledNow(progress))
        return false;
    progress.ProgressBar.value = grids;
    return grids > 0 && !cancelledNow(progress);
}

bool gameDef::announcePuplets(frmProgress &progress, std::int32_t puplets) {
    progress.lblInfo = "Initialisations...";
    progress.ProgressBar.range(1, std::int64_t{puplets} + 1);
    progress.cancelTag = "0";
    if (cancelledNow(progress))
        return false;
    progress.ProgressBar.value = puplets;
    return puplets > 0 && !cancelledNow(progress);
}

bool gameDef::chooseGrids(frmProgress &progress, std::int32_t grids, std::int32_t puplets) {
    progress.lblInfo = "Calcul du jeu réduit...";
    rows_.clear();
    progress.ProgressBar2.visible = true;
    progress.ProgressBar2.range(1, puplets);
    progress.ProgressBar.range(1, grids);
    progress.cancelTag = "0";
    if (cancelledNow(progress))
        return false;
    if (nWin_ > 6) // a grid holds no p-uplet
        endForUncoverable();

    const auto index = [](std::int16_t n) { return static_cast<CoverSearch::Index>(n); };
    CoverSearch search(index(nFixed_), index(nWin_), index(nSelect_), puplets);
    for (std::int32_t t = 1; t <= puplets; ++t, search.next()) {
        if (!search.covered() && !addBestGrid(search, progress))
            return false;
        if (t % 8 == 0) {
            if (cancelledNow(progress))
                return false;
            progress.ProgressBar2.value = t;
        }
    }
    return true;
}

/// Adds the best grid for the present p-uplet of the search. False when the user cancels before
/// its last p-uplet is marked; the row is not added then.
bool gameDef::addBestGrid(CoverSearch &search, frmProgress &progress) {
    progressBar &bar = progress.ProgressBar;
    bar.value = bar.min;
    const boulix::gameComb row = search.bestGrid();
    bar.value = bar.max;
    if (cancelledNow(progress))
        return false;
    std::int64_t marked = 0;
    for (const std::int32_t code : modComb::expand(row, nFixed_, nWin_)) {
        if (cancelledNow(progress))
            return false;
        bar.value = ++marked;
        search.cover(code);
    }
    rows_.emplace_back(row);
    return true;
}

} // namespace boulix
