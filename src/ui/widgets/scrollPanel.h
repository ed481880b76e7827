// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QScrollArea>

namespace boulix {

/// Room for controls that may be higher than the window: what does not fit is scrolled, never the
/// width. The control that gets the focus comes into sight, however it got it.
class ScrollPanel : public QScrollArea {
    Q_OBJECT

  public:
    /// Shows `content` and owns it.
    explicit ScrollPanel(QWidget *content, QWidget *parent = nullptr);
    ~ScrollPanel() override;

    QSize sizeHint() const override;
    /// As wide as the content and the scroll bar beside it, a few lines high.
    QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void follow(QWidget *focus);
};

} // namespace boulix
