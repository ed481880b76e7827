// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/numberBoardPainter.h"

#include "ui/style/theme.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace boulix {

namespace {

// The pen of the player and, for the complementary number, its counterpart: both keep a contrast
// of 4.5 : 1 and more against the tinted grounds below them.
constexpr QRgb lightCross = qRgb(0x23, 0x72, 0x49);
constexpr QRgb darkCross = qRgb(0x6f, 0xcf, 0x9f);
constexpr QRgb lightRing = qRgb(0x9a, 0x57, 0x08);
constexpr QRgb darkRing = qRgb(0xf0, 0xb4, 0x50);

} // namespace

NumberBoardPainter::NumberBoardPainter(QPainter &painter, const QPalette &palette, bool open,
                                       qreal ratio)
    : painter_(painter), palette_(palette), open_(open), dark_(theme::isDark(palette)),
      ratio_(ratio) {
    painter_.setRenderHint(QPainter::Antialiasing);
}

void NumberBoardPainter::draw(const BoardBox &box, const QRectF &rect) {
    const Look look = lookOf(box);
    const QRectF outer = snapped(rect);
    const qreal radius = std::min(outer.width(), outer.height()) * 0.16;
    const qreal edge = std::max(1.0, std::round(look.edgeWidth * ratio_)) / ratio_;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(look.edge);
    painter_.drawRoundedRect(outer, radius, radius);
    painter_.setBrush(look.ground);
    painter_.drawRoundedRect(outer.adjusted(edge, edge, -edge, -edge), radius - edge,
                             radius - edge);
    const QString text = QString::number(box.number);
    const QRectF number = measure(text, box.marked, rect);
    if (box.complementary)
        drawRing(outer, look);
    else if (box.marked)
        drawCross(outer, look, number);
    painter_.setPen(look.text);
    painter_.drawText(number.bottomLeft(), text);
    if (box.current)
        drawFocus(outer, radius);
}

NumberBoardPainter::Look NumberBoardPainter::lookOf(const BoardBox &box) const {
    const QColor page = palette_.color(open_ ? QPalette::Base : QPalette::Window);
    const QColor text = palette_.color(QPalette::Active, QPalette::Text);
    Look look;
    look.ground = page;
    look.edge = theme::blend(page, text, open_ ? 0.38 : 0.2);
    look.text = theme::blend(page, text, open_ ? 1.0 : 0.72);
    if (box.marked) {
        look.mark = box.complementary ? QColor(dark_ ? darkRing : lightRing)
                                      : QColor(dark_ ? darkCross : lightCross);
        look.ground = theme::blend(page, look.mark, 0.13);
        look.edge = theme::blend(page, look.mark, 0.8);
        look.edgeWidth = 1.5;
        look.text = text;
    }
    if (box.hovered)
        look.ground = theme::blend(look.ground, text, 0.07);
    return look;
}

/// Two strokes from corner to corner that spare the number.
void NumberBoardPainter::drawCross(const QRectF &rect, const Look &look, const QRectF &number) {
    const qreal size = std::min(rect.width(), rect.height());
    const qreal rim = size * 0.16;
    const QRectF field = rect.adjusted(rim, rim, -rim, -rim);
    QPainterPath around;
    around.addRect(rect);
    const qreal clear = size * 0.09;
    around.addRoundedRect(number.adjusted(-clear, -clear, clear, clear), clear, clear);
    painter_.save();
    painter_.setClipPath(around);
    painter_.setPen(QPen(look.mark, std::max(1.6, size * 0.075), Qt::SolidLine, Qt::RoundCap));
    painter_.drawLine(field.topLeft(), field.bottomRight());
    painter_.drawLine(field.bottomLeft(), field.topRight());
    painter_.restore();
}

void NumberBoardPainter::drawRing(const QRectF &rect, const Look &look) {
    const qreal size = std::min(rect.width(), rect.height());
    const qreal width = std::max(1.6, size * 0.07);
    const qreal radius = size * 0.38;
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(look.mark, width));
    painter_.drawEllipse(rect.center(), radius, radius);
    const QPointF plus(rect.right() - size * 0.16, rect.top() + size * 0.16);
    const qreal arm = size * 0.085;
    painter_.setPen(QPen(look.mark, width * 0.85, Qt::SolidLine, Qt::RoundCap));
    painter_.drawLine(plus - QPointF(arm, 0), plus + QPointF(arm, 0));
    painter_.drawLine(plus - QPointF(0, arm), plus + QPointF(0, arm));
}

/// Sets the font for the boxes of the size of `rect`, and gives the room that `text` takes.
QRectF NumberBoardPainter::measure(const QString &text, bool bold, const QRectF &rect) {
    QFont font = painter_.font();
    const qreal size = std::min(rect.width() * 0.8, rect.height());
    font.setPixelSize(std::clamp(qRound(size * 0.44), 8, 30));
    font.setBold(bold);
    painter_.setFont(font);
    const QFontMetricsF metrics(font);
    QRectF room(0, 0, metrics.horizontalAdvance(text), metrics.capHeight());
    room.moveCenter(rect.center());
    return room;
}

void NumberBoardPainter::drawFocus(const QRectF &rect, qreal radius) {
    const QColor text = palette_.color(QPalette::Active, QPalette::Text);
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(QPen(text, 2));
    painter_.drawRoundedRect(rect.adjusted(-1.5, -1.5, 1.5, 1.5), radius + 1.5, radius + 1.5);
}

QRectF NumberBoardPainter::snapped(const QRectF &rect) const {
    const auto snap = [this](qreal v) { return std::round(v * ratio_) / ratio_; };
    return QRectF(QPointF(snap(rect.left()), snap(rect.top())),
                  QPointF(snap(rect.right()), snap(rect.bottom())));
}

} // namespace boulix
