// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/fittingTabs.h"

#include "ui/style/programStyle.h"

#include <QStyleOptionTab>

#include <algorithm>

namespace boulix {

FittingTabBar::FittingTabBar(QWidget *parent) : QTabBar(parent) {
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
}

QSize FittingTabBar::roomySize(int index) const {
    const int less = tight_ ? ProgramStyle::tabRoom.width() - ProgramStyle::tightTabRoom : 0;
    return QTabBar::tabSizeHint(index) + QSize(less, 0);
}

QSize FittingTabBar::tightSize(int index) const {
    const int text = fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width();
    return {text + ProgramStyle::tightTabRoom, QTabBar::tabSizeHint(index).height()};
}

QSize FittingTabBar::tabSizeHint(int index) const {
    return tight_ ? tightSize(index) : roomySize(index);
}

QSize FittingTabBar::minimumTabSizeHint(int index) const {
    return tightSize(index);
}

QSize FittingTabBar::sizeHint() const {
    QSize size;
    for (int index = 0; index < count(); ++index)
        size = {size.width() + roomySize(index).width(),
                std::max(size.height(), roomySize(index).height())};
    return size;
}

QSize FittingTabBar::minimumSizeHint() const {
    QSize size;
    for (int index = 0; index < count(); ++index)
        size = {size.width() + tightSize(index).width(),
                std::max(size.height(), tightSize(index).height())};
    return size;
}

void FittingTabBar::initStyleOption(QStyleOptionTab *option, int index) const {
    QTabBar::initStyleOption(option, index);
    if (tight_)
        option->icon = QIcon();
}

void FittingTabBar::resizeEvent(QResizeEvent *event) {
    const bool tight = width() < sizeHint().width();
    if (tight != tight_) {
        tight_ = tight;
        setProperty(ProgramStyle::tight, tight);
        setIconSize(iconSize()); // the tabs are laid out anew
    }
    QTabBar::resizeEvent(event);
}

FittingTabs::FittingTabs(QWidget *parent) : QTabWidget(parent) {
    auto *bar = new FittingTabBar(this);
    bar->setObjectName(QStringLiteral("qt_tabwidget_tabbar")); // as Qt calls its own
    setTabBar(bar);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
}

} // namespace boulix
