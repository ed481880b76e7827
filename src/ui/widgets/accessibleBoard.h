// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAccessibleWidget>

#include <array>
#include <cstdint>

namespace boulix {

class NumberBoardView;

/// A number board as a screen reader sees it: a table of ten rows and five columns, as the board
/// is drawn, whose cells are the numbers 1 to 49. The first place of the first column is empty.
class AccessibleBoard : public QAccessibleWidget, public QAccessibleTableInterface {
  public:
    explicit AccessibleBoard(NumberBoardView &view);
    ~AccessibleBoard() override;

    /// The cell of number `n`, made when it is asked for first; nothing outside 1 to 49.
    QAccessibleInterface *number(int n) const;

    void *interface_cast(QAccessible::InterfaceType type) override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override;
    int rowCount() const override;
    // Numbers are marked one by one: no row and no column is ever selected as a whole.
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *) override {}

  private:
    NumberBoardView &view() const;

    static constexpr std::size_t places = 50; // one for each number, and the empty one
    mutable std::array<QAccessible::Id, places> numbers_{}; ///< 0 for one that nobody asked for
};

} // namespace boulix
