// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/tabOrder.h"

#include <QAction>
#include <QToolButton>
#include <QWidget>

namespace boulix::testing_support {

namespace {

std::string nameOf(const QWidget &control) {
    const auto *button = qobject_cast<const QToolButton *>(&control);
    const QAction *action = button ? button->defaultAction() : nullptr;
    return (action ? action->objectName() : control.objectName()).toStdString();
}

} // namespace

std::vector<std::string> tabOrder(const QWidget &window) {
    std::vector<std::string> names;
    const QWidget *control = &window;
    do {
        control = control->nextInFocusChain();
        const bool stops = control->focusPolicy() & Qt::TabFocus && control->isVisibleTo(&window) &&
                           control->isEnabled() && !control->focusProxy();
        if (stops && control->window() == &window)
            names.push_back(nameOf(*control));
    } while (control != &window);
    return names;
}

} // namespace boulix::testing_support
