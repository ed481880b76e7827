// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>
#include <vector>

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

/// The toolbar `name`: its buttons are actions called `name_1`, `name_2` ..., text under icons.
/// `clicked` gets the number of the button, from 1.
QToolBar *makeToolbar(const QString &name, const std::vector<ToolbarButton> &buttons,
                      const std::function<void(int)> &clicked, QWidget *parent);

/// The Tab key goes through `stops` in this order, and through all buttons of a toolbar. A field
/// made of several parts must be made in its turn instead.
void setTabStops(const std::vector<QWidget *> &stops);

} // namespace boulix
