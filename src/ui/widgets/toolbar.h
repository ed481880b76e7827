// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>
#include <vector>

class QAction;
class QToolBar;
class QWidget;

namespace boulix {

/// A button of a toolbar. An "&" in the caption stands before its mnemonic.
struct ToolbarButton {
    QString caption;
    QString toolTip;
    QString icon;
    QKeySequence shortcut;
};

/// Large ones have the text under their icons and stand over a page or a window; slim ones have it
/// beside them and stand within a page.
enum class ToolbarLook { large, slim };

/// The toolbar `name`: its buttons are actions called `name_1`, `name_2` ... `clicked` gets the
/// number of the button, from 1. Where the window is too narrow for the texts the icons stand
/// alone.
QToolBar *makeToolbar(const QString &name, const std::vector<ToolbarButton> &buttons,
                      const std::function<void(int)> &clicked, QWidget *parent,
                      ToolbarLook look = ToolbarLook::large);

/// Turns a button off where there is a reason why it can do nothing now, which its tool tip gives
/// in a second line; on where `why` is empty.
void setWhyOff(QAction &button, const QString &why);
/// The tool tip of a button with its key behind it: "Imprimer le jeu (Ctrl+P)".
QString toolTipWithKey(const QAction &action);

/// The Tab key goes through `stops` in this order, and through all buttons of a toolbar. A field
/// made of several parts must be made in its turn instead.
void setTabStops(const std::vector<QWidget *> &stops);

} // namespace boulix
