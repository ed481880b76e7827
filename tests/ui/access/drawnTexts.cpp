// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "drawnTexts.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <cmath>

namespace boulix::testing_support {

namespace {

/// Keeps the texts and nothing else.
class TextEngine : public QPaintEngine {
  public:
    TextEngine() : QPaintEngine(AllFeatures) {}

    std::vector<DrawnText> texts;

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}

    void drawTextItem(const QPointF &at, const QTextItem &item) override {
        if (item.text().trimmed().isEmpty())
            return;
        const QRectF box(at.x(), at.y() - std::ceil(item.ascent()), item.width(),
                         std::ceil(item.ascent()) + std::ceil(item.descent()));
        if (isClippedAway(box))
            return;
        texts.push_back(
            {item.text(), state->transform().mapRect(box).toAlignedRect(), state->pen().color()});
    }

  private:
    /// A marked text is drawn twice, each time with the other part clipped away.
    bool isClippedAway(const QRectF &box) const {
        const QRectF core = box.adjusted(1, box.height() / 4, -1, -box.height() / 4);
        return painter()->hasClipping() && !painter()->clipPath().contains(core);
    }
};

class TextDevice : public QPaintDevice {
  public:
    explicit TextDevice(const QWidget &control) : control_(control) {}

    QPaintEngine *paintEngine() const override { return &engine_; }
    std::vector<DrawnText> texts() const { return engine_.texts; }

  protected:
    int metric(PaintDeviceMetric metric) const override {
        constexpr int millimetresPerMetre = 1000;
        switch (metric) {
        case PdmWidth:
            return control_.width();
        case PdmHeight:
            return control_.height();
        case PdmWidthMM:
            return millimetresPerMetre;
        case PdmHeightMM:
            return millimetresPerMetre;
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return control_.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return control_.logicalDpiY();
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

  private:
    const QWidget &control_;
    mutable TextEngine engine_;
};

} // namespace

std::vector<DrawnText> drawnTexts(QWidget &control) {
    TextDevice device(control);
    control.render(&device, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    return device.texts();
}

} // namespace boulix::testing_support
