// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/canvas.h"

#include <QColor>
#include <QFont>
#include <QPointF>

class QPainter;

namespace boulix {

/// How millimetres and dots of a canvas become units of the paint device.
struct CanvasScale {
    double unitsPerMillimetre = 1;
    double unitsPerDot = 1;
    QPointF origin; ///< where the sheet's top left corner lies on the device
};

/// A canvas of the kind `Base` (picture or paper) on a painter. The painter is only referred to;
/// it is open before anything is drawn or measured.
template <class Base>
class PaintedCanvas : public Base {
  public:
    void color(Color color) override;
    void penWidth(int dots) override;
    void font(const std::string &name, double points) override;
    double textWidth(const std::string &text) const override;
    double textHeight(const std::string &text) const override;
    void text(double x, double y, const std::string &text) override;
    void line(double x1, double y1, double x2, double y2) override;
    void box(double x1, double y1, double x2, double y2) override;

  protected:
    PaintedCanvas(QPainter &painter, const CanvasScale &scale) : painter_(painter), scale_(scale) {}

    QPainter &painter() { return painter_; }

  private:
    QPointF toDevice(double x, double y) const;
    void usePen();

    QPainter &painter_;
    CanvasScale scale_;
    QColor color_ = Qt::black;
    double penWidth_ = 1;
    QFont font_;
    QFont ruler_; ///< the same font, large, to measure with
    double millimetresPerRulerPixel_ = 0;
};

extern template class PaintedCanvas<Picture>;
extern template class PaintedCanvas<Paper>;

} // namespace boulix
