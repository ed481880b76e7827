// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRectF>

class QPainter;

namespace boulix {

/// How one box of the number board is to look.
struct BoardBox {
    int number = 0;
    bool marked = false;
    bool complementary = false;
    bool current = false; ///< carries the focus ring
    bool hovered = false;
};

/// Draws the boxes of the number board. A marked number is crossed as with a pen, the
/// complementary one is ringed and bears a plus: both read without colour.
class NumberBoardPainter {
  public:
    /// `open`: the board takes clicks. `ratio`: device pixels per pixel, for sharp edges.
    NumberBoardPainter(QPainter &painter, const QPalette &palette, bool open, qreal ratio);

    void draw(const BoardBox &box, const QRectF &rect);

  private:
    struct Look {
        QColor ground, edge, mark, text;
        qreal edgeWidth = 1;
    };

    Look lookOf(const BoardBox &box) const;
    void drawCross(const QRectF &rect, const Look &look, const QRectF &number);
    void drawRing(const QRectF &rect, const Look &look);
    QRectF measure(const QString &text, bool bold, const QRectF &rect);
    void drawFocus(const QRectF &rect, qreal radius);
    QRectF snapped(const QRectF &rect) const;

    QPainter &painter_;
    QPalette palette_;
    bool open_;
    bool dark_;
    qreal ratio_;
};

} // namespace boulix
