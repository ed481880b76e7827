// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/stats/plotView.h"

#include "core/fileAccess.h"
#include "files/modFileSelector.h"
#include "sill/reports.h"
#include "stats/plotPane.h"
#include "stats/statMeasure.h"
#include "ui/style/theme.h"
#include "ui/widgets/accessibility.h"
#include "ui/widgets/qtText.h"

#include <QAction>
#include <QBuffer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSvgGenerator>
#include <QToolTip>
#include <QVBoxLayout>
#include <qcustomplot.h>

#include <algorithm>
#include <cmath>

namespace boulix {

namespace {

constexpr QSize pictureSize{1200, 800};

/// From so many points in sight on a curve is drawn as thin as can be and not filled: with more,
/// wide pens and fills take seconds, and the points lie too near to one another to show them.
constexpr double manyPoints = 500;

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

/// Whether the user may zoom or drag to a range: far beyond any curve there is nothing to see, and
/// at last no single-precision limit.
bool isInReach(const QCPRange &range) {
    constexpr double farthest = PlotPane::farthest;
    return std::abs(range.lower) < farthest && std::abs(range.upper) < farthest;
}

/// The grid lies in the background: on a dark ground it is dark.
QColor gridShade(Color color, const QPalette &palette) {
    const QColor told(color.red, color.green, color.blue);
    return theme::isDark(palette) ? theme::blend(palette.color(QPalette::Base), told, 0.35) : told;
}

/// The picture is made in memory first: Qt does not tell when a disk is full.
void saveBytes(const std::string &name, const QByteArray &bytes) {
    replaceFile(name, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace

PlotView::PlotView(PlotPane &pane, QWidget *parent)
    : QWidget(parent), pane_(pane), plot_(new QCustomPlot(this)) {
    setObjectName(QStringLiteral("PlotPane"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2); // room for the focus ring
    layout->addWidget(plot_);
    setFocusPolicy(Qt::StrongFocus);
    dress();
    plot_->setPlottingHint(QCP::phFastPolylines);
    plot_->setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    plot_->installEventFilter(this);
    makeMenu();
    connect(plot_, &QCustomPlot::beforeReplot, this, &PlotView::dressCurves);
    connect(plot_, &QCustomPlot::mouseDoubleClick, this, [this] { pane_.showAll(); });
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
    if (drawing_)
        return;
    drawing_ = true;
    plot_->clearPlottables();
    plot_->clearItems();
    drawAxes();
    drawCurves();
    drawExpected();
    drawing_ = false;
    plot_->replot(QCustomPlot::rpQueuedReplot);
    describeChart(*this, QStringLiteral("Courbe de la statistique"), description());
}

/// What a screen reader reads in place of the drawing: what is drawn, and between which values.
QString PlotView::description() const {
    if (pane_.curves().empty() || pane_.curves().front().y.empty())
        return QStringLiteral("Aucune courbe");
    const std::vector<double> &y = pane_.curves().front().y;
    const auto [least, most] = std::minmax_element(y.begin(), y.end());
    return QStringLiteral("%1 selon %2 : %3 points, de %4 à %5")
        .arg(toQt(pane_.yTitle()), toQt(pane_.xTitle()))
        .arg(y.size())
        .arg(*least)
        .arg(*most);
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
        axis->grid()->setPen(QPen(gridShade(pane_.gridColor(), palette()), 0, Qt::DotLine));
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
        if (auto *asBars = qobject_cast<QCPBars *>(drawn))
            asBars->setData(x, y, true);
        else if (auto *asGraph = qobject_cast<QCPGraph *>(drawn))
            asGraph->setData(x, y, true);
    }
}

/// The line of the expected value, and over the plot what it means.
void PlotView::drawExpected() {
    const std::optional<double> y = pane_.expected();
    if (legend_ && !y) {
        plot_->plotLayout()->remove(legend_);
        plot_->plotLayout()->simplify();
        legend_ = nullptr;
    }
    if (!y)
        return;
    const QColor color = palette().color(QPalette::Text);
    auto *line = new QCPItemStraightLine(plot_);
    line->point1->setCoords(0, *y);
    line->point2->setCoords(1, *y);
    line->setPen(QPen(color, 1.2, Qt::DashLine));
    if (!legend_) {
        plot_->plotLayout()->insertRow(0);
        legend_ = new QCPTextElement(plot_);
        plot_->plotLayout()->addElement(0, 0, legend_);
    }
    legend_->setText(QStringLiteral("- - -  valeur attendue du hasard : %1")
                         .arg(toQt(modStats::measureText(*y))));
    legend_->setFont(font());
    legend_->setTextColor(color);
    legend_->setTextFlags(Qt::AlignRight | Qt::AlignVCenter);
}

/// Pens and fills by what is in sight, before each drawing.
void PlotView::dressCurves() {
    const QColor color = shade(pane_.curveColor(), palette());
    QColor fill = color;
    fill.setAlphaF(0.55F);
    const double units = plot_->xAxis->range().size(); // a point stands on each
    for (int i = 0; i < plot_->plottableCount(); ++i) {
        QCPAbstractPlottable *drawn = plot_->plottable(i);
        const bool many = std::min<double>(units, drawn->interface1D()->dataCount()) >= manyPoints;
        drawn->setPen(QPen(color, many ? 0 : 1.4));
        drawn->setAntialiased(!many);
        if (qobject_cast<QCPBars *>(drawn))
            drawn->setBrush(many ? QBrush(Qt::NoBrush) : QBrush(fill));
    }
}

/// Zooming and dragging move the range of the pane, so that it can be read back. The plot shows
/// it already: nothing is drawn anew.
void PlotView::followUser() {
    if (drawing_)
        return;
    drawing_ = true;
    const QCPRange x = plot_->xAxis->range();
    const QCPRange y = plot_->yAxis->range();
    if (isInReach(x) && isInReach(y))
        pane_.userRange({static_cast<float>(x.lower), static_cast<float>(x.upper),
                         static_cast<float>(y.lower), static_cast<float>(y.upper)});
    else
        drawAxes(); // back to the range of the pane
    drawing_ = false;
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

void PlotView::keyPressEvent(QKeyEvent *event) {
    constexpr double larger = 0.8;
    constexpr double step = 0.1;
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without Shift
        return pane_.zoom(larger);
    case Qt::Key_Minus:
        return pane_.zoom(1 / larger);
    case Qt::Key_Left:
        return pane_.move(-step, 0);
    case Qt::Key_Right:
        return pane_.move(step, 0);
    case Qt::Key_Up:
        return pane_.move(0, step);
    case Qt::Key_Down:
        return pane_.move(0, -step);
    case Qt::Key_0:
    case Qt::Key_Home:
        return pane_.showAll();
    default:
        QWidget::keyPressEvent(event);
    }
}

/// The ring around the curve tells that its keys work.
void PlotView::paintEvent(QPaintEvent *) {
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

bool PlotView::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::MouseMove) {
        const auto *move = static_cast<QMouseEvent *>(event);
        const double x = plot_->xAxis->pixelToCoord(move->position().x());
        QToolTip::showText(move->globalPosition().toPoint(), valueAt(x), plot_);
    }
    return QWidget::eventFilter(watched, event);
}

/// The entries are actions of the plot, so that their keys work without the menu, too.
void PlotView::makeMenu() {
    const auto add = [this](const char *name, const QString &text, const QKeySequence &keys,
                            void (PlotView::*command)()) {
        auto *entry = new QAction(text, this);
        entry->setObjectName(QString::fromLatin1(name));
        entry->setShortcut(keys);
        connect(entry, &QAction::triggered, this,
                [this, command] { runCommand([&] { (this->*command)(); }); });
        plot_->addAction(entry);
    };
    plot_->setContextMenuPolicy(Qt::ActionsContextMenu);
    add("mnuGraphPng", QStringLiteral("Enregistrer l'image en &PNG..."), QKeySequence::Save,
        &PlotView::savePng);
    add("mnuGraphSvg", QStringLiteral("Enregistrer l'image en &SVG..."), QKeySequence::SaveAs,
        &PlotView::saveSvg);
    add("mnuGraphAll", QStringLiteral("&Toute la courbe"), QKeySequence(Qt::CTRL | Qt::Key_0),
        &PlotView::showAll);
}

void PlotView::savePng() {
    const std::string name = modFileSelector::saveDialog("Image PNG (*.png)|*.png",
                                                         "Enregistrement du graphe au format PNG");
    if (name.empty())
        return;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    plot_->toPixmap(pictureSize.width(), pictureSize.height()).save(&buffer, "PNG");
    saveBytes(name, bytes);
}

void PlotView::saveSvg() {
    const std::string name = modFileSelector::saveDialog("Image SVG (*.svg)|*.svg",
                                                         "Enregistrement du graphe au format SVG");
    if (name.empty())
        return;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator picture;
    picture.setOutputDevice(&buffer);
    picture.setSize(pictureSize);
    picture.setViewBox(QRect({0, 0}, pictureSize));
    QCPPainter painter(&picture);
    plot_->toPainter(&painter, pictureSize.width(), pictureSize.height());
    painter.end();
    saveBytes(name, bytes);
}

void PlotView::showAll() {
    pane_.showAll();
}

} // namespace boulix
