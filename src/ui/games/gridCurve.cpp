// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/gridCurve.h"

#include "ui/style/theme.h"
#include "ui/widgets/accessibility.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace boulix {

GridCurve::GridCurve(const frmOptimiser &rules, QWidget *parent) : QWidget(parent), rules_(rules) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setToolTip(QStringLiteral("Nombre de grilles au fil du temps"));
    refresh();
}

void GridCurve::refresh() {
    QString course = QStringLiteral("Pas encore de recherche.");
    if (!rules_.curve().empty())
        course = QStringLiteral("De %1 à %2 grilles en %3 s.")
                     .arg(rules_.curve().front().grids)
                     .arg(rules_.curve().back().grids)
                     .arg(std::lround(rules_.curve().back().seconds));
    describeChart(*this, toolTip(), course);
    update();
}

/// The time axis grows by steps of ten seconds.
double GridCurve::lastSecond() const {
    double last = 10;
    while (!rules_.curve().empty() && last < rules_.curve().back().seconds)
        last += 10;
    return last;
}

QRectF GridCurve::plotArea() const {
    const QFontMetricsF metrics(font());
    const qreal left = metrics.horizontalAdvance(QStringLiteral("000000")) + theme::gap;
    return QRectF(rect()).adjusted(left, metrics.height() / 2 + 1, -theme::margin,
                                   -metrics.height() - theme::gap);
}

void GridCurve::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = plotArea();
    drawAxes(painter, area);
    if (!rules_.curve().empty())
        drawCurve(painter, area);
}

void GridCurve::drawAxes(QPainter &painter, const QRectF &area) const {
    painter.setPen(theme::blend(palette().color(QPalette::Window),
                                palette().color(QPalette::WindowText), 0.4));
    painter.drawLine(area.topLeft(), area.bottomLeft());
    painter.drawLine(area.bottomLeft(), area.bottomRight());
    painter.setPen(palette().color(QPalette::WindowText));
    const qreal height = QFontMetricsF(font()).height();
    const QRectF below(area.left() - theme::gap, area.bottom() + theme::gap / 2,
                       area.width() + theme::gap + theme::margin, height);
    painter.drawText(below, Qt::AlignLeft, QStringLiteral("0"));
    painter.drawText(below, Qt::AlignRight, QStringLiteral("%1 s").arg(lastSecond()));
    if (rules_.curve().empty())
        return;
    const auto label = [&](std::int64_t grids, qreal y) {
        painter.drawText(QRectF(0, y - height / 2, area.left() - theme::gap / 2, height),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(grids));
    };
    const std::int64_t most = rules_.curve().front().grids;
    const std::int64_t fewest = rules_.curve().back().grids;
    label(most, area.top());
    if (const qreal y = at(area, rules_.curve().back()).y(); y - area.top() > height)
        label(fewest, y);
}

/// The first system stands at the top; the bottom lies a little below the best one.
QPointF GridCurve::at(const QRectF &area, const frmOptimiser::CurvePoint &point) const {
    const auto most = static_cast<double>(rules_.curve().front().grids);
    const auto fewest = static_cast<double>(rules_.curve().back().grids);
    const double range = std::max(1.0, (most - fewest) * 1.2);
    return {area.left() + area.width() * point.seconds / lastSecond(),
            area.top() + area.height() * (most - static_cast<double>(point.grids)) / range};
}

void GridCurve::drawCurve(QPainter &painter, const QRectF &area) const {
    QPolygonF line;
    for (const frmOptimiser::CurvePoint &point : rules_.curve())
        line << at(area, point);
    painter.setPen(QPen(theme::accent, 2));
    painter.drawPolyline(line);
}

} // namespace boulix
