// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/accessibleBall.h"

#include "ui/widgets/numberBall.h"

namespace boulix {

AccessibleBall::AccessibleBall(NumberBall &ball) : QAccessibleWidget(&ball) {}

NumberBall &AccessibleBall::ball() const {
    return *static_cast<NumberBall *>(widget());
}

QAccessible::Role AccessibleBall::role() const {
    return ball().takesClicks() ? QAccessible::CheckBox : QAccessible::StaticText;
}

QString AccessibleBall::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    const QString number = ball().text().isEmpty() ? QStringLiteral("vide") : ball().text();
    const QString kindOfNumber = ball().accessibleName();
    return (kindOfNumber.isEmpty() ? QStringLiteral("Numéro") : kindOfNumber) + QLatin1Char(' ') +
           number;
}

QAccessible::State AccessibleBall::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = ball().takesClicks();
    state.checked = ball().takesClicks() && ball().isMarked();
    return state;
}

QStringList AccessibleBall::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (ball().takesClicks() && ball().isEnabled())
        names.prepend(toggleAction());
    return names;
}

void AccessibleBall::doAction(const QString &name) {
    if (name == toggleAction() && ball().takesClicks() && ball().isEnabled())
        ball().click();
    else
        QAccessibleWidget::doAction(name);
}

} // namespace boulix
