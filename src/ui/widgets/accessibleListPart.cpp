// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/accessibleListPart.h"

#include "ui/widgets/reportView.h"

#include <QHeaderView>

namespace boulix {

AccessibleListPart::AccessibleListPart(ReportView &view, int row, int column)
    : view_(&view), row_(row), column_(column) {}

QWindow *AccessibleListPart::window() const {
    return viewLives() ? view().window()->windowHandle() : nullptr;
}

QAccessibleInterface *AccessibleListPart::parent() const {
    return QAccessible::queryAccessibleInterface(view_);
}

void *AccessibleListPart::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

AccessibleListHeader::AccessibleListHeader(ReportView &view, int column)
    : AccessibleListPart(view, -1, column) {}

bool AccessibleListHeader::isValid() const {
    return viewLives() && column() < view().header()->count();
}

QString AccessibleListHeader::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name || !isValid())
        return {};
    return view().model()->headerData(column(), Qt::Horizontal).toString();
}

QRect AccessibleListHeader::rect() const {
    if (!isValid())
        return {};
    const QHeaderView &header = *view().header();
    const QPoint corner(header.sectionViewportPosition(column()), 0);
    return {header.mapToGlobal(corner), QSize(header.sectionSize(column()), header.height())};
}

QAccessible::State AccessibleListHeader::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.invisible = !view().isVisible();
    state.disabled = !view().isEnabled();
    return state;
}

void AccessibleListHeader::doAction(const QString &name) {
    if (name == pressAction() && isValid() && view().isEnabled())
        emit view().headerClicked(column());
}

QModelIndex AccessibleListCell::index() const {
    return viewLives() ? view().model()->index(row(), column()) : QModelIndex();
}

bool AccessibleListCell::isValid() const {
    return index().isValid();
}

QString AccessibleListCell::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name)
        return index().data().toString();
    return {};
}

QRect AccessibleListCell::rect() const {
    if (!isValid())
        return {};
    const QRect place = view().visualRect(index());
    return {view().viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State AccessibleListCell::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.focusable = true;
    state.multiSelectable = view().selectionMode() != QAbstractItemView::SingleSelection;
    state.selected = isSelected();
    state.focused = view().hasFocus() && view().currentIndex().row() == row() && column() == 0;
    state.disabled = !view().isEnabled();
    state.invisible = !view().isVisible();
    state.offscreen = !view().viewport()->rect().intersects(view().visualRect(index()));
    state.checkable = index().flags().testFlag(Qt::ItemIsUserCheckable);
    state.checked = state.checkable && index().data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return state;
}

void *AccessibleListCell::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface *>(this);
    return AccessibleListPart::interface_cast(type);
}

QStringList AccessibleListCell::actionNames() const {
    if (!isValid() || !view().isEnabled())
        return {};
    QStringList names{pressAction()};
    if (index().flags().testFlag(Qt::ItemIsUserCheckable))
        names << toggleAction();
    return names;
}

void AccessibleListCell::doAction(const QString &name) {
    if (!actionNames().contains(name))
        return;
    if (name == pressAction())
        view().pick(row());
    else
        view().toggleCheck(index());
}

bool AccessibleListCell::isSelected() const {
    return isValid() && view().selectionModel()->isRowSelected(row());
}

QList<QAccessibleInterface *> AccessibleListCell::columnHeaderCells() const {
    QAccessibleInterface *list = parent();
    QAccessibleInterface *header = list ? list->child(column()) : nullptr; // headers come first
    return header ? QList{header} : QList<QAccessibleInterface *>{};
}

} // namespace boulix
