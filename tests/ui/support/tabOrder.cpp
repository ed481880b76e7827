// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/tabOrder.h"

#include <QAction>
#include <QToolButton>
#include <QWidget>
#include <QtTest/QTest>

#include <gtest/gtest.h>

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

std::vector<std::string> tabPresses(QWidget &window, QWidget &first) {
    constexpr int enough = 50;
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    first.setFocus();
    std::vector<std::string> names;
    for (int presses = 0; presses < enough; ++presses) {
        names.push_back(nameOf(*window.focusWidget()));
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        if (window.focusWidget() == &first)
            break;
    }
    return names;
}

} // namespace boulix::testing_support
