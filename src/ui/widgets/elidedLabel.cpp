// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/elidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace boulix {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::fits() const {
    return fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
}

void ElidedLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

bool ElidedLabel::event(QEvent *event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), fits() ? QString() : text(),
                       this);
    return true;
}

} // namespace boulix
