// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/typedText.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QWidget>

namespace boulix {

namespace {

/// The box with the focus, if there may be something in it that it has not handed over yet.
QWidget *boxWithTypedText() {
    QWidget *focus = QApplication::focusWidget();
    if (const auto *line = qobject_cast<const QLineEdit *>(focus))
        return line->isModified() ? focus : nullptr;
    return qobject_cast<QAbstractSpinBox *>(focus);
}

/// Whether `widget` has the focus, stands in what has it, or is its context menu.
bool belongsToFocus(const QWidget *widget) {
    const QWidget *focus = QApplication::focusWidget();
    while (widget && widget != focus)
        widget = widget->parentWidget();
    return widget;
}

/// Keys that a box of one line has no use for, but whoever stands around it has.
bool leadsOutOfTheBox(const QEvent &event) {
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Escape;
}

/// Whether `event` gives a command, or may give one, to somebody else than the box with the focus.
bool isCommand(const QObject &receiver, const QEvent &event) {
    const auto *widget = qobject_cast<const QWidget *>(&receiver);
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
        return widget && !belongsToFocus(widget);
    case QEvent::KeyPress:
        return widget && leadsOutOfTheBox(event);
    case QEvent::Shortcut:
    case QEvent::Drop:
        return true;
    case QEvent::Close: // tool tips and menus close all the time
        return widget && (widget->windowType() == Qt::Window || widget->windowType() == Qt::Dialog);
    default:
        return false;
    }
}

} // namespace

bool TypedText::takeBefore(QObject &receiver, QEvent &event) {
    if (event.type() == QEvent::Polish)
        followPresses(receiver);
    if (event.type() == QEvent::Show && qobject_cast<QMessageBox *>(&receiver))
        told_ = true;
    if (!isCommand(receiver, event) || take())
        return false;
    event.setAccepted(event.type() != QEvent::Close); // an accepted close would close
    return true;
}

/// A screen reader presses a button without any event.
void TypedText::followPresses(QObject &receiver) {
    if (const auto *button = qobject_cast<const QAbstractButton *>(&receiver))
        connect(button, &QAbstractButton::pressed, this, &TypedText::take, Qt::UniqueConnection);
}

/// The box believes that its window is left for a moment: it hands over its text as always, and
/// keeps the focus, the cursor and the selection. False when a message came up over it.
bool TypedText::take() {
    const QPointer<QWidget> box = boxWithTypedText();
    if (!box || taking_)
        return true;
    taking_ = true;
    told_ = false;
    QFocusEvent left(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(box, &left);
    if (auto *line = qobject_cast<QLineEdit *>(box))
        line->setModified(false);
    if (box && box->hasFocus()) {
        QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(box, &back);
    }
    taking_ = false;
    return !told_;
}

void whenLeft(QLineEdit &box, const std::function<void(const QString &)> &handOver) {
    QObject::connect(&box, &QLineEdit::editingFinished, &box, [&box, handOver] {
        if (!box.isModified())
            return;
        box.setModified(false);
        handOver(box.text());
    });
}

} // namespace boulix
