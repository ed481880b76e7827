// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The statistics on the screen: the graph window with 4858 periods, the longest list of triplets,
// and a step of the analysis of a draw. Needs no display: QT_QPA_PLATFORM=offscreen.

#include "core/globals.h"
#include "core/modMaths.h"
#include "draws/dbCombs.h"
#include "stats/bases.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "support/quietProgram.h"
#include "support/ratio.h"
#include "ui/frame/application.h"
#include "ui/stats/drawAnalysisTab.h"
#include "ui/stats/graphWindow.h"
#include "ui/stats/plotView.h"
#include "ui/stats/statisticsTab.h"
#include "workbench/frmMain.h"

#include <QMouseEvent>
#include <QTreeWidget>
#include <QWheelEvent>
#include <malloc.h>
#include <qcustomplot.h>

#include <random>
#include <vector>

namespace boulix {
namespace {

using bench_support::measureRatio;

constexpr int periods = 4858;

/// Lets the event queue run until everything is painted.
void paint() {
    QApplication::processEvents();
}

std::vector<double> lengths() {
    std::mt19937 random(13);
    std::vector<double> y;
    for (int i = 0; i < periods; ++i)
        y.push_back(static_cast<double>(random() % 60 + 1));
    return y;
}

std::vector<double> positions() {
    std::vector<double> x;
    for (int i = 1; i <= periods; ++i)
        x.push_back(i);
    return x;
}

/// The graph window with the curve of the periods.
class OurGraph {
  public:
    explicit OurGraph(int type) : window_(prepared(rules_, type)) {
        window_.resize(900, 600);
        window_.show();
        show();
    }
    void show() {
        rules_.plot.clearCurves();
        rules_.plot.addCurve(x_, y_);
        paint();
    }
    QWidget &plot() { return *window_.findChild<QCustomPlot *>(); }

  private:
    static frmGraph &prepared(frmGraph &rules, int type) {
        rules.selectGraphType(static_cast<std::int16_t>(type));
        rules.plot.titles("Période", "Absences");
        return rules;
    }

    std::vector<double> x_ = positions();
    std::vector<double> y_ = lengths();
    frmGraph rules_;
    GraphWindow window_;
};

/// The same curve given to the plotting library by hand, in a window of the same plot's size.
class PlainGraph {
  public:
    PlainGraph(int type, QSize size) : type_(type) {
        plot_.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
        plot_.resize(size);
        plot_.show();
        show();
    }
    void show() {
        const std::vector<double> x = positions();
        plot_.clearPlottables();
        const QVector<double> xs(x.begin(), x.end());
        const QVector<double> ys(y_.begin(), y_.end());
        if (type_ == 1) {
            auto *bars = new QCPBars(plot_.xAxis, plot_.yAxis);
            bars->setWidth(0.7);
            bars->setData(xs, ys, true);
        } else {
            plot_.addGraph()->setData(xs, ys, true);
            if (type_ > 1) {
                plot_.graph()->setLineStyle(QCPGraph::lsNone);
                plot_.graph()->setScatterStyle(QCPScatterStyle(
                    type_ == 2 ? QCPScatterStyle::ssDisc : QCPScatterStyle::ssCross, 6));
            }
        }
        plot_.xAxis->setRange(0, periods + 1);
        plot_.yAxis->setRange(0, 63);
        plot_.replot(QCustomPlot::rpQueuedReplot);
        paint();
    }
    QWidget &plot() { return plot_; }

  private:
    int type_;
    std::vector<double> y_ = lengths();
    QCustomPlot plot_;
};

/// One notch of the wheel over the middle of the plot, in and out by turns.
class Wheel {
  public:
    explicit Wheel(QWidget &plot) : plot_(plot) {}
    void turn() {
        const QPointF middle = plot_.rect().center();
        QWheelEvent event(middle, plot_.mapToGlobal(middle), {}, {0, notch_}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&plot_, &event);
        notch_ = -notch_;
        paint();
    }

  private:
    QWidget &plot_;
    int notch_ = 120;
};

/// The mouse with its button down, moved to and fro.
class Drag {
  public:
    explicit Drag(QWidget &plot) : plot_(plot), at_(plot.rect().center()) {
        send(QEvent::MouseButtonPress, Qt::LeftButton);
    }
    ~Drag() { send(QEvent::MouseButtonRelease, Qt::LeftButton); }
    Drag(const Drag &) = delete;
    Drag &operator=(const Drag &) = delete;
    void move() {
        at_ += QPointF(step_, 0);
        step_ = -step_;
        send(QEvent::MouseMove, Qt::NoButton);
        paint();
    }

