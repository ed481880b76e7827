// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/toolbar.h"

#include "ui/style/iconLoader.h"

#include <QAction>
#include <QToolBar>
#include <QToolButton>

namespace boulix {

namespace {

QAction *addButton(QToolBar &bar, int number, const ToolbarButton &button) {
    QAction *action = bar.addAction(loadIcon(button.icon), button.caption);
    action->setObjectName(QStringLiteral("%1_%2").arg(bar.objectName()).arg(number));
    action->setIconText(button.caption); // told apart from the text, it keeps its mnemonic
    action->setToolTip(button.toolTip);
    action->setShortcut(button.shortcut);
    action->setShortcutContext(Qt::WindowShortcut);
    if (auto *widget = qobject_cast<QToolButton *>(bar.widgetForAction(action)))
        widget->setFocusPolicy(Qt::TabFocus);
    return action;
}

} // namespace

QToolBar *makeToolbar(const QString &name, const std::vector<ToolbarButton> &buttons,
                      const std::function<void(int)> &clicked, QWidget *parent) {
    auto *bar = new QToolBar(parent);
    bar->setObjectName(name);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setIconSize({24, 24});
    bar->setMovable(false);
    int number = 0;
    for (const ToolbarButton &button : buttons) {
        const QAction *action = addButton(*bar, ++number, button);
        QObject::connect(action, &QAction::triggered, bar, [clicked, number] { clicked(number); });
    }
    return bar;
}

void setTabStops(const std::vector<QWidget *> &stops) {
    std::vector<QWidget *> parts;
    for (QWidget *stop : stops) {
        if (const auto *bar = qobject_cast<const QToolBar *>(stop))
            for (QAction *action : bar->actions())
                parts.push_back(bar->widgetForAction(action));
        else
            parts.push_back(stop);
    }
    for (std::size_t i = 1; i < parts.size(); ++i)
        QWidget::setTabOrder(parts[i - 1], parts[i]);
}

} // namespace boulix
