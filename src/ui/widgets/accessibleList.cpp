// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/accessibleList.h"

#include "ui/widgets/accessibleListPart.h"
#include "ui/widgets/emptyPlaceView.h"
#include "ui/widgets/reportView.h"

#include <QHeaderView>
#include <QItemSelection>

#include <algorithm>
#include <limits>

namespace boulix {

AccessibleList::AccessibleList(ReportView &view) : QAccessibleWidget(&view, QAccessible::Table) {}

AccessibleList::~AccessibleList() {
    forgetAll();
}

ReportView &AccessibleList::view() const {
    return *static_cast<ReportView *>(widget());
}

/// The header or cell at a place that exists.
QAccessibleInterface *AccessibleList::kept(int row, int column) const {
    const std::int64_t key = (std::int64_t{row} - headerRow) * columnCount() + column;
    if (const auto found = ids_.constFind(key); found != ids_.constEnd())
        return QAccessible::accessibleInterface(*found);
    if (oldestFirst_.size() == mostKept) {
        QAccessible::deleteAccessibleInterface(ids_.take(oldestFirst_.front()));
        oldestFirst_.pop_front();
    }
    QAccessibleInterface *made = nullptr;
    if (row == headerRow)
        made = new AccessibleListHeader(view(), column);
    else
        made = new AccessibleListCell(view(), row, column);
    ids_.insert(key, QAccessible::registerAccessibleInterface(made));
    oldestFirst_.push_back(key);
    return made;
}

void AccessibleList::forgetAll() const {
    for (const QAccessible::Id id : std::as_const(ids_))
        QAccessible::deleteAccessibleInterface(id);
    ids_.clear();
    oldestFirst_.clear();
}

QAccessibleInterface *AccessibleList::header(int column) const {
    return column >= 0 && column < columnCount() ? kept(headerRow, column) : nullptr;
}

void *AccessibleList::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleList::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = view().selectionMode() != QAbstractItemView::SingleSelection;
    state.readOnly = true;
    return state;
}

/// The sentence of an empty list, nothing where none is shown.
QAccessibleInterface *AccessibleList::emptyPlace() const {
    auto *sentence = view().viewport()->findChild<EmptyPlaceView *>();
    const bool shown = sentence && !sentence->isHidden();
    return shown ? QAccessible::queryAccessibleInterface(sentence) : nullptr;
}

int AccessibleList::childCount() const {
    const std::int64_t all =
        (std::int64_t{rowCount()} + 1) * columnCount() + (emptyPlace() ? 1 : 0);
    return static_cast<int>(std::min<std::int64_t>(all, std::numeric_limits<int>::max()));
}

QAccessibleInterface *AccessibleList::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    const int columns = columnCount();
    if (rowCount() == 0 && index == columns)
        return emptyPlace();
    return kept(index / columns + headerRow, index % columns);
}

int AccessibleList::indexOfChild(const QAccessibleInterface *child) const {
    if (child && child == emptyPlace())
        return columnCount();
    const auto *part = dynamic_cast<const AccessibleListPart *>(child);
    if (!part || part->parent() != this)
        return -1;
    return (part->row() - headerRow) * columnCount() + part->column();
}

QAccessibleInterface *AccessibleList::childAt(int x, int y) const {
    const QPoint onScreen(x, y);
    const QHeaderView &heads = *view().header();
    if (heads.rect().contains(heads.mapFromGlobal(onScreen)))
        return header(heads.logicalIndexAt(heads.mapFromGlobal(onScreen)));
    const QPoint inRows = view().viewport()->mapFromGlobal(onScreen);
    if (!view().viewport()->rect().contains(inRows))
        return nullptr;
    const QModelIndex index = view().indexAt(inRows);
    return cellAt(index.row(), index.column());
}

QAccessibleInterface *AccessibleList::focusChild() const {
    return view().hasFocus() ? cellAt(view().currentIndex().row(), 0) : nullptr;
}

QAccessibleInterface *AccessibleList::cellAt(int row, int column) const {
    const bool inside = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return inside ? kept(row, column) : nullptr;
}

int AccessibleList::selectedCellCount() const {
    const std::int64_t all = std::int64_t{selectedRowCount()} * columnCount();
    return static_cast<int>(std::min<std::int64_t>(all, std::numeric_limits<int>::max()));
}

QList<QAccessibleInterface *> AccessibleList::selectedCells() const {
    if (std::size_t(ids_.size()) + static_cast<std::size_t>(selectedCellCount()) > mostKept)
        forgetAll(); // none of those below goes while the others are made
    QList<QAccessibleInterface *> cells;
    const auto most = static_cast<qsizetype>(mostKept) - columnCount();
    for (const QItemSelectionRange &range : view().selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            for (int column = 0; column < columnCount(); ++column) {
                if (cells.size() == most)
                    return cells;
                cells << kept(row, column);
            }
    return cells;
}

QString AccessibleList::columnDescription(int column) const {
    return view().model()->headerData(column, Qt::Horizontal).toString();
}

int AccessibleList::columnCount() const {
    return view().model()->columnCount();
}

int AccessibleList::rowCount() const {
    return view().model()->rowCount();
}

int AccessibleList::selectedRowCount() const {
    int count = 0;
    for (const QItemSelectionRange &range : view().selectionModel()->selection())
        count += range.height();
    return count;
}

QList<int> AccessibleList::selectedRows() const {
    QList<int> rows;
    for (const QItemSelectionRange &range : view().selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows << row;
    std::sort(rows.begin(), rows.end());
    return rows;
}

bool AccessibleList::isRowSelected(int row) const {
    return view().selectionModel()->isRowSelected(row);
}

bool AccessibleList::selectRow(int row) {
    if (row < 0 || row >= rowCount() || !view().isEnabled())
        return false;
    view().pick(row);
    return true;
}

bool AccessibleList::unselectRow(int row) {
    if (!isRowSelected(row) || !view().isEnabled())
        return false;
    view().selectionModel()->select(view().model()->index(row, 0),
                                    QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    return true;
}

/// Changed texts are asked for anew anyway; new rows are new cells.
void AccessibleList::modelChange(QAccessibleTableModelChangeEvent *event) {
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged)
        forgetAll();
}

} // namespace boulix
