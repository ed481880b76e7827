// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/frmOptimiser.h"

#include <QWidget>

namespace boulix {

/// A small picture of the number of grids over the time of a search.
class GridCurve : public QWidget {
    Q_OBJECT

  public:
    /// Draws the curve of `rules`, which must live longer than the widget.
    explicit GridCurve(const frmOptimiser &rules, QWidget *parent = nullptr);

    /// Shows the curve as it is by now.
    void refresh();

    QSize sizeHint() const override { return {380, 150}; }
    QSize minimumSizeHint() const override { return {200, 110}; }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    QRectF plotArea() const;
    void drawAxes(QPainter &painter, const QRectF &area) const;
    void drawCurve(QPainter &painter, const QRectF &area) const;
    double lastSecond() const;
    QPointF at(const QRectF &area, const frmOptimiser::CurvePoint &point) const;

    const frmOptimiser &rules_;
};

} // namespace boulix
