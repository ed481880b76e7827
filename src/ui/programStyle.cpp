// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/programStyle.h"

#include "ui/iconLoader.h"
#include "ui/theme.h"

#include <QPainter>
#include <QStyleOption>

namespace boulix {

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                 const QWidget *widget) const {
    switch (icon) {
    case SP_MessageBoxInformation:
        return loadIcon(QStringLiteral("about"));
    case SP_MessageBoxQuestion:
        return loadIcon(QStringLiteral("help"));
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return loadIconIn(QStringLiteral("cancel"), theme::alarm);
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox || !theme::isDark(option->palette))
        return;
    // The outline of "Fusion" is darker than the ground.
    painter->save();
    painter->setPen(theme::blend(option->palette.color(QPalette::Base),
                                 option->palette.color(QPalette::Text), 0.45));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

} // namespace boulix
