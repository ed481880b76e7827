// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QLabel>

namespace boulix {

/// A label of one line that takes the room it is given: a text that is too long for it ends in an
/// ellipsis and stands whole in the tool tip.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

  private:
    bool fits() const;
};

} // namespace boulix
