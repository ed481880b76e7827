// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/graph/plotView.h"

#include "core/failure.h"
#include "core/reports.h"
#include "files/modFileSelector.h"
#include "stats/plotPane.h"
#include "ui/qtText.h"
#include "ui/theme.h"

#include <QMenu>
#include <QMouseEvent>
#include <QSvgGenerator>
#include <QToolTip>
#include <QVBoxLayout>
#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

namespace boulix {

namespace {

constexpr QSize pictureSize{1200, 800};

/// A colour of the pane as it can be seen on the ground of `palette`: the pane's colours are meant
/// for a light one, a dark one takes them paler.
QColor shade(Color color, const QPalette &palette) {
    const QColor told(color.red, color.green, color.blue);
    return theme::isDark(palette) ? theme::blend(told, Qt::white, 0.45) : told;
}

/// A range that can be drawn: limits the right way round and some distance apart.
QCPRange drawable(float first, float last) {
    const QCPRange range(std::min(first, last), std::max(first, last));
    return range.size() > 0 ? range : QCPRange(range.lower - 0.5, range.upper + 0.5);
}

[[noreturn]] void failToWrite(const QString &name) {
    fail(Failure::pathAccess, "Erreur d'accès au chemin/fichier : " + fromQt(name));
}

} // namespace

PlotView::PlotView(PlotPane &pane, QWidget *parent)
    : QWidget(parent), pane_(pane), plot_(new QCustomPlot(this)) {
    setObjectName(QStringLiteral("PlotPane"));
    setAccessibleName(QStringLiteral("Courbe de la statistique"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(plot_);
    dress();
    plot_->setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    plot_->setContextMenuPolicy(Qt::CustomContextMenu);
    plot_->installEventFilter(this);
    connect(plot_, &QWidget::customContextMenuRequested, this, &PlotView::showMenu);
    connect(plot_, &QCustomPlot::mouseDoubleClick, this,
            [this] { pane_.autoRange(pane_.autoRange()); });
    for (QCPAxis *axis : {plot_->xAxis, plot_->yAxis})
        connect(axis, QOverload<const QCPRange &>::of(&QCPAxis::rangeChanged), this,
                &PlotView::followUser);
    pane_.changed = [this] { redraw(); };
    redraw();
}

PlotView::~PlotView() {
    pane_.changed = nullptr;
}

/// The ground and the letters are those of the palette; the curve, the grid and the axes have
/// the colours of the pane.
void PlotView::dress() {
    plot_->setBackground(palette().base());
    for (QCPAxis *axis : {plot_->xAxis, plot_->yAxis}) {
        axis->setLabelColor(palette().color(QPalette::Text));
        axis->setTickLabelColor(palette().color(QPalette::Text));
        axis->setLabelFont(font());
        axis->setTickLabelFont(font());
        axis->ticker()->setTickStepStrategy(QCPAxisTicker::tssReadability);
    }
}

void PlotView::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        dress();
        redraw();
    }
}

void PlotView::redraw() {
    drawing_ = true;
    plot_->clearPlottables();
    drawAxes();
    drawCurves();
    drawing_ = false;
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

void PlotView::drawAxes() {
    const QPen axesPen(shade(pane_.axesColor(), palette()));
    const QPen noPen(Qt::NoPen);
    for (QCPAxis *axis : {plot_->xAxis, plot_->yAxis}) {
        const bool shown = pane_.showAxes();
        axis->setBasePen(shown ? axesPen : noPen);
        axis->setTickPen(shown ? axesPen : noPen);
        axis->setSubTickPen(noPen);
        axis->setTickLabels(shown);
        axis->grid()->setVisible(pane_.showGrid());
        axis->grid()->setPen(QPen(shade(pane_.gridColor(), palette()), 0, Qt::DotLine));
        axis->grid()->setZeroLinePen(shown ? axesPen : noPen);
    }
    plot_->xAxis->setLabel(pane_.showAxes() ? toQt(pane_.xTitle()) : QString());
    plot_->yAxis->setLabel(pane_.showAxes() ? toQt(pane_.yTitle()) : QString());
    plot_->xAxis->setRange(drawable(pane_.xMin(), pane_.xMax()));
    plot_->yAxis->setRange(drawable(pane_.yMin(), pane_.yMax()));
}

QCPAbstractPlottable *PlotView::makeBars() {
    auto *bars = new QCPBars(plot_->xAxis, plot_->yAxis);
    bars->setWidth(0.7);
    QColor fill = shade(pane_.curveColor(), palette());
    fill.setAlphaF(0.55F);
    bars->setBrush(fill);
    return bars;
}

QCPAbstractPlottable *PlotView::makeGraph() {
    constexpr int points = 2;
    constexpr int crosses = 3;
    QCPGraph *graph = plot_->addGraph();
    if (pane_.graphType() == points || pane_.graphType() == crosses) {
        graph->setLineStyle(QCPGraph::lsNone);
        graph->setScatterStyle(QCPScatterStyle(
            pane_.graphType() == points ? QCPScatterStyle::ssDisc : QCPScatterStyle::ssCross, 6));
    }
    return graph;
}

void PlotView::drawCurves() {
    constexpr int bars = 1;
    for (const PlotCurve &curve : pane_.curves()) {
        const QVector<double> x(curve.x.begin(), curve.x.end());
        const QVector<double> y(curve.y.begin(), curve.y.end());
        QCPAbstractPlottable *drawn = pane_.graphType() == bars ? makeBars() : makeGraph();
        drawn->setPen(QPen(shade(pane_.curveColor(), palette()), 1.4));
        if (auto *asBars = qobject_cast<QCPBars *>(drawn))
            asBars->setData(x, y, true);
        else if (auto *asGraph = qobject_cast<QCPGraph *>(drawn))
            asGraph->setData(x, y, true);
    }
}

/// Zooming and dragging move the range of the pane, so that it can be read back.
void PlotView::followUser() {
    if (drawing_)
        return;
    const QCPRange x = plot_->xAxis->range();
    const QCPRange y = plot_->yAxis->range();
    pane_.userRange({static_cast<float>(x.lower), static_cast<float>(x.upper),
                     static_cast<float>(y.lower), static_cast<float>(y.upper)});
}

QString PlotView::valueAt(double x) const {
    for (const PlotCurve &curve : pane_.curves()) {
        const auto at = std::lower_bound(curve.x.begin(), curve.x.end(), x - 0.5);
        if (at == curve.x.end() || *at > x + 0.5)
            continue;
        const auto index = static_cast<std::size_t>(at - curve.x.begin());
        return QStringLiteral("%1 %2 : %3 %4")
            .arg(toQt(pane_.xTitle()))
            .arg(*at)
            .arg(toQt(pane_.yTitle()).toLower())
            .arg(curve.y[index])
            .trimmed();
    }
    return {};
}

bool PlotView::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::MouseMove) {
        const auto *move = static_cast<QMouseEvent *>(event);
        const double x = plot_->xAxis->pixelToCoord(move->position().x());
        QToolTip::showText(move->globalPosition().toPoint(), valueAt(x), plot_);
    }
    return QWidget::eventFilter(watched, event);
}

