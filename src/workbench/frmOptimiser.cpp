// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/frmOptimiser.h"

#include "core/platform.h"
#include "core/text.h"
#include "games/gameDef.h"
#include "sill/desktop.h"
#include "workbench/systemMaker.h"

#include <chrono>
#include <cmath>
#include <utility>

namespace boulix {

namespace {

/// Between two runs of the event queue: some hundredths of a second.
constexpr std::int64_t slice = 4'000'000;

double secondsNow() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

std::uint64_t clockSeed() {
    platform().seedRandomFromClock();
    std::uint64_t seed = 0;
    for (int i = 0; i < 3; ++i)
        seed = seed << 21U | static_cast<std::uint64_t>(platform().nextRandom() * (1U << 21U));
    return seed;
}

/// Sets a flag for as long as it lives, whichever way the search ends.
class Running {
  public:
    explicit Running(bool &flag) : flag_(flag) { flag_ = true; }
    ~Running() { flag_ = false; }
    Running(const Running &) = delete;
    Running &operator=(const Running &) = delete;

  private:
    bool &flag_;
};

std::string plural(std::int64_t count, const std::string &noun) {
    return std::to_string(count) + " " + noun + (count > 1 ? "s" : "");
}

std::string inWords(int nWin, int nCond) {
    return plural(nWin, "gagnant") + " si " + plural(nCond, "sorti");
}

} // namespace

frmOptimiser::frmOptimiser(const gameDef &told)
    : clock(secondsNow), base_{told.nFixed(), told.nWin(), told.nWin(), told.nSelect()},
      toldRows_(systemRows(told)) {
    for (int nCond = base_.nWin; nCond <= gameComb::size; ++nCond)
        cmbGuarantee_.push_back(inWords(base_.nWin, nCond));
    best_.resize(cmbGuarantee_.size());
    begin();
}

Guarantee frmOptimiser::present() const {
    Guarantee guarantee = base_;
    guarantee.nCond = static_cast<std::int16_t>(base_.nWin + guarantee_);
    return guarantee;
}

/// Systems that may keep the present guarantee: the calculated one, what was found here for fewer
/// drawn numbers and, where more are drawn than win, the carried ones.
std::vector<std::vector<gameComb>> frmOptimiser::knownSystems() const {
    std::vector<std::vector<gameComb>> systems;
    if (guarantee_ > 0)
        systems = carriedSystems(base_);
    systems.push_back(toldRows_);
    for (int i = 0; i <= guarantee_; ++i)
        if (const auto &rows = best_[static_cast<std::size_t>(i)]; !rows.empty())
            systems.push_back(rows);
    return systems;
}

void frmOptimiser::begin() {
    search_ = std::make_unique<SystemOptimiser>(present(), knownSystems(), clockSeed());
    rows_ = search_->rows();
    curve_.clear();
    seconds_ = 0;
    refused_ = false;
    atItsEnd_ = search_->finished();
    show();
}

void frmOptimiser::chooseGuarantee(int index) {
    if (running_ || index == guarantee_ || index < 0 || index >= std::ssize(cmbGuarantee_))
        return;
    guarantee_ = index;
    begin();
    notify();
}

void frmOptimiser::clickStart() {
    if (!canStart())
        return;
    stopAsked_ = false;
    {
        const Running whileSearching(running_);
        searchOn();
    }
    best_[static_cast<std::size_t>(guarantee_)] = rows_;
    show();
    notify();
}

void frmOptimiser::searchOn() {
    const double begun = clock();
    const double before = seconds_;
    if (curve_.empty())
        curve_.push_back({0, std::ssize(rows_)});
    double nextLook = begun;
    while (!stopAsked_ && !refused_ && !search_->finished() && seconds_ - before < longestRun) {
        show();
        notify();
        desktop().runEvents();
        search_->run(slice);
        seconds_ = before + clock() - begun;
        if (clock() < nextLook)
            continue;
        const double looked = clock();
        takeOver();
        nextLook = clock() + 10 * (clock() - looked); // the check may cost a tenth of the time
    }
    takeOver();
    atItsEnd_ = refused_ || search_->finished();
    curve_.push_back({seconds_, std::ssize(rows_)});
}

/// Shows the search's best system, if it passes the check. One that does not is a defect of the
/// search, which is not used any more.
bool frmOptimiser::takeOver() {
    if (refused_ || search_->size() >= std::ssize(rows_))
        return false;
    std::vector<gameComb> found = search_->rows();
    if (!check(found, present())) {
        refused_ = true;
        return false;
    }
    curve_.push_back({seconds_, std::ssize(rows_)});
    rows_ = std::move(found);
    curve_.push_back({seconds_, std::ssize(rows_)});
    return true;
}

void frmOptimiser::clickUse() {
    if (!canUse())
        return;
    hidden_ = true;
    if (used)
        used(present(), rows_);
    notify();
}

void frmOptimiser::clickQuit() {
    stopAsked_ = true;
    hidden_ = true;
    notify();
}

void frmOptimiser::show() {
    const auto grids = static_cast<std::int32_t>(rows_.size());
    const auto told = static_cast<std::int32_t>(toldRows_.size());
    const std::int32_t saved = told - grids;
    lblGrids = plural(grids, "grille");
    lblCost = systemCost(grids);
    lblTold = plural(told, "grille") + ", " + systemCost(told);
    lblSaved = "aucune grille";
    if (saved > 0)
        lblSaved = plural(saved, "grille") + ", " + systemCost(saved) + " (" +
                   std::to_string(std::lround(100.0 * saved / told)) + " %)";
    const std::optional<std::int64_t> record = search_->record();
    lblRecord = record ? plural(*record, "grille") : "inconnu";
    lblBound = plural(search_->lowerBound(), "grille") + (guarantee_ == 0 ? " (Schönheim)" : "");
    lblTime = std::to_string(static_cast<std::int64_t>(seconds_)) + " s";
    if (running_)
        lblState = "Recherche en cours...";
    else if (refused_)
        lblState = "Un résultat n'a pas passé le contrôle : il est écarté.";
    else if (grids <= search_->lowerBound())
        lblState = "La borne est atteinte : aucun système n'a moins de grilles.";
    else if (atItsEnd_)
        lblState = "Ce système est trop grand pour la recherche.";
    else if (curve_.empty())
        lblState = "Prêt.";
    else
        lblState = "Arrêté. \"Continuer\" reprend au meilleur système.";
}

void frmOptimiser::notify() const {
    if (changed)
        changed();
}

} // namespace boulix
