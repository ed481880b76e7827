// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/qtPicture.h"

#include <QPainter>

namespace boulix {

namespace {

/// A dot of a picture is a pixel at its natural size, 96 of them on an inch.
constexpr double millimetresPerDot = 25.4 / 96;

} // namespace

QtPicture::QtPicture(QPainter &painter, const QRectF &area, double pixelsPerMillimetre)
    : PaintedCanvas(painter,
                    {pixelsPerMillimetre, pixelsPerMillimetre * millimetresPerDot, area.topLeft()}),
      area_(area) {}

void QtPicture::clear() {
    painter().fillRect(area_, Qt::white);
}

} // namespace boulix
