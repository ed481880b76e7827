// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/appInfo.h"
#include "core/desktop.h"
#include "core/frmProgress.h"
#include "core/globals.h"
#include "core/modMaths.h"
#include "eliminators/eliminators.h"
#include "games/game.h"
#include "games/gridProfile.h"

#include <algorithm>
#include <array>

namespace boulix {

namespace {

/// How often the bar moves and the event queue runs, in grids.
constexpr std::size_t rhythm = 50;
/// The same while the grids are looked through before the first rule: some milliseconds.
constexpr std::size_t gatherRhythm = 1U << 18U;

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

// The tests on the numbers themselves, for grids that have no profile: those with a number
// outside 1 to 49, as a file can hold them.

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

gridProfile::Reaches profileTest(int rule, int value) {
    using namespace gridProfile;
    switch (rule) {
    case 1:
        return {tens, value};
    case 2:
        return {eights, value};
    case 5:
        return {even, value};
    case 6:
        return {odd, value};
    case 7:
        return {longestRun, std::max(value, 1)}; // a grid without a run is never condemned
    default:
        return {listed, 1};
    }
}

/// One run of the rules over a game: which grids are condemned.
class Elimination {
  public:
    Elimination(const game &grids, frmProgress &progress)
        : grids_(grids), count_(static_cast<std::size_t>(grids.Count())), flags_(count_),
          progress_(progress) {}

    /// The rules that are on, in their order.
    void run();
    const std::vector<std::uint8_t> &flags() const { return flags_; }

  private:
    void gather(const eliminator *list);
    void runRule(int rule, const eliminator &settings);
    void testSums(const eliminator &settings, bool low);
    void testProfiles(int rule, const eliminator &settings);
    template <class Test>
    void flagEach(const Test &test);

    const game &grids_;
    std::size_t count_;
    std::vector<std::uint8_t> flags_; // not 0: condemned
    std::vector<std::uint64_t> profiles_;
    std::vector<std::int16_t> sums_;
    frmProgress &progress_;
};

void Elimination::run() {
    const eliminators &rules = *gEliminators;
    const auto active = [&](int rule) {
        return rule <= rules.Count() && rules.Item(rule).status() != eliminator::off;
    };
    const int listRule = eliminators::listRule;
    gather(active(listRule) ? &rules.Item(listRule) : nullptr);
    for (int rule = 1; rule <= eliminators::ruleCount; ++rule) {
        if (!active(rule))
            continue;
        runRule(rule, rules.Item(rule));
        progress_.ProgressBar2.value = rule + 1;
    }
}

/// Collects from the grids what the rules look at.
void Elimination::gather(const eliminator *list) {
    const gridProfile::Maker profileOf(list);
    profiles_.reserve(count_);
    sums_.reserve(count_);
    for (const gameComb &grid : grids_) {
        profiles_.push_back(profileOf(grid));
        sums_.push_back(grid.sum());
        if (profiles_.size() % gatherRhythm == 0)
            desktop().runEvents();
    }
}

void Elimination::runRule(int rule, const eliminator &settings) {
    progress_.lblInfo = stageText(rule, settings.Value());
    progress_.ProgressBar.range(1, static_cast<std::int64_t>(count_) + 1);
    if (rule == 3 || rule == 4)
        testSums(settings, rule == 3);
    else
        testProfiles(rule, settings);
}

void Elimination::testSums(const eliminator &settings, bool low) {
    const std::int16_t value = settings.Value();
    if (low)
        flagEach([&](std::size_t i) { return sums_[i] <= value; });
    else
        flagEach([&](std::size_t i) { return sums_[i] >= value; });
}

void Elimination::testProfiles(int rule, const eliminator &settings) {
    const gridProfile::Reaches reaches = profileTest(rule, settings.Value());
    flagEach([&](std::size_t i) {
        if (profiles_[i] != gridProfile::none)
            return reaches(profiles_[i]);
        return flags_[i] == 0 &&
               condemnsOddGrid(rule, settings, grids_.Item(static_cast<std::int64_t>(i) + 1));
    });
}

/// Sets the flag of each grid, by its index from 0, for which `test` says so.
template <class Test>
void Elimination::flagEach(const Test &test) {
    for (std::size_t first = 0; first < count_; first += rhythm) {
        const std::size_t last = std::min(first + rhythm, count_);
        for (std::size_t i = first; i < last; ++i)
            flags_[i] |= static_cast<std::uint8_t>(test(i));
        if (last - first < rhythm)
            break;
        progress_.ProgressBar.value = static_cast<std::int64_t>(last);
        desktop().runEvents();
    }
}

} // namespace

void game::EliminComb() {
    if (!gEliminators->verify() || Count() == 0)
        return;
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
}

/// Removes the flagged grids in one pass. The event queue runs at each step and a list on the
/// screen may look at the game meanwhile: until the end every place holds a grid.
void game::sweep(const std::vector<std::uint8_t> &flags, progressBar &bar) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < flags.size(); ++i) {
        if (flags[i] == 0) {
            if (kept != i)
                std::swap(grids_[kept], grids_[i]);
            ++kept;
        }
        desktop().runEvents();
        if ((kept + 1) % rhythm == 0)
            bar.value = static_cast<std::int64_t>(kept) + 1;
    }
    if (!keys_.empty())
        for (std::size_t i = flags.size(); i > 0; --i)
            if (flags[i - 1] != 0)
                keys_.removed(static_cast<std::int64_t>(i));
    grids_.resize(kept);
}

} // namespace boulix
