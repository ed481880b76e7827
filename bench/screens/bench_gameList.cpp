// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The list of a game with all grids of 49 numbers on the screen, as a multiple of the list of a
// thousand. Needs no display: QT_QPA_PLATFORM=offscreen.

#include "games/game.h"
#include "games/gameWorkplace.h"
#include "support/ratio.h"
#include "ui/frame/application.h"
#include "ui/widgets/reportView.h"
#include "workbench/gridList.h"

#include <QScrollBar>

namespace boulix {
namespace {

using bench_support::measureRatio;

constexpr std::int16_t allNumbersCount = 49;
constexpr std::int32_t fewGrids = 1000;

/// A list with the first `count` grids of a game, on the screen.
class ShownGrids {
  public:
    ShownGrids(const game &grids, std::int32_t count) : view_(list_) {
        list_.columns(gridList::columns());
        fill(grids, count);
        view_.resize(400, 700);
        view_.show();
        paint();
    }
    void fill(const game &grids, std::int32_t count) {
        list_.rows(count, [&grids](std::int64_t row, int column) {
            return gridList::cell(grids.Item(row + 1), row, column);
        });
    }
    void paint() {
        view_.viewport()->update();
        QApplication::processEvents();
    }
    /// Moves the scroll bar to the given part of its way.
    void scrollTo(double part) {
        QScrollBar &bar = *view_.verticalScrollBar();
        bar.setValue(static_cast<int>(part * bar.maximum()));
        paint();
    }
    void pageStep(bool down) {
        view_.verticalScrollBar()->triggerAction(down ? QAbstractSlider::SliderPageStepAdd
                                                      : QAbstractSlider::SliderPageStepSub);
        paint();
    }

  private:
    reportList list_;
    ReportView view_;
};

class GameLists {
  public:
    GameLists() {
        all_.ComputeManualGame(place_.firstNumbers(allNumbersCount));
        many.emplace(all_, all_.Count());
        few.emplace(all_, fewGrids);
    }
    std::optional<ShownGrids> many;
    std::optional<ShownGrids> few;
    const game &all() const { return all_; }

  private:
    bench_support::GameWorkplace place_;
    game all_;
};

/// The scroll bar dragged to one place after the other.
void drag(benchmark::State &state) {
    GameLists lists;
    lists.many->scrollTo(0.5);
    double part = 0;
    measureRatio(
        state, 1.5,
        [&] {
            part = part > 0.9 ? 0.013 : part + 0.0137;
            lists.many->scrollTo(part);
        },
        [&] { lists.few->scrollTo(part); });
}

void page(benchmark::State &state) {
    GameLists lists;
    lists.many->scrollTo(0.5);
    lists.few->scrollTo(0.5);
    bool down = false;
    measureRatio(
        state, 1.5,
        [&] {
            down = !down;
            lists.many->pageStep(down);
        },
        [&] { lists.few->pageStep(!down); });
}

/// New rows until they are on the screen.
void newRows(benchmark::State &state) {
    GameLists lists;
    measureRatio(
        state, 1.5,
        [&] {
            lists.many->fill(lists.all(), lists.all().Count());
            lists.many->paint();
        },
        [&] {
            lists.few->fill(lists.all(), fewGrids);
            lists.few->paint();
        });
}

BENCHMARK(drag)->UseManualTime()->Iterations(100)->Unit(benchmark::kMillisecond);
BENCHMARK(page)->UseManualTime()->Iterations(100)->Unit(benchmark::kMillisecond);
BENCHMARK(newRows)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace boulix

int main(int argc, char **argv) {
    boulix::Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
