// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/hand.h"

#include "ui/random/vocabulary.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/QTest>

#include <algorithm>

namespace boulix::testing_support {

namespace {

/// What is typed letter by letter; longer texts are pasted.
constexpr int longestTyped = 40;
/// Between two clicks that are no double click, in milliseconds of the events.
constexpr int longPause = 2000;

QWindow *handleOf(const QPointer<QWidget> &window) {
    return window && window->isVisible() ? window->windowHandle() : nullptr;
}

bool hasVisibleChildren(const QWidget &widget) {
    const auto children = widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(children.begin(), children.end(),
                       [](const QWidget *child) { return child->isVisible(); });
}

/// Whether a click there does something as a rule.
bool isWorthIt(const QWidget &control) {
    return control.isEnabled() && !qobject_cast<const QLabel *>(&control) &&
           control.metaObject() != &QWidget::staticMetaObject;
}

std::string spot(const QPoint &at) {
    return std::to_string(at.x()) + "," + std::to_string(at.y());
}

} // namespace

std::string nameOf(const QWidget *control) {
    if (!control)
        return "nothing";
    std::string name = control->metaObject()->className();
    const QWidget *named = control;
    while (named && named->objectName().isEmpty())
        named = named->parentWidget();
    if (named)
        name += " " + named->objectName().toStdString();
    const QVariant text = control->property("text");
    if (text.isValid())
        name += " \"" + text.toString().left(30).toStdString() + "\"";
    return name;
}

QWidget *Hand::windowForInput() {
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    std::vector<QWidget *> windows;
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowHandle() && window->isEnabled())
            windows.push_back(window);
    // A list of widgets has no order of its own; names and places do not change from run to run.
    std::sort(windows.begin(), windows.end(),
              [](const QWidget *a, const QWidget *b) { return a->objectName() < b->objectName(); });
    if (windows.empty())
        return nullptr;
    const auto main = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return qobject_cast<const QMainWindow *>(window) != nullptr;
    });
    return main != windows.end() && !dice_.onceIn(4) ? *main : dice_.oneOf(windows);
}

void Hand::act(const Tell &tell) {
    QWidget *window = windowForInput();
    if (!window->isActiveWindow() && !QApplication::activePopupWidget())
        window->activateWindow();
    const int kind = dice_.below(100);
    if (kind < 58)
        clickSomewhere(*window, tell);
    else if (kind < 74)
        fillIn(*window, tell);
    else if (kind < 90)
        pressKeys(*window, tell);
    else if (kind < 94)
        drag(*window, tell);
    else if (kind < 97)
        wheel(*window, tell);
    else
        handleWindow(*window, tell);
}

bool Hand::aButtonIsDown() const {
    if (held_ != Qt::NoButton || QApplication::activePopupWidget())
        return false;
    const auto all = QApplication::allWidgets();
    return std::any_of(all.begin(), all.end(), [](const QWidget *widget) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        return button && button->isDown() && button->isVisible();
    });
}

void Hand::knock(QWidget &window) {
    click(anyPlace(window), Qt::LeftButton, Qt::NoModifier);
}

void Hand::clickSomewhere(QWidget &window, const Tell &tell) {
    const Place place = anyPlace(window);
    const Qt::MouseButton button = dice_.onceIn(12) ? Qt::RightButton : Qt::LeftButton;
    Qt::KeyboardModifiers keys;
    if (dice_.onceIn(12))
        keys |= dice_.onceIn(2) ? Qt::ControlModifier : Qt::ShiftModifier;
    const bool twice = dice_.onceIn(15);
    tell((twice                       ? "double click on "
          : button == Qt::RightButton ? "right click on "
                                      : "click on ") +
         nameOf(place.control) + " at " + spot(place.at) +
         (keys == Qt::NoModifier ? "" : " with a key held"));
    now_ += longPause;
    click(place, button, keys);
    if (twice)
        click(place, button, keys);
}

void Hand::drag(QWidget &window, const Tell &tell) {
    const Place from = anyPlace(window);
    const Place to = dice_.onceIn(2) ? anyPlace(window)
                                     : Place{from.window, from.control, pointIn(*from.control)};
    tell("drag from " + nameOf(from.control) + " at " + spot(from.at) + " to " + spot(to.at));
    now_ += longPause;
    mouse(from, QEvent::MouseButtonPress, Qt::LeftButton, {});
    for (int part = 1; part <= 3; ++part)
        mouse({from.window, from.control, from.at + (to.at - from.at) * part / 3},
              QEvent::MouseMove, Qt::LeftButton, {});
    mouse({from.window, to.control, to.at}, QEvent::MouseButtonRelease, Qt::LeftButton, {});
}

