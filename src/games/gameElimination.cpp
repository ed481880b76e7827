// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "core/modMaths.h"
#include "eliminators/eliminators.h"
#include "games/game.h"
#include "games/gridJudge.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"

#include <algorithm>
#include <array>

namespace boulix {

namespace {

/// How often the bar moves and the event queue runs, in grids.
constexpr std::size_t rhythm = 50;

/// What the progress window says while a rule runs, before and behind its threshold. The texts
/// speak of "more than" and "less than", the tests include the threshold: the rules are known
/// this way to their users.
struct StageText {
    const char *before;
    const char *behind;
};
constexpr std::array<StageText, eliminators::ruleCount> stageTexts = {{
    {"Combinaisons contenant plus de ", " numéros de la même dizaine."},
    {"Combinaisons contenant plus de ", " numéros de la même septaine."},
    {"Combinaisons dont la somme des numéros est inférieure à ", ""},
    {"Combinaisons dont la somme des numéros est supérieure à ", ""},
    {"Combinaisons contenant au moins ", " numéros pairs"},
    {"Combinaisons contenant au moins ", " numéros impairs"},
    {"Combinaisons contenant au moins ", " numéros consécutifs"},
    {"Combinaisons contenant au moins l'un des numéros de la liste définie", nullptr},
}};

std::string stageText(int rule, std::int16_t value) {
    const StageText &text = stageTexts[static_cast<std::size_t>(rule - 1)];
    if (text.behind == nullptr)
        return text.before;
    return text.before + std::to_string(value) + text.behind;
}

// The rules one by one, for grids that the judge does not know: those with a number outside 1 to
// 49, as a file can hold them.

/// Whether `limit` numbers or more fall into the same group of `divisor`. A number whose group is
/// outside 0 to `divisor` fails with `Failure::subscriptOutOfRange`.
bool groupReaches(const gameComb &grid, int divisor, int limit) {
    std::array<int, 11> counters{};
    for (const std::int16_t n : grid.numbers())
        ++counters[static_cast<std::size_t>(checkedIndex(n / divisor, 0, divisor))];
    return std::any_of(counters.begin(), counters.begin() + divisor + 1,
                       [=](int counter) { return counter >= limit; });
}

bool parityReaches(const gameComb &grid, int lowestBit, int limit) {
    const auto &numbers = grid.numbers();
    return std::count_if(numbers.begin(), numbers.end(),
                         [=](std::int16_t n) { return (n & 1) == lowestBit; }) >= limit;
}

bool runReaches(const gameComb &grid, int limit) {
    int run = 0;
    for (int i = 1; i < gameComb::size; ++i) {
        run = grid.num(i + 1) - grid.num(i) == 1 ? run + 1 : 0;
        if (run > 0 && run >= limit)
            return true;
    }
    return false;
}

bool holdsListed(const gameComb &grid, const eliminator &list) {
    const auto &numbers = grid.numbers();
    return std::any_of(numbers.begin(), numbers.end(),
                       [&](std::int16_t n) { return list.eliminNbr(n) != eliminator::off; });
}

bool condemnsOddGrid(int rule, const eliminator &settings, const gameComb &grid) {
    switch (rule) {
    case 1:
        return groupReaches(grid, 10, settings.Value());
    case 2:
        return groupReaches(grid, 8, settings.Value());
    case 3:
        return grid.sum() <= settings.Value();
    case 4:
        return grid.sum() >= settings.Value();
    case 5:
        return parityReaches(grid, 0, settings.Value());
    case 6:
        return parityReaches(grid, 1, settings.Value());
    case 7:
        return runReaches(grid, settings.Value());
    default:
        return holdsListed(grid, settings);
    }
}

/// One run of the rules over a game: which grids are condemned.
class Elimination {
  public:
    Elimination(const game &grids, frmProgress &progress)
        : grids_(grids), flags_(static_cast<std::size_t>(grids.Count())), progress_(progress) {}

    /// The rules that are on, in their order.
    void run();
    const std::vector<std::uint8_t> &flags() const { return flags_; }

  private:
    void judgeAll();
    void runRule(int rule, const eliminator &settings);

    const game &grids_;
    std::vector<std::uint8_t> flags_; // not 0: condemned
    std::vector<std::size_t> odd_;    // grids that the judge does not know, ascending
    frmProgress &progress_;
};

void Elimination::run() {
    judgeAll();
    for (int rule = 1; rule <= eliminators::ruleCount; ++rule) {
        if (!gEliminators->isOn(rule))
            continue;
        runRule(rule, gEliminators->Item(rule));
        progress_.ProgressBar2.value = rule + 1;
    }
}

/// Judges all grids by all rules: one look at each costs little more than the way to it.
void Elimination::judgeAll() {
    const GridJudge judge(*gEliminators);
    std::size_t done = 0;
    grids_.forEachStretch([&](const gameComb *stretch, std::size_t count) {
        if (!judge.judge(stretch, count, &flags_[done]))
            for (std::size_t i = 0; i < count; ++i)
                if (!judge.knows(stretch[i])) {
                    flags_[done + i] = 0;
                    odd_.push_back(done + i);
                }
        done += count;
    });
}

/// Shows the rule at work. What is left of its work are the odd grids: each is looked at when its
/// turn comes, because it can make the rule fail or complain.
void Elimination::runRule(int rule, const eliminator &settings) {
    progress_.lblInfo = stageText(rule, settings.Value());
    progress_.ProgressBar.range(1, static_cast<std::int64_t>(flags_.size()) + 1);
    auto odd = odd_.begin();
    for (std::size_t last = rhythm;; last += rhythm) {
        for (; odd != odd_.end() && *odd < last; ++odd)
            if (flags_[*odd] == 0)
                flags_[*odd] = static_cast<std::uint8_t>(condemnsOddGrid(
                    rule, settings, grids_.Item(static_cast<std::int64_t>(*odd) + 1)));
        if (last > flags_.size())
            break;
        progress_.ProgressBar.value = static_cast<std::int64_t>(last);
        desktop().runEvents();
    }
}

} // namespace

bool game::EliminComb() {
    if (!gEliminators->verify() || Count() == 0)
        return false;
    ProgressShown progress("Elimination des combinaisons", "");
    progress->cancelVisible = false;
    progress->ProgressBar2.visible = true;
    progress->ProgressBar2.range(1, 10);
    progress->ProgressBar.range(1, modMaths::maxOf(Count(), 2));

    Elimination elimination(*this, *progress);
    elimination.run();
    sweep(elimination.flags(), progress->ProgressBar);
    progress->ProgressBar2.value = 10;
    progress.unload();
    desktop().showMessage(std::to_string(Count()) + " combinaisons restantes.", Icon::none,
                          gAppInfo->name());
    return true;
}

/// Removes the flagged grids in one pass. A list on the screen may look at the game whenever the
/// event queue runs: until the end every place holds a grid.
void game::sweep(const std::vector<std::uint8_t> &flags, progressBar &bar) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < flags.size();) {
        for (const std::size_t last = std::min(i + rhythm, flags.size()); i < last; ++i) {
            swap(grids_[kept], grids_[i]);
            kept += static_cast<std::size_t>(flags[i] == 0);
        }
        if (const std::size_t next = kept + 1; next >= rhythm)
            bar.value = static_cast<std::int64_t>(next - next % rhythm);
        desktop().runEvents();
    }
    if (!keys_.empty())
        for (std::size_t i = flags.size(); i > 0; --i)
            if (flags[i - 1] != 0)
                keys_.removed(static_cast<std::int64_t>(i));
    grids_.resize(kept);
}

} // namespace boulix