void PlotView::showMenu(const QPoint &where) {
    QMenu menu(this);
    menu.addAction(QStringLiteral("Enregistrer l'image en &PNG..."), this,
                   [this] { runCommand([this] { savePng(); }); });
    menu.addAction(QStringLiteral("Enregistrer l'image en &SVG..."), this,
                   [this] { runCommand([this] { saveSvg(); }); });
    menu.addSeparator();
    menu.addAction(QStringLiteral("&Toute la courbe"), this,
                   [this] { pane_.autoRange(pane_.autoRange()); });
    menu.exec(plot_->mapToGlobal(where));
}

void PlotView::savePng() {
    const QString name = toQt(modFileSelector::saveDialog(
        "Image PNG (*.png)|*.png", "Enregistrement du graphe au format PNG"));
    if (!name.isEmpty() && !plot_->savePng(name, pictureSize.width(), pictureSize.height()))
        failToWrite(name);
}

void PlotView::saveSvg() {
    const QString name = toQt(modFileSelector::saveDialog(
        "Image SVG (*.svg)|*.svg", "Enregistrement du graphe au format SVG"));
    if (name.isEmpty())
        return;
    QSvgGenerator picture;
    picture.setFileName(name);
    picture.setSize(pictureSize);
    picture.setViewBox(QRect({0, 0}, pictureSize));
    QCPPainter painter;
    if (!painter.begin(&picture))
        failToWrite(name);
    plot_->toPainter(&painter, pictureSize.width(), pictureSize.height());
    painter.end();
}

} // namespace boulix
