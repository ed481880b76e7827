// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QPainter;
class QStyleOption;
class QStyleOptionButton;

/// The flat grounds and outlines of the program's controls, drawn into the rectangle of their
/// option and in the colours of its palette.
namespace boulix::flatShapes {

/// A push button; the default one stands out, the one with the focus has a ring.
void pushButton(const QStyleOptionButton &button, QPainter &painter);
/// The ground of a button in a toolbar: none until the mouse is over it.
void toolButton(const QStyleOption &button, QPainter &painter);
/// The ring around a button in a toolbar that has the focus.
void toolButtonRing(const QStyleOption &button, QPainter &painter);
/// A tab: a line under the one on show.
void tab(const QStyleOption &tab, QPainter &painter);
/// The line between tabs and what is below them.
void tabBarBase(const QStyleOption &base, QPainter &painter);
/// The ground of a column's header.
void header(const QStyleOption &section, QPainter &painter);
/// The line between the status bar and what is above it.
void statusBar(const QStyleOption &bar, QPainter &painter);

} // namespace boulix::flatShapes
