// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/support/commands.h"

#include "ui/support/places.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/QTest>

#include <set>

namespace boulix::testing_support {

namespace {

bool canBeUsed(const QWidget &control) {
    return control.isVisible() && control.isEnabled();
}

void turnWheel(QWidget &control) {
    const QPointF middle = control.rect().center();
    QWheelEvent turn(middle, control.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&control, &turn);
}

/// A click on each thing that takes one, and the wheel over what it turns.
void addMouse(QWidget &window, const QWidget &box, std::vector<Command> &commands) {
    for (QWidget *found : window.findChildren<QWidget *>()) {
        if (found == &box || box.isAncestorOf(found) || !canBeUsed(*found))
            continue;
        const std::string name = nameOf(found);
        if (auto *tabs = qobject_cast<QTabBar *>(found)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                commands.push_back({"click on tab " + std::to_string(tab) + " of " + name, [=] {
                                        QTest::mouseClick(tabs, Qt::LeftButton, {},
                                                          tabs->tabRect(tab).center());
                                    }});
            commands.push_back({"wheel over " + name, [=] { turnWheel(*tabs); }});
            continue;
        }
        if (qobject_cast<QComboBox *>(found))
            commands.push_back({"wheel over " + name, [=] { turnWheel(*found); }});
        auto *area = qobject_cast<QAbstractScrollArea *>(found);
        QWidget *target = area ? area->viewport() : found;
        if (area || qobject_cast<QAbstractButton *>(found) || qobject_cast<QMenuBar *>(found) ||
            found->focusPolicy() & Qt::TabFocus)
            for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
                commands.push_back(
                    {"click on " + name, [=] { QTest::mouseClick(target, button); }});
    }
}

/// The keys behind the letters that are underlined.
std::set<QKeySequence> mnemonicsIn(const QWidget &window) {
    std::set<QKeySequence> keys;
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
        if (canBeUsed(*button))
            keys.insert(button->shortcut());
    for (const QLabel *label : window.findChildren<QLabel *>())
        if (canBeUsed(*label) && label->buddy())
            keys.insert(QKeySequence::mnemonic(label->text()));
    for (const QTabBar *tabs : window.findChildren<QTabBar *>())
        for (int tab = 0; canBeUsed(*tabs) && tab < tabs->count(); ++tab)
            keys.insert(QKeySequence::mnemonic(tabs->tabText(tab)));
    for (const QMenuBar *menus : window.findChildren<QMenuBar *>())
        for (const QAction *menu : menus->actions())
            keys.insert(QKeySequence::mnemonic(menu->text()));
    keys.erase(QKeySequence());
    return keys;
}

void addShortcuts(QWidget &window, std::vector<Command> &commands) {
    std::set<QKeySequence> keys = mnemonicsIn(window);
    for (const QAction *action : window.findChildren<QAction *>())
        if (action->isEnabled() && action->shortcutContext() == Qt::WindowShortcut)
            for (const QKeySequence &shortcut : action->shortcuts())
                keys.insert(shortcut);
    for (const QKeySequence &key : keys)
        commands.push_back({"shortcut " + key.toString().toStdString(),
                            [key, &window] { QTest::keySequence(window.windowHandle(), key); },
                            true});
}

bool leadsOut(const QEvent &event) {
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Escape;
}

} // namespace

std::vector<Command> commandsOf(QWidget &window, QWidget &box) {
    std::vector<Command> commands;
    addMouse(window, box, commands);
    addShortcuts(window, commands);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Escape})
        commands.push_back({"key " + QKeySequence(key).toString().toStdString(),
                            [key, &box] { QTest::keyClick(&box, key); }});
    commands.push_back({"closing the window", [&window] { window.close(); }});
    return commands;
}

Interceptor::Interceptor(QWidget &box, std::function<std::string()> inRules)
    : box_(box), inRules_(std::move(inRules)) {
    QApplication::instance()->installEventFilter(this);
}

Interceptor::~Interceptor() {
    QApplication::instance()->removeEventFilter(this);
}

bool Interceptor::isForTheBox(const QObject *watched) const {
    const auto *widget = qobject_cast<const QWidget *>(watched);
    return !widget || widget == &box_ || box_.isAncestorOf(widget);
}

bool Interceptor::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        if (isForTheBox(watched))
            return false;
        break;
    case QEvent::KeyPress:
        if (watched != &box_ || !leadsOut(*event))
            return false;
        break;
    case QEvent::Close:
        if (!qobject_cast<QWidget *>(watched))
            return false;
        event->ignore();
        break;
    case QEvent::Shortcut:
        break;
    default:
        return false;
    }
    if (!seen_)
        seen_ = inRules_();
    return true;
}

} // namespace boulix::testing_support
