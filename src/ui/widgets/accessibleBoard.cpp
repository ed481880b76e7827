// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/accessibleBoard.h"

#include "sill/numberBoard.h"
#include "ui/widgets/numberBoardView.h"

#include <QPointer>

namespace boulix {

namespace {

constexpr int rows = NumberBoardView::rows;
constexpr int columns = NumberBoardView::columns;

/// One number of a board.
class AccessibleNumber : public QAccessibleInterface,
                         public QAccessibleTableCellInterface,
                         public QAccessibleActionInterface {
  public:
    AccessibleNumber(NumberBoardView &view, std::int16_t number) : view_(&view), number_(number) {}

    bool isValid() const override { return !view_.isNull(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return view_->window()->windowHandle(); }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessibleInterface *parent() const override {
        return QAccessible::queryAccessibleInterface(view_);
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return QStringLiteral("Numéro %1").arg(number_);
        if (kind == QAccessible::Description && board().isComplementary(number_))
            return QStringLiteral("complémentaire");
        return {};
    }

    QRect rect() const override {
        const QRect box = view_->boxOf(number_).toRect();
        return {view_->mapToGlobal(box.topLeft()), box.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.checkable = true;
        state.checked = board().isSelected(number_);
        state.selected = state.checked;
        state.readOnly = !board().editable();
        state.disabled = !view_->isEnabled();
        state.invisible = !view_->isVisible();
        state.focusable = view_->focusPolicy() != Qt::NoFocus;
        state.focused = view_->hasFocus() && view_->currentNumber() == number_;
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface *>(this);
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        return nullptr;
    }

    bool isSelected() const override { return board().isSelected(number_); }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return number_ / rows; }
    int rowIndex() const override { return number_ % rows; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override {
        return board().editable() && view_->isEnabled() ? QStringList{toggleAction()}
                                                        : QStringList{};
    }
    void doAction(const QString &name) override {
        if (!actionNames().contains(name))
            return;
        view_->setFocus(Qt::OtherFocusReason); // as a click does
        view_->pick(number_);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

  private:
    const NumberBoard &board() const { return view_->board(); }

    QPointer<NumberBoardView> view_;
    std::int16_t number_;
};

} // namespace

AccessibleBoard::AccessibleBoard(NumberBoardView &view)
    : QAccessibleWidget(&view, QAccessible::Table) {}

AccessibleBoard::~AccessibleBoard() {
    for (const QAccessible::Id id : numbers_)
        if (id != 0)
            QAccessible::deleteAccessibleInterface(id);
}

NumberBoardView &AccessibleBoard::view() const {
    return *static_cast<NumberBoardView *>(widget());
}

QAccessibleInterface *AccessibleBoard::number(int n) const {
    if (n < 1 || n > NumberBoard::lastNumber)
        return nullptr;
    QAccessible::Id &id = numbers_[static_cast<std::size_t>(n)];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(
            new AccessibleNumber(view(), static_cast<std::int16_t>(n)));
    return QAccessible::accessibleInterface(id);
}

void *AccessibleBoard::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

int AccessibleBoard::childCount() const {
    return NumberBoard::lastNumber;
}

QAccessibleInterface *AccessibleBoard::child(int index) const {
    return number(index + 1);
}

int AccessibleBoard::indexOfChild(const QAccessibleInterface *child) const {
    for (int n = 1; n <= NumberBoard::lastNumber; ++n)
        if (const auto id = numbers_[static_cast<std::size_t>(n)];
            id != 0 && QAccessible::accessibleInterface(id) == child)
            return n - 1;
    return -1;
}

QAccessibleInterface *AccessibleBoard::childAt(int x, int y) const {
    return number(view().numberAt(view().mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface *AccessibleBoard::focusChild() const {
    return view().hasFocus() ? number(view().currentNumber()) : nullptr;
}

QAccessibleInterface *AccessibleBoard::cellAt(int row, int column) const {
    const bool inside = row >= 0 && row < rows && column >= 0 && column < columns;
    return inside ? number(column * rows + row) : nullptr;
}

int AccessibleBoard::selectedCellCount() const {
    return view().board().selectedCount();
}

QList<QAccessibleInterface *> AccessibleBoard::selectedCells() const {
    QList<QAccessibleInterface *> cells;
    for (std::int16_t i = 1; i <= view().board().selectedCount(); ++i)
        cells << number(view().board().selectedNumber(i));
    return cells;
}

QString AccessibleBoard::columnDescription(int column) const {
    return QStringLiteral("Dizaine %1").arg(column);
}

QString AccessibleBoard::rowDescription(int row) const {
    return QStringLiteral("Unité %1").arg(row);
}

int AccessibleBoard::columnCount() const {
    return columns;
}

int AccessibleBoard::rowCount() const {
    return rows;
}

} // namespace boulix
