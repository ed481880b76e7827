// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessible>
#include <QModelIndex>
#include <QPointer>

namespace boulix {

class ReportView;

/// What the header and the cells of a list have in common: a place in it. They hold nothing else,
/// so that they are right whatever the list shows by now.
class AccessibleListPart : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    AccessibleListPart(ReportView &view, int row, int column);

    int row() const { return row_; }
    int column() const { return column_; }

    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}
    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

  protected:
    ReportView &view() const { return *view_; }
    bool viewLives() const { return !view_.isNull(); }

  private:
    QPointer<ReportView> view_;
    int row_;
    int column_;
};

/// The header of a column. Pressing it is a click on it.
class AccessibleListHeader : public AccessibleListPart {
  public:
    AccessibleListHeader(ReportView &view, int column);

    bool isValid() const override;
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &name) override;
};

/// A cell. Pressing it is a click on its row; one with a check mark can be toggled.
class AccessibleListCell : public AccessibleListPart, public QAccessibleTableCellInterface {
  public:
    using AccessibleListPart::AccessibleListPart;

    bool isValid() const override;
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    bool isSelected() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return column(); }
    int rowIndex() const override { return row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

  private:
    QModelIndex index() const;
};

} // namespace boulix
