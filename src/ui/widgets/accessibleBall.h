// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>

namespace boulix {

class NumberBall;

/// A ball with a number as a screen reader sees it: a check box where a click marks it, otherwise
/// a text. Without a number it is empty and says so.
class AccessibleBall : public QAccessibleWidget {
  public:
    explicit AccessibleBall(NumberBall &ball);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

  private:
    NumberBall &ball() const;
};

} // namespace boulix
