// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/style/programStyle.h"

#include "ui/style/flatShapes.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace boulix {

namespace {

/// The room around the text of a control, both sides together, outline included.
constexpr QSize pushButtonRoom{30, 12};
constexpr QSize toolButtonRoom{20, 10};
constexpr QSize slimToolButtonRoom{12, 8}; // the text stands beside the icon
constexpr QSize tabIconRoom{10, 0};        // more where the text has an icon beside it

bool isPushButton(const QWidget *widget) {
    return qobject_cast<const QPushButton *>(widget);
}

QSize roomOfToolButton(const QStyleOption &option) {
    const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(&option);
    const bool slim = button && button->toolButtonStyle == Qt::ToolButtonTextBesideIcon;
    return slim ? slimToolButtonRoom : toolButtonRoom;
}

bool isInToolbar(const QWidget *widget) {
    return widget && qobject_cast<const QToolBar *>(widget->parentWidget());
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ProgramStyle::dress() {
    QApplication::setStyle(new ProgramStyle);
    theme::followDesktop();
}

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
    case SP_ToolBarHorizontalExtensionButton:
        return loadIcon(QStringLiteral("more"));
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

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const {
    switch (metric) {
    case PM_TabBarTabHSpace:
        return widget && widget->property(tight).toBool() ? tightTabRoom : tabRoom.width();
    case PM_TabBarTabVSpace:
        return tabRoom.height();
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabOverlap:
        return 0;
    case PM_HeaderMargin:
        return 6;
    case PM_ToolBarItemMargin:
        return 7;
    case PM_ToolBarItemSpacing:
        return 2;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize ProgramStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                     const QSize &contents, const QWidget *widget) const {
    if (type == CT_PushButton && isPushButton(widget))
        return contents + pushButtonRoom;
    if (type == CT_ToolButton && isInToolbar(widget))
        return contents + roomOfToolButton(*option);
    if (type == CT_TabBarTab) {
        const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
        return tab && !tab->icon.isNull() ? contents + tabIconRoom : contents;
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const {
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    switch (element) {
    case PE_PanelButtonCommand:
        if (button && isPushButton(widget))
            return flatShapes::pushButton(*button, *painter);
        break;
    case PE_PanelButtonTool:
        if (isInToolbar(widget))
            return flatShapes::toolButton(*option, *painter);
        break;
    case PE_FrameFocusRect:
        if (isPushButton(widget) || qobject_cast<const QTabBar *>(widget))
            return; // their ground and outline tell it
        if (isInToolbar(widget))
            return flatShapes::toolButtonRing(*option, *painter);
        break;
    case PE_FrameTabBarBase:
        return flatShapes::tabBarBase(*option, *painter);
    case PE_PanelStatusBar:
        return flatShapes::statusBar(*option, *painter);
    case PE_FrameStatusBarItem:
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
    case PE_FrameLineEdit:
        return drawOutlined(element, *option, *painter, widget);
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const {
    switch (element) {
    case CE_PushButtonLabel:
        return drawButtonLabel(*option, *painter, widget);
    case CE_TabBarTabShape:
        return flatShapes::tab(*option, *painter);
    case CE_HeaderSection:
        return flatShapes::header(*option, *painter);
    case CE_HeaderEmptyArea:
        painter->fillRect(option->rect, option->palette.color(QPalette::Window));
        return;
    case CE_ToolBar:
        return; // the ground of the window
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

/// The outline of "Fusion" is darker than a dark ground.
void ProgramStyle::drawOutlined(PrimitiveElement element, const QStyleOption &option,
                                QPainter &painter, const QWidget *widget) const {
    QProxyStyle::drawPrimitive(element, &option, &painter, widget);
    const bool isField = element == PE_FrameLineEdit;
    if (!theme::isDark(option.palette) || (isField && option.state & State_HasFocus))
        return; // a field with the focus has a ring
    painter.save();
    painter.setPen(theme::blend(option.palette.color(QPalette::Base),
                                option.palette.color(QPalette::Text), isField ? 0.35 : 0.6));
    painter.setBrush(Qt::NoBrush);
    const QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setRenderHint(QPainter::Antialiasing, element != PE_IndicatorCheckBox);
    if (element == PE_IndicatorRadioButton)
        painter.drawEllipse(outline);
    else
        painter.drawRoundedRect(outline, isField ? 2 : 0, isField ? 2 : 0);
    painter.restore();
}

void ProgramStyle::drawButtonLabel(const QStyleOption &option, QPainter &painter,
                                   const QWidget *widget) const {
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const bool stands = button && button->features & QStyleOptionButton::DefaultButton &&
                        button->state & State_Enabled;
    if (!stands) {
        QProxyStyle::drawControl(CE_PushButtonLabel, &option, &painter, widget);
        return;
    }
    QStyleOptionButton onHighlight(*button);
    onHighlight.palette.setColor(QPalette::ButtonText,
                                 button->palette.color(QPalette::HighlightedText));
    QProxyStyle::drawControl(CE_PushButtonLabel, &onHighlight, &painter, widget);
}

} // namespace boulix
