// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/printing/paintedCanvas.h"

#include <QRectF>

namespace boulix {

/// A part of a widget as a picture, made anew for each repaint.
class QtPicture : public PaintedCanvas<Picture> {
  public:
    /// The picture fills `area` of what `painter` paints on; its top left corner is the origin of
    /// the canvas. The picture is as large as life at about 3.78 pixels a millimetre.
    QtPicture(QPainter &painter, const QRectF &area, double pixelsPerMillimetre);

    /// Makes the whole area white, as paper is.
    void clear() override;

  private:
    QRectF area_;
};

} // namespace boulix
