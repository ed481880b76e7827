// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/style/flatShapes.h"

#include "ui/style/theme.h"

#include <QPainter>
#include <QStyleOption>

namespace boulix::flatShapes {

namespace {

constexpr qreal radius = 5;
constexpr int tabLine = 3;

/// How strong the text's colour is on the window's.
constexpr qreal hoverShade = 0.08;
constexpr qreal faintShade = 0.14;
constexpr qreal pressedShade = 0.15;
constexpr qreal edgeShade = 0.32;

QColor colour(const QStyleOption &option, QPalette::ColorRole role) {
    return option.palette.color(role);
}

QColor shade(const QStyleOption &option, qreal strength) {
    const QPalette &palette = option.palette;
    return theme::blend(palette.color(QPalette::Active, QPalette::Window),
                        palette.color(QPalette::Active, QPalette::WindowText), strength);
}

bool is(const QStyleOption &option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

bool isHovered(const QStyleOption &option) {
    return is(option, QStyle::State_MouseOver) && is(option, QStyle::State_Enabled);
}

/// A rounded box filled with `ground`, its outline `width` wide inside the rectangle.
void roundBox(const QRect &rect, const QColor &ground, const QColor &edge, qreal width,
              QPainter &painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, width));
    painter.setBrush(ground);
    const qreal in = width / 2;
    painter.drawRoundedRect(QRectF(rect).adjusted(in, in, -in, -in), radius, radius);
    painter.restore();
}

QColor buttonGround(const QStyleOptionButton &button) {
    if (!is(button, QStyle::State_Enabled))
        return colour(button, QPalette::Window);
    if (button.features & QStyleOptionButton::DefaultButton) {
        const QColor highlight = colour(button, QPalette::Highlight);
        const bool touched = isHovered(button) || is(button, QStyle::State_Sunken);
        const QColor text = colour(button, QPalette::WindowText);
        return touched ? theme::blend(highlight, text, 0.2) : highlight;
    }
    if (is(button, QStyle::State_Sunken))
        return shade(button, pressedShade);
    if (isHovered(button))
        return shade(button, hoverShade);
    return theme::isDark(button.palette) ? colour(button, QPalette::Button) : Qt::white;
}

QColor buttonEdge(const QStyleOptionButton &button) {
    if (!is(button, QStyle::State_Enabled))
        return shade(button, faintShade);
    if (is(button, QStyle::State_HasFocus))
        return colour(button, QPalette::WindowText);
    if (button.features & QStyleOptionButton::DefaultButton)
        return colour(button, QPalette::Highlight);
    return shade(button, edgeShade);
}

} // namespace

void pushButton(const QStyleOptionButton &button, QPainter &painter) {
    const qreal width = is(button, QStyle::State_HasFocus) ? 2 : 1;
    roundBox(button.rect, buttonGround(button), buttonEdge(button), width, painter);
}

void toolButton(const QStyleOption &button, QPainter &painter) {
    if (is(button, QStyle::State_Sunken) || is(button, QStyle::State_On))
        roundBox(button.rect, shade(button, pressedShade), Qt::transparent, 1, painter);
    else if (isHovered(button))
        roundBox(button.rect, shade(button, hoverShade), Qt::transparent, 1, painter);
}

void toolButtonRing(const QStyleOption &button, QPainter &painter) {
    roundBox(button.rect, Qt::transparent, colour(button, QPalette::WindowText), 1, painter);
}

void tab(const QStyleOption &tab, QPainter &painter) {
    const bool selected = is(tab, QStyle::State_Selected);
    if (isHovered(tab) && !selected)
        painter.fillRect(tab.rect, shade(tab, hoverShade));
    if (!selected)
        return;
    if (is(tab, QStyle::State_HasFocus))
        painter.fillRect(tab.rect, shade(tab, pressedShade));
    painter.fillRect(tab.rect.adjusted(0, tab.rect.height() - tabLine, 0, 0), theme::accent);
}

void tabBarBase(const QStyleOption &base, QPainter &painter) {
    const QRect &rect = base.rect;
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, shade(base, edgeShade));
}

void header(const QStyleOption &section, QPainter &painter) {
    const QRect &rect = section.rect;
    painter.fillRect(rect, colour(section, QPalette::Window));
    painter.fillRect(rect.right(), rect.top(), 1, rect.height(), shade(section, faintShade));
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, shade(section, edgeShade));
}

void statusBar(const QStyleOption &bar, QPainter &painter) {
    const QRect &rect = bar.rect;
    painter.fillRect(rect.left(), rect.top(), rect.width(), 1, shade(bar, faintShade));
}

} // namespace boulix::flatShapes
