// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/numberBall.h"

#include "ui/style/theme.h"

#include <QAccessible>
#include <QPainter>

#include <algorithm>

namespace boulix {

NumberBall::NumberBall(QWidget *parent) : QAbstractButton(parent), ground_(Qt::lightGray) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void NumberBall::show(const QString &number, const QColor &ground, bool marked) {
    setText(number);
    ground_ = ground;
    if (marked != marked_) {
        marked_ = marked;
        QAccessible::State checked;
        checked.checked = true;
        QAccessibleStateChangeEvent told(this, checked);
        QAccessible::updateAccessibility(&told);
    }
    update();
}

void NumberBall::onlyShow() {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize NumberBall::sizeHint() const {
    const int side = fontMetrics().height() * 13 / 5;
    return {side, side};
}

void NumberBall::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal side = std::min(width(), height()) - 2;
    const QRectF all(1, 1, side, side);
    const QRectF ball = all.adjusted(4, 4, -4, -4);
    // Without a number there is nothing to colour: a ring keeps its place.
    painter.setPen(
        QPen(text().isEmpty() ? palette().color(QPalette::Mid) : ground_.darker(150), 1));
    painter.setBrush(text().isEmpty() ? QBrush(Qt::NoBrush) : QBrush(ground_));
    painter.drawEllipse(ball);

    painter.setBrush(Qt::NoBrush);
    if (marked_) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
        painter.drawEllipse(all.adjusted(1, 1, -1, -1));
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().highlight().color(), 2, Qt::DotLine));
        painter.drawRoundedRect(all, 4, 4);
    }
    QFont bold = font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.1);
    painter.setFont(bold);
    painter.setPen(ground_.lightnessF() < 0.35F ? QColor(Qt::white) : theme::ink);
    painter.drawText(ball, Qt::AlignCenter, text());
}

} // namespace boulix
