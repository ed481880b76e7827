// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/toolbar.h"

#include "ui/style/iconLoader.h"

#include <QAction>
#include <QActionEvent>
#include <QHelpEvent>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

namespace boulix {

namespace {

/// Shows its texts as long as all of them have their room.
class FittingToolbar : public QToolBar {
  public:
    FittingToolbar(Qt::ToolButtonStyle style, QWidget *parent) : QToolBar(parent), style_(style) {
        setToolButtonStyle(style);
    }

  protected:
    /// The key stands behind the tool tip, which remains what it is for whoever reads it aloud.
    bool eventFilter(QObject *watched, QEvent *event) override {
        const auto *button = qobject_cast<QToolButton *>(watched);
        const QAction *action = button ? button->defaultAction() : nullptr;
        if (event->type() != QEvent::ToolTip || !action)
            return QToolBar::eventFilter(watched, event);
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), toolTipWithKey(*action),
                           this);
        return true;
    }
    void actionEvent(QActionEvent *event) override {
        QToolBar::actionEvent(event);
        if (event->type() == QEvent::ActionAdded)
            if (QWidget *button = widgetForAction(event->action()))
                button->installEventFilter(this);
    }
    void resizeEvent(QResizeEvent *event) override {
        QToolBar::resizeEvent(event);
        if (toolButtonStyle() == style_)
            fullWidth_ = sizeHint().width();
        const Qt::ToolButtonStyle fitting = width() < fullWidth_ ? Qt::ToolButtonIconOnly : style_;
        if (fitting != toolButtonStyle())
            setToolButtonStyle(fitting);
    }

  private:
    Qt::ToolButtonStyle style_;
    int fullWidth_ = 0;
};

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

QString toolTipWithKey(const QAction &action) {
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    if (key.isEmpty())
        return action.toolTip();
    QStringList lines = action.toolTip().split(QLatin1Char('\n'));
    lines[0] += QStringLiteral(" (%1)").arg(key); // before a line that says why it is off
    return lines.join(QLatin1Char('\n'));
}

QToolBar *makeToolbar(const QString &name, const std::vector<ToolbarButton> &buttons,
                      const std::function<void(int)> &clicked, QWidget *parent, ToolbarLook look) {
    const bool large = look == ToolbarLook::large;
    auto *bar = new FittingToolbar(
        large ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonTextBesideIcon, parent);
    bar->setObjectName(name);
    bar->setIconSize(large ? QSize(24, 24) : QSize(18, 18));
    bar->setMovable(false);
    int number = 0;
    for (const ToolbarButton &button : buttons) {
        const QAction *action = addButton(*bar, ++number, button);
        QObject::connect(action, &QAction::triggered, bar, [clicked, number] { clicked(number); });
    }
    return bar;
}

void setWhyOff(QAction &button, const QString &why) {
    constexpr const char *whole = "toolTipWhenOn";
    if (!button.property(whole).isValid())
        button.setProperty(whole, button.toolTip());
    const QString toolTip = button.property(whole).toString();
    button.setEnabled(why.isEmpty());
    button.setToolTip(why.isEmpty() ? toolTip : toolTip + QLatin1Char('\n') + why);
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