  private:
    void send(QEvent::Type type, Qt::MouseButton button) {
        QMouseEvent event(type, at_, plot_.mapToGlobal(at_), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&plot_, &event);
    }

    QWidget &plot_;
    QPointF at_;
    double step_ = 30;
};

/// A new result on the graph window, as a multiple of one that the library is given by hand.
void newCurve(benchmark::State &state) {
    OurGraph ours(static_cast<int>(state.range(0)));
    PlainGraph plain(static_cast<int>(state.range(0)), ours.plot().size());
    measureRatio(
        state, 1.5, [&] { ours.show(); }, [&] { plain.show(); });
}

void zoom(benchmark::State &state) {
    OurGraph ours(static_cast<int>(state.range(0)));
    PlainGraph plain(static_cast<int>(state.range(0)), ours.plot().size());
    Wheel onOurs(ours.plot());
    Wheel onPlain(plain.plot());
    measureRatio(
        state, 1.5, [&] { onOurs.turn(); }, [&] { onPlain.turn(); });
}

void drag(benchmark::State &state) {
    OurGraph ours(static_cast<int>(state.range(0)));
    PlainGraph plain(static_cast<int>(state.range(0)), ours.plot().size());
    Drag onOurs(ours.plot());
    Drag onPlain(plain.plot());
    measureRatio(
        state, 1.5, [&] { onOurs.move(); }, [&] { onPlain.move(); });
}

BENCHMARK(newCurve)->DenseRange(0, 3)->UseManualTime()->Iterations(30)->Unit(
    benchmark::kMillisecond);
BENCHMARK(zoom)->DenseRange(0, 3)->UseManualTime()->Iterations(30)->Unit(benchmark::kMillisecond);
BENCHMARK(drag)->DenseRange(0, 3)->UseManualTime()->Iterations(30)->Unit(benchmark::kMillisecond);

/// The program with `count` draws in its base.
class Program {
  public:
    explicit Program(std::int32_t count) : program_(desktop_) {
        modMaths::precomputeCnk();
        modStats::InitStatTypes();
        modStats::InitTripletTable();
        modStats::InitGraphTypes();
        bench::makeBase(count);
        mainWindow->load();
    }
    ~Program() { resetGlobals(); }
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

  private:
    bench_support::QuietDesktop desktop_;
    bench_support::QuietProgram program_;
};

void fillTree(QTreeWidget &tree) {
    QList<QTreeWidgetItem *> rows;
    for (const modStats::Triplet &triplet : modStats::tripletTable)
        if (triplet.flag == 0)
            rows.append(new QTreeWidgetItem({QString::number(triplet.num[0]),
                                             QString::number(triplet.num[1]),
                                             QString::number(triplet.num[2])}));
    tree.clear();
    tree.addTopLevelItems(rows);
    paint();
}

/// A click on the button of type 11 on a base of one draw until its 18 404 rows are on the screen,
/// as a multiple of a ready-made tree that is filled with them. `bytes` is what the list holds.
void listOfTriplets(benchmark::State &state) {
    const Program program(1);
    StatisticsTab tab(mainWindow->statistics);
    tab.resize(900, 600);
    tab.show();
    QTreeWidget tree;
    tree.setColumnCount(3);
    tree.resize(400, 500);
    tree.show();
    mainWindow->statistics.pickType(11);
    paint();
    const std::size_t before = mallinfo2().uordblks;
    mainWindow->statistics.clickButton(statisticsPage::computeType);
    paint();
    state.counters["bytes"] = static_cast<double>(mallinfo2().uordblks - before);
    measureRatio(
        state, 0.5,
        [] {
            mainWindow->statistics.clickButton(statisticsPage::computeType);
            paint();
        },
        [&] { fillTree(tree); });
}

/// A step of the spin control with all 71 rows until they are on the screen, on 200 000 draws as a
/// multiple of the same step on a base without past.
void analysisStep(benchmark::State &state) {
    const Program program(200000);
    drawAnalysisPage &page = mainWindow->analysis;
    DrawAnalysisTab tab(page);
    tab.resize(900, 600);
    tab.show();
    page.selectAnalyses({1, 2, 3, 4, 5, 6, 7, 8});
    paint();
    const auto step = [&page](std::int32_t draw) {
        page.updnTirNbr.set(draw);
        paint();
    };
    std::int32_t late = 200000;
    std::int32_t early = 3;
    measureRatio(
        state, 2, [&] { step(--late); }, [&] { step(early = 5 - early); });
}

BENCHMARK(listOfTriplets)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(analysisStep)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace boulix

int main(int argc, char **argv) {
    boulix::Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
