// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/clipping.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
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
    for (int tab = 0; tab < bar.count(); ++tab)
        if (!bar.rect().contains(bar.tabRect(tab)))
            return true;
    return bar.sizeHint().width() > bar.width();
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
    const QSize least = control.minimumSizeHint();
    return least.width() > control.width() || least.height() > control.height();
}

/// Whether the control leaves its parent. What scrolls may.
bool sticksOut(const QWidget &control) {
    const QWidget *parent = control.parentWidget();
    const bool scrolls = control.objectName().startsWith(QLatin1String("picInfo_"));
    return parent && !scrolls && !parent->rect().contains(control.geometry());
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
