// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/frmChances.h"

#include <QWidget>

#include <vector>

namespace boulix {

/// The chances of a game by rank, as bars on a logarithmic scale: from one rank to the next they
/// become ten times smaller, and smaller again.
class ChanceBars : public QWidget {
    Q_OBJECT

  public:
    using Bars = std::vector<frmChances::Bar>;

    explicit ChanceBars(Bars bars, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Where the bar of a rank is drawn, by its index from 0.
    QRectF barOf(std::size_t index) const;

  protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    QRectF plot() const;
    qreal abscissa(double chance) const;
    void paintScale(QPainter &painter) const;
    void paintBars(QPainter &painter) const;

    Bars bars_;
    int powers_; // the scale goes from ten to the minus this up to one
};

} // namespace boulix
