// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Taking back what was done to a game of all grids of 49 numbers: the time, and the memory that it
// is kept in.

#include "draws/lotoComb.h"
#include "games/gameStep.h"
#include "games/gameWorkplace.h"
#include "sill/undo.h"
#include "support/ratio.h"
#include "winnings/gameResult.h"
#include "workbench/eliminatorPage.h"
#include "workbench/gamePage.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>
#include <vector>

namespace boulix {
namespace {

using bench_support::GameWorkplace;
using bench_support::measureRatio;
using bench_support::secondsOf;

constexpr double allGrids = 13'983'816;

constexpr int notings = 3;

/// Noting a list against a plain copy of as many bytes to memory that is as fresh. All of them are
/// kept until the end: what it costs to give the memory back is not looked at here.
void NotingTheListAgainstCopyingItsBytes(benchmark::State &state) {
    GameWorkplace place;
    game made;
    made.ComputeManualGame(place.firstNumbers(49));
    const std::size_t bytes = made.refs().size() * sizeof(GridRef);
    const std::string original(bytes, 'x');
    std::vector<GridList> noted;
    std::vector<void *> copies;
    measureRatio(
        state, 4, [&] { noted.push_back(made.list()); },
        [&] {
            copies.push_back(::operator new(bytes));
            wantLargePages(copies.back(), bytes);
            std::memcpy(copies.back(), original.data(), bytes);
        },
        bench_support::processorSecondsOf);
    for (void *copy : copies)
        ::operator delete(copy);
}
BENCHMARK(NotingTheListAgainstCopyingItsBytes)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(notings);

/// The game page with all grids, added from those under construction, which hold them, too. Each
/// time it shows a game, that is checked against a draw, as on the tab of the verification.
class FullPage {
  public:
    FullPage() {
        page.init();
        page.gameShown = [this] { benchmark::DoNotOptimize(currentGame->verify(draw_)); };
        for (int i = 1; i <= lotoComb::size; ++i)
            draw_.num(i, static_cast<std::int16_t>(7 * i));
        draw_.compl_(1);
        page.view(&view_);
        page.design.clickTab(gameDesign::manualTab);
        place_.desktop.chosen = 49;
        page.design.clickButton(gameDesign::selectNumbers);
        page.design.clickButton(gameDesign::computeGame);
        page.design.clickButton(gameDesign::addGame);
    }
    ~FullPage() { page.view(nullptr); }

    /// Clicks a button, and measures how long the undo and the redo of it take and how many bytes
    /// a grid the step takes beside the game.
    void measure(benchmark::State &state, gamePage::Button button) {
        bench_support::forgetPeak();
        const std::int64_t before = bench_support::memoryInUse();
        page.clickButton(button);
        state.counters["bytesPerGrid"] =
            static_cast<double>(bench_support::memoryInUse() - before) / allGrids;
        double longest = 0;
        for (auto _ : state) {
            const double undo = secondsOf([] { gUndo->undo(); });
            const double redo = secondsOf([] { gUndo->redo(); });
            longest = std::max({longest, undo, redo});
            state.SetIterationTime(undo);
        }
        state.counters["longest_ms"] = 1000 * longest;
        state.counters["goal_ms"] = 100;
    }

    std::vector<std::int64_t> selected;
    eliminatorPage rules;
    gamePage page{rules};

  private:
    class View : public gameView {
      public:
        explicit View(FullPage &full) : full_(full) {}
        std::vector<std::int64_t> selectedRows() const override { return full_.selected; }
        bool anyRowSelected() const override { return !full_.selected.empty(); }
        void refresh() override {}
        void showSide(int) override {}
        void runGameList(frmGameList &) override {}
        void runOptimiser(frmOptimiser &) override {}

      private:
        FullPage &full_;
    };

    lotoComb draw_;
    GameWorkplace place_;
    View view_{*this};
};

void UndoOfEffacer(benchmark::State &state) {
    FullPage full;
    full.measure(state, gamePage::clearGame);
}
BENCHMARK(UndoOfEffacer)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void UndoOfAjouter(benchmark::State &state) {
    FullPage full;
    full.measure(state, gamePage::printGame); // no command: the last one was "Ajouter"
}
BENCHMARK(UndoOfAjouter)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

/// One grid near the start: all others move.
void UndoOfSupprimer(benchmark::State &state) {
    FullPage full;
    full.selected = {2};
    full.measure(state, gamePage::removeGrids);
}
BENCHMARK(UndoOfSupprimer)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void UndoOfEliminer(benchmark::State &state) {
    FullPage full;
    full.rules.init();
    full.rules.tick(4, true);
    full.rules.txtEliminator[4] = "4";
    full.measure(state, gamePage::eliminateGrids);
}
BENCHMARK(UndoOfEliminer)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace
} // namespace boulix
