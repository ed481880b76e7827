// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

namespace boulix {

class frmPrintGridPreview;

/// The slip of the preview, as it will come out of the printer: white paper in the size that the
/// window leaves for it.
class SlipView : public QWidget {
  public:
    explicit SlipView(const frmPrintGridPreview &rules, QWidget *parent = nullptr);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    const frmPrintGridPreview &rules_;
};

} // namespace boulix
