// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/clipping.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTabBar>
#include <QWidget>

namespace boulix::testing_support {

namespace {

std::string nameOf(const QWidget &control) {
    const QString name = control.objectName().isEmpty()
                             ? QString::fromLatin1(control.metaObject()->className())
                             : control.objectName();
    return name.toStdString();
}

bool labelClipped(const QLabel &label) {
    if (label.wordWrap())
        return label.heightForWidth(label.width()) > label.height();
    return label.sizeHint().width() > label.width() || label.sizeHint().height() > label.height();
}

bool buttonClipped(const QAbstractButton &button) {
    const bool hasText = !button.text().isEmpty();
    return hasText && (button.sizeHint().width() > button.width() ||
                       button.sizeHint().height() > button.height());
}

bool tabsClipped(const QTabBar &bar) {
    const int room = bar.style()->pixelMetric(QStyle::PM_TabBarTabHSpace, nullptr, &bar);
    for (int tab = 0; tab < bar.count(); ++tab) {
        const QSize text = bar.fontMetrics().size(Qt::TextShowMnemonic, bar.tabText(tab));
        const QRect rect = bar.tabRect(tab);
        if (!bar.rect().contains(rect) || rect.width() < text.width() + room)
            return true;
    }
    return bar.minimumSizeHint().width() > bar.width();
}

bool headerClipped(const QHeaderView &header) {
    for (int section = 0; section < header.count(); ++section)
        if (header.sectionSizeHint(section) > header.sectionSize(section))
            return true;
    return false;
}

bool textClipped(const QWidget &control) {
    if (const auto *label = qobject_cast<const QLabel *>(&control))
        return labelClipped(*label);
    if (const auto *button = qobject_cast<const QAbstractButton *>(&control))
        return buttonClipped(*button);
    if (const auto *bar = qobject_cast<const QTabBar *>(&control))
        return tabsClipped(*bar);
    if (const auto *header = qobject_cast<const QHeaderView *>(&control))
        return headerClipped(*header);
    if (qobject_cast<const QAbstractSpinBox *>(control.parentWidget()))
        return false; // its line edit: the spin box has its own measure
    const QSize least = control.minimumSizeHint();
    return least.width() > control.width() || least.height() > control.height();
}

/// Whether the scroll bar leads to all of what the area holds. Only the height may be scrolled.
bool canBeScrolledThrough(const QScrollArea &area) {
    const QScrollBar &bar = *area.verticalScrollBar();
    const int reached = bar.maximum() + area.viewport()->height();
    return area.widget()->width() <= area.viewport()->width() &&
           area.widget()->height() <= reached && (bar.maximum() == 0 || bar.isVisible());
}

/// Whether the control leaves its parent. What scrolls may.
bool sticksOut(const QWidget &control) {
    const QWidget *parent = control.parentWidget();
    const bool climbs = control.objectName().startsWith(QLatin1String("picInfo_"));
    if (!parent || climbs)
        return false;
    const auto *area = qobject_cast<const QScrollArea *>(parent->parentWidget());
    if (area && area->widget() == &control)
        return !canBeScrolledThrough(*area);
    return !parent->rect().contains(control.geometry());
}

} // namespace

std::vector<std::string> clippedControls(const QWidget &window) {
    std::vector<std::string> clipped;
    for (const QWidget *control : window.findChildren<QWidget *>())
        if (control->isVisible() && !control->isWindow() &&
            (textClipped(*control) || sticksOut(*control)))
            clipped.push_back(nameOf(*control));
    return clipped;
}

} // namespace boulix::testing_support
