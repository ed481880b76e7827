// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/accessibleUpDown.h"

#include "ui/widgets/upDownView.h"

namespace boulix {

AccessibleUpDown::AccessibleUpDown(UpDownView &arrows)
    : QAccessibleWidget(&arrows, QAccessible::SpinBox) {}

UpDownView &AccessibleUpDown::arrows() const {
    return *static_cast<UpDownView *>(widget());
}

void *AccessibleUpDown::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface && !arrows().isEndless())
        return static_cast<QAccessibleValueInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleUpDown::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Value && !arrows().isEndless())
        return QString::number(arrows().value());
    return QAccessibleWidget::text(kind);
}

QVariant AccessibleUpDown::currentValue() const {
    return arrows().value();
}

void AccessibleUpDown::setCurrentValue(const QVariant &value) {
    if (arrows().isEnabled())
        arrows().setValue(value.toInt());
}

QVariant AccessibleUpDown::maximumValue() const {
    return arrows().last();
}

QVariant AccessibleUpDown::minimumValue() const {
    return arrows().first();
}

QStringList AccessibleUpDown::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (arrows().isEnabled())
        names << increaseAction() << decreaseAction();
    return names;
}

void AccessibleUpDown::doAction(const QString &name) {
    const bool up = name == increaseAction();
    if ((up || name == decreaseAction()) && arrows().isEnabled())
        arrows().step(up ? 1 : -1);
    else
        QAccessibleWidget::doAction(name);
}

} // namespace boulix
