// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/chanceBars.h"

#include "core/frenchNumbers.h"
#include "ui/style/theme.h"
#include "ui/widgets/accessibility.h"
#include "ui/widgets/qtText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace boulix {

namespace {

/// The part of its row that a bar fills.
constexpr qreal barPart = 0.62;

/// How many powers of ten lie between one and the smallest chance, at least one.
int powersBelow(const ChanceBars::Bars &bars) {
    double smallest = 0.1;
    for (const frmChances::Bar &bar : bars)
        smallest = std::min(smallest, bar.chance);
    return static_cast<int>(std::ceil(-std::log10(smallest)));
}

QString scaleText(int power) {
    const auto n = static_cast<std::uint64_t>(std::llround(std::pow(10, power)));
    return power == 0 ? QStringLiteral("1") : QStringLiteral("1/%1").arg(toQt(groupedNumber(n)));
}

QString sentences(const ChanceBars::Bars &bars) {
    QStringList texts;
    for (const frmChances::Bar &bar : bars)
        texts << toQt(bar.label + " : " + bar.text);
    return texts.join(QStringLiteral(". "));
}

} // namespace

ChanceBars::ChanceBars(Bars bars, QWidget *parent)
    : QWidget(parent), bars_(std::move(bars)), powers_(powersBelow(bars_)) {
    setObjectName(QStringLiteral("chanceBars"));
    describeChart(*this,
                  QStringLiteral("Chance d'au moins chaque rang, sur une échelle logarithmique"),
                  sentences(bars_));
}

QSize ChanceBars::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 75, fontMetrics().height() * 18};
}

QSize ChanceBars::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 40, fontMetrics().height() * 16};
}

QRectF ChanceBars::plot() const {
    int labels = 0;
    for (const frmChances::Bar &bar : bars_)
        labels = std::max(labels, fontMetrics().horizontalAdvance(toQt(bar.label)));
    const int lastText = fontMetrics().horizontalAdvance(scaleText(0));
    return QRectF(rect()).adjusted(labels + 2 * theme::gap, theme::gap, -theme::gap - lastText / 2,
                                   -theme::gap - fontMetrics().height() * 3 / 2);
}

qreal ChanceBars::abscissa(double chance) const {
    const QRectF area = plot();
    return area.right() + area.width() * std::log10(chance) / powers_;
}

QRectF ChanceBars::barOf(std::size_t index) const {
    const QRectF area = plot();
    const qreal row = area.height() / static_cast<qreal>(bars_.size());
    const qreal top = area.top() + row * (static_cast<qreal>(index) + (1 - barPart) / 2);
    return {area.left(), top, abscissa(bars_[index].chance) - area.left(), row * barPart};
}

bool ChanceBars::event(QEvent *event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        const QRectF bar = barOf(i);
        if (help->pos().y() >= bar.top() && help->pos().y() <= bar.bottom())
            QToolTip::showText(help->globalPos(), toQt(bars_[i].label + " : " + bars_[i].text),
                               this);
    }
    return true;
}

void ChanceBars::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    if (bars_.empty())
        return;
    paintScale(painter);
    paintBars(painter);
}

/// The lines of the powers of ten, with as many texts as there is room for.
void ChanceBars::paintScale(QPainter &painter) const {
    const QRectF area = plot();
    const int widest = fontMetrics().horizontalAdvance(scaleText(powers_)) + theme::gap;
    const qreal step = area.width() / powers_;
    const int every = std::max(1, static_cast<int>(std::ceil(widest / step)));
    const QColor text = palette().color(QPalette::Text);
    for (int power = 0; power <= powers_; ++power) {
        const qreal x = std::round(area.right() - step * power) + 0.5;
        painter.setPen(theme::blend(palette().color(QPalette::Base), text, 0.2));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        if (power % every != 0)
            continue;
        painter.setPen(text);
        const QRectF below(x - widest, area.bottom(), 2.0 * widest, fontMetrics().height() * 1.5);
        painter.drawText(below, Qt::AlignCenter, scaleText(power));
    }
}

void ChanceBars::paintBars(QPainter &painter) const {
    const QColor text = palette().color(QPalette::Text);
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        const QRectF bar = barOf(i);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme::accent);
        // The smallest chance still shows.
        painter.drawRect(bar.adjusted(0, 0, std::max<qreal>(0, 2 - bar.width()), 0));
        painter.setPen(text);
        const QRectF label(theme::gap, bar.top() - bar.height(), bar.left() - 2.0 * theme::gap,
                           bar.height() * 3);
        painter.drawText(label, Qt::AlignRight | Qt::AlignVCenter, toQt(bars_[i].label));
    }
}

} // namespace boulix
