// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractButton>

namespace boulix {

/// A drawn number as a ball on a ground of its colour; a click marks or unmarks the number. A
/// marked ball wears a ring, so that it can be told without its colour.
class NumberBall : public QAbstractButton {
    Q_OBJECT

  public:
    explicit NumberBall(QWidget *parent = nullptr);

    void show(const QString &number, const QColor &ground, bool marked);
    /// A ball that only shows takes no clicks and no focus.
    void onlyShow();
    bool takesClicks() const { return focusPolicy() != Qt::NoFocus; }
    bool isMarked() const { return marked_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    QColor ground_;
    bool marked_ = false;
};

} // namespace boulix
