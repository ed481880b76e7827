// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>

namespace boulix {

class EmptyPlaceView;

/// The sentence in an empty list or board as a screen reader sees it: a text, or a link to press.
class AccessibleEmptyPlace : public QAccessibleWidget {
  public:
    explicit AccessibleEmptyPlace(EmptyPlaceView &place);

    QAccessible::Role role() const override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

  private:
    EmptyPlaceView &place() const;
    bool hasLink() const;
};

} // namespace boulix