void Hand::wheel(QWidget &window, const Tell &tell) {
    const Place place = anyPlace(window);
    const int turn = dice_.between(-3, 3) * 120;
    tell("wheel by " + std::to_string(turn) + " over " + nameOf(place.control));
    const QPoint inside = place.control->mapFrom(&window, place.at);
    QWheelEvent event(inside, place.control->mapToGlobal(inside), QPoint(), QPoint(0, turn),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(place.control, &event);
}

void Hand::pressKeys(QWidget &window, const Tell &tell) {
    const QKeyCombination keys = vocabulary::key(dice_);
    const int times = dice_.onceIn(4) ? dice_.between(2, 8) : 1;
    tell("key " + QKeySequence(keys).toString().toStdString() + " x" + std::to_string(times) +
         " in " + nameOf(&window) + ", on " + nameOf(QApplication::focusWidget()));
    const QPointer<QWidget> watched(&window);
    for (int i = 0; i < times; ++i)
        key(watched, keys.key(), keys.keyboardModifiers());
}

/// Goes to a box, types into it, and leaves it in one way or another, or not at all.
void Hand::fillIn(QWidget &window, const Tell &tell) {
    std::vector<QLineEdit *> boxes;
    for (QLineEdit *box : window.findChildren<QLineEdit *>())
        if (box->isVisible() && box->isEnabled())
            boxes.push_back(box);
    if (boxes.empty()) {
        clickSomewhere(window, tell);
        return;
    }
    QLineEdit *box = dice_.oneOf(boxes);
    const QString text = vocabulary::text(dice_);
    const bool add = dice_.onceIn(5);
    static const std::vector<Qt::Key> ways = {Qt::Key_Tab,     Qt::Key_Return, Qt::Key_Up,
                                              Qt::Key_Down,    Qt::Key_Escape, Qt::Key_unknown,
                                              Qt::Key_unknown, Qt::Key_unknown};
    const Qt::Key leave = dice_.oneOf(ways);
    tell((add ? "add \"" : "write \"") + text.left(60).toStdString() + "\" in " + nameOf(box) +
         ", then " + QKeySequence(leave).toString().toStdString());
    const QPointer<QWidget> watched(&window);
    now_ += longPause;
    click({&window, box, box->mapTo(&window, pointIn(*box))}, Qt::LeftButton, {});
    if (!add)
        key(watched, Qt::Key_A, Qt::ControlModifier);
    type(watched, text);
    if (leave != Qt::Key_unknown)
        key(watched, leave, {});
}

/// Closes the window by its close box, makes it larger or smaller, or changes what is on the
/// clipboard.
void Hand::handleWindow(QWidget &window, const Tell &tell) {
    switch (dice_.below(3)) {
    case 0:
        tell("close " + nameOf(&window));
        window.close();
        break;
    case 1: {
        const QSize size(dice_.between(100, 1400), dice_.between(100, 1000));
        tell("make " + nameOf(&window) + " " + std::to_string(size.width()) + " by " +
             std::to_string(size.height()));
        window.resize(size);
        break;
    }
    default: {
        const QString text = vocabulary::text(dice_);
        tell("copy \"" + text.left(60).toStdString() + "\" from elsewhere");
        QApplication::clipboard()->setText(text);
    }
    }
}

QWidget &Hand::anyControl(QWidget &window) {
    std::vector<QWidget *> all;
    std::vector<QWidget *> worthIt;
    for (QWidget *control : window.findChildren<QWidget *>()) {
        const bool inside = control->window() == &window && control->isVisible() &&
                            !control->visibleRegion().isEmpty();
        if (!inside || (hasVisibleChildren(*control) && !qobject_cast<QTabBar *>(control)))
            continue;
        all.push_back(control);
        if (isWorthIt(*control)) // what gives commands leads on
            worthIt.insert(worthIt.end(), qobject_cast<QAbstractButton *>(control) ? 3 : 1,
                           control);
    }
    if (all.empty())
        return window;
    return *dice_.oneOf(worthIt.empty() || dice_.onceIn(12) ? all : worthIt);
}

Hand::Place Hand::anyPlace(QWidget &window) {
    QWidget &control = anyControl(window);
    return {&window, &control, control.mapTo(&window, pointIn(control))};
}

/// Where in the control a click falls: on a tab or an entry of a menu, or anywhere.
QPoint Hand::pointIn(QWidget &control) {
    if (const auto *tabs = qobject_cast<QTabBar *>(&control))
        return tabs->tabRect(dice_.below(tabs->count())).center();
    const QList<QAction *> entries = control.actions();
    if (const auto *menu = qobject_cast<QMenu *>(&control); menu && !entries.empty())
        return menu->actionGeometry(entries[dice_.below(static_cast<int>(entries.size()))])
            .center();
    if (const auto *bar = qobject_cast<QMenuBar *>(&control); bar && !entries.empty())
        return bar->actionGeometry(entries[dice_.below(static_cast<int>(entries.size()))]).center();
    const QRect seen = control.visibleRegion().boundingRect();
    return {seen.left() + dice_.below(seen.width()), seen.top() + dice_.below(seen.height())};
}

void Hand::mouse(const Place &place, QEvent::Type type, Qt::MouseButton button,
                 Qt::KeyboardModifiers keys) {
    QWindow *handle = handleOf(place.window);
    if (!handle)
        return;
    if (type != QEvent::MouseMove)
        held_.setFlag(button, type == QEvent::MouseButtonPress);
    qt_handleMouseEvent(handle, place.at, handle->mapToGlobal(place.at), held_,
                        type == QEvent::MouseMove ? Qt::NoButton : button, type, keys, ++now_);
}

void Hand::click(const Place &place, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
    mouse(place, QEvent::MouseButtonPress, button, keys);
    mouse(place, QEvent::MouseButtonRelease, button, keys);
}

void Hand::key(const QPointer<QWidget> &window, Qt::Key key, Qt::KeyboardModifiers keys) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        if (QWindow *handle = handleOf(window))
            qt_handleKeyEvent(handle, type, key, keys,
                              key == Qt::Key_Space ? QStringLiteral(" ") : QString());
}

void Hand::type(const QPointer<QWidget> &window, const QString &text) {
    if (text.isEmpty()) {
        key(window, Qt::Key_Delete, {});
        return;
    }
    if (text.size() > longestTyped) {
        QApplication::clipboard()->setText(text);
        key(window, Qt::Key_V, Qt::ControlModifier);
        return;
    }
    for (const QChar letter : text)
        if (QWindow *handle = handleOf(window))
            qt_handleKeyEvent(handle, QEvent::KeyPress, Qt::Key_unknown, {}, QString(letter));
}

} // namespace boulix::testing_support
