// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/paintedCanvas.h"

#include "ui/widgets/qtText.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPen>

namespace boulix {

namespace {

constexpr double millimetresPerPoint = 25.4 / 72;
constexpr double pointsPerInch = 72;

/// Texts are measured in letters of that many pixels, which is finer than any device: the
/// measures of a font are whole pixels, and those of a picture are coarse.
constexpr int rulerPixels = 1000;

} // namespace

template <class Base>
void PaintedCanvas<Base>::color(Color color) {
    color_ = QColor(color.red, color.green, color.blue);
}

template <class Base>
void PaintedCanvas<Base>::penWidth(int dots) {
    penWidth_ = dots * scale_.unitsPerDot;
}

/// The size in points is that of the canvas: a picture that is shown larger has larger letters.
template <class Base>
void PaintedCanvas<Base>::font(const std::string &name, double points) {
    const double units = points * millimetresPerPoint * scale_.unitsPerMillimetre;
    font_ = QFont(toQt(name));
    font_.setPointSizeF(units * pointsPerInch / painter_.device()->logicalDpiY());
    // Letters keep their exact widths at any resolution.
    font_.setHintingPreference(QFont::PreferNoHinting);
    ruler_ = font_;
    ruler_.setPixelSize(rulerPixels);
    millimetresPerRulerPixel_ = points * millimetresPerPoint / rulerPixels;
}

template <class Base>
double PaintedCanvas<Base>::textWidth(const std::string &text) const {
    return QFontMetricsF(ruler_).horizontalAdvance(toQt(text)) * millimetresPerRulerPixel_;
}

template <class Base>
double PaintedCanvas<Base>::textHeight(const std::string &) const {
    return QFontMetricsF(ruler_).height() * millimetresPerRulerPixel_;
}

template <class Base>
void PaintedCanvas<Base>::text(double x, double y, const std::string &text) {
    const double baseline = y + QFontMetricsF(ruler_).ascent() * millimetresPerRulerPixel_;
    painter_.setFont(font_);
    painter_.setPen(color_);
    painter_.drawText(toDevice(x, baseline), toQt(text));
}

template <class Base>
void PaintedCanvas<Base>::line(double x1, double y1, double x2, double y2) {
    usePen();
    painter_.drawLine(toDevice(x1, y1), toDevice(x2, y2));
}

template <class Base>
void PaintedCanvas<Base>::box(double x1, double y1, double x2, double y2) {
    usePen();
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(QRectF(toDevice(x1, y1), toDevice(x2, y2)));
}

template <class Base>
QPointF PaintedCanvas<Base>::toDevice(double x, double y) const {
    return scale_.origin + QPointF(x, y) * scale_.unitsPerMillimetre;
}

template <class Base>
void PaintedCanvas<Base>::usePen() {
    painter_.setPen(QPen(color_, penWidth_, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
}

template class PaintedCanvas<Picture>;
template class PaintedCanvas<Paper>;

} // namespace boulix
