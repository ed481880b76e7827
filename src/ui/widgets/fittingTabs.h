// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTabBar>
#include <QTabWidget>

namespace boulix {

/// A row of tabs that is never cut short and never scrolls: where the window is narrow the tabs
/// give up their icons and the room around their captions.
class FittingTabBar : public QTabBar {
    Q_OBJECT

  public:
    explicit FittingTabBar(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void initStyleOption(QStyleOptionTab *option, int index) const override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    QSize roomySize(int index) const;
    QSize tightSize(int index) const;

    bool tight_ = false;
};

/// Pages under such a row of tabs.
class FittingTabs : public QTabWidget {
    Q_OBJECT

  public:
    explicit FittingTabs(QWidget *parent = nullptr);
};

} // namespace boulix
