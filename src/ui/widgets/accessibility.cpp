// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/accessibility.h"

#include "ui/widgets/accessibleBall.h"
#include "ui/widgets/accessibleBoard.h"
#include "ui/widgets/accessibleEmptyPlace.h"
#include "ui/widgets/accessibleList.h"
#include "ui/widgets/accessibleUpDown.h"
#include "ui/widgets/emptyPlaceView.h"
#include "ui/widgets/numberBall.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/upDownView.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace boulix {

namespace {

constexpr const char *chartMark = "boulixChart";

/// Qt asks for each object, first by the name of its class.
QAccessibleInterface *interfaceOf(const QString &, QObject *object) {
    if (auto *list = qobject_cast<ReportView *>(object))
        return new AccessibleList(*list);
    if (auto *board = qobject_cast<NumberBoardView *>(object))
        return new AccessibleBoard(*board);
    if (auto *arrows = qobject_cast<UpDownView *>(object))
        return new AccessibleUpDown(*arrows);
    if (auto *ball = qobject_cast<NumberBall *>(object))
        return new AccessibleBall(*ball);
    if (auto *place = qobject_cast<EmptyPlaceView *>(object))
        return new AccessibleEmptyPlace(*place);
    if (auto *control = qobject_cast<QWidget *>(object);
        control && control->property(chartMark).isValid())
        return new QAccessibleWidget(control, QAccessible::Chart);
    return nullptr;
}

} // namespace

void installAccessibility() {
    QAccessible::installFactory(interfaceOf);
}

void describeChart(QWidget &control, const QString &name, const QString &description) {
    control.setProperty(chartMark, true);
    if (control.accessibleName() != name)
        control.setAccessibleName(name);
    if (control.accessibleDescription() != description)
        control.setAccessibleDescription(description);
}

} // namespace boulix
