// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/slipView.h"

#include "printing/frmPrintGridPreview.h"
#include "ui/printing/qtPicture.h"

#include <QPainter>

#include <algorithm>

namespace boulix {

namespace {

/// The part of the slip that holds the grids, in millimetres.
constexpr QSizeF slipSize{153, 54};
constexpr double usualScale = 5; ///< pixels a millimetre

} // namespace

SlipView::SlipView(const frmPrintGridPreview &rules, QWidget *parent)
    : QWidget(parent), rules_(rules) {
    setMinimumSize((slipSize * 3).toSize());
}

QSize SlipView::sizeHint() const {
    return (slipSize * usualScale).toSize();
}

void SlipView::paintEvent(QPaintEvent *) {
    const double scale = std::min(width() / slipSize.width(), height() / slipSize.height());
    const QSizeF size = slipSize * scale;
    const QRectF area((width() - size.width()) / 2, (height() - size.height()) / 2, size.width(),
                      size.height());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QtPicture picture(painter, area, scale);
    rules_.drawPicture(picture);
}

} // namespace boulix
