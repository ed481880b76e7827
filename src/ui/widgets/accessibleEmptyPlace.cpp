// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/accessibleEmptyPlace.h"

#include "ui/widgets/emptyPlaceView.h"

#include <QTextDocument>

namespace boulix {

AccessibleEmptyPlace::AccessibleEmptyPlace(EmptyPlaceView &place) : QAccessibleWidget(&place) {}

EmptyPlaceView &AccessibleEmptyPlace::place() const {
    return *static_cast<EmptyPlaceView *>(widget());
}

bool AccessibleEmptyPlace::hasLink() const {
    return place().textInteractionFlags().testFlag(Qt::LinksAccessibleByKeyboard);
}

QAccessible::Role AccessibleEmptyPlace::role() const {
    return hasLink() ? QAccessible::Link : QAccessible::StaticText;
}

QString AccessibleEmptyPlace::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    QTextDocument words;
    words.setHtml(place().text());
    return words.toPlainText().replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QStringList AccessibleEmptyPlace::actionNames() const {
    return hasLink() ? QStringList{pressAction()} : QStringList{};
}

void AccessibleEmptyPlace::doAction(const QString &name) {
    if (hasLink() && name == pressAction())
        emit place().linkActivated(QStringLiteral("#"));
}

} // namespace boulix
