// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/upDownView.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace boulix {

UpDownView::UpDownView(QWidget *parent) : QWidget(parent) {
    up_ = makeArrow(Qt::UpArrow, 1);
    down_ = makeArrow(Qt::DownArrow, -1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(2, 2, 2, 2);
    column->setSpacing(0);
    column->addWidget(up_);
    column->addWidget(down_);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    refresh();
}

QToolButton *UpDownView::makeArrow(Qt::ArrowType arrow, int by) {
    auto *button = new QToolButton(this);
    const int side = fontMetrics().height();
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(side * 3 / 2, side);
    button->setAccessibleName(by > 0 ? QStringLiteral("Augmenter") : QStringLiteral("Diminuer"));
    connect(button, &QToolButton::clicked, this, [this, by] { step(by); });
    return button;
}

void UpDownView::setEndless() {
    endless_ = true;
    refresh();
}

void UpDownView::step(int by) {
    if (endless_)
        emit stepped(by);
    else
        setValue(value_ + by);
}

void UpDownView::setRange(int first, int last) {
    first_ = first;
    last_ = last;
    setValue(value_);
    refresh();
}

void UpDownView::setValue(int value) {
    const int inside = std::clamp(value, first_, std::max(first_, last_));
    if (inside == value_)
        return;
    value_ = inside;
    refresh();
    QAccessibleValueChangeEvent told(this, value_);
    QAccessible::updateAccessibility(&told);
    emit valueChanged(value_);
}

void UpDownView::setBuddy(QLabel *label) {
    buddy_ = label;
    refresh();
}

void UpDownView::refresh() {
    up_->setEnabled(endless_ || value_ < last_);
    down_->setEnabled(endless_ || value_ > first_);
    if (buddy_)
        buddy_->setNum(value_);
}

void UpDownView::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Up)
        step(1);
    else if (event->key() == Qt::Key_Down)
        step(-1);
    else
        QWidget::keyPressEvent(event);
}

void UpDownView::paintEvent(QPaintEvent *) {
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().highlight().color(), 2));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 3, 3);
}

} // namespace boulix
