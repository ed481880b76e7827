// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>
#include <QHash>

#include <cstdint>
#include <deque>

class QModelIndex;

namespace boulix {

class ReportView;

/// A list in report view as a screen reader sees it: a table with column headers and cells. Its
/// children are the headers, then the cells row by row; in an empty one, the sentence that stands
/// in it. A cell is made when it is asked for and
/// only the last few thousand are kept, so that a list of millions of rows can be read to its end.
class AccessibleList : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit AccessibleList(ReportView &view);
    ~AccessibleList() override;

    /// How many cells and headers are kept at most.
    static constexpr std::size_t mostKept = 4096;

    /// The header of a column, nothing where there is none.
    QAccessibleInterface *header(int column) const;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    /// As many of them as can be kept at once.
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return {}; }
    int columnCount() const override;
    int rowCount() const override;
    int selectedColumnCount() const override { return 0; } // rows are selected as a whole
    int selectedRowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

  private:
    static constexpr int headerRow = -1;

    ReportView &view() const;
    QAccessibleInterface *kept(int row, int column) const;
    void forgetAll() const;
    QAccessibleInterface *emptyPlace() const;

    mutable QHash<std::int64_t, QAccessible::Id> ids_; ///< by child index
    mutable std::deque<std::int64_t> oldestFirst_;
};

} // namespace boulix
