// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>

namespace boulix {

class UpDownView;

/// A pair of arrows as a screen reader sees it: a spin box with its value and its range. An endless
/// pair has neither, only its two steps.
class AccessibleUpDown : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit AccessibleUpDown(UpDownView &arrows);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

    QStringList actionNames() const override;
    void doAction(const QString &name) override;

  private:
    UpDownView &arrows() const;
};

} // namespace boulix
