// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/reportListModel.h"
#include "ui/widgets/reportView.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace boulix {

void ReportView::paintEvent(QPaintEvent *event) {
    QPainter painter(viewport());
    const int first = rowAt(event->rect().top());
    if (first < 0)
        return;
    const int under = rowAt(event->rect().bottom());
    const int last = under < 0 ? rowCount() - 1 : under;
    for (int row = first; row <= last; ++row)
        paintRow(painter, row);
}

void ReportView::paintRow(QPainter &painter, int row) {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect =
        QRect(0, visualRect(model_->index(row, 0)).top(), viewport()->width(), rowHeight_);
    option.showDecorationSelected = true;
    option.features.setFlag(QStyleOptionViewItem::Alternate, row % 2 == 1);
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isRowSelected(row));
    option.state.setFlag(QStyle::State_HasFocus, false);
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
    if (option.state & QStyle::State_Selected)
        painter.fillRect(option.rect, option.palette.highlight());
    for (int column = 0; column < header_->count(); ++column) {
        const QModelIndex index = model_->index(row, column);
        const QRect cell = visualRect(index);
        option.rect = cell.adjusted(cellMargin / 2, 0, -cellMargin / 2, 0);
        if (index.flags() & Qt::ItemIsUserCheckable)
            itemDelegateForIndex(index)->paint(&painter, option, index);
        else if (cell.right() >= 0 && cell.left() < viewport()->width())
            paintText(painter, option, index);
    }
    if (hasFocus() && currentIndex().row() == row) {
        painter.setPen(QPen(option.palette.text().color(), 1, Qt::DotLine));
        painter.drawRect(0, visualRect(currentIndex()).top(), viewport()->width() - 1,
                         rowHeight_ - 1);
    }
}

/// A cell that is nothing but a text: the delegate takes four times as long for it.
void ReportView::paintText(QPainter &painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const {
    const QRect room = option.rect.adjusted(cellMargin / 2, 0, -cellMargin / 2, 0);
    QString text = index.data().toString();
    int width = option.fontMetrics.horizontalAdvance(text);
    if (width > room.width()) {
        text = option.fontMetrics.elidedText(text, Qt::ElideRight, room.width());
        width = option.fontMetrics.horizontalAdvance(text);
    }
    const bool selected = option.state & QStyle::State_Selected;
    painter.setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    const Qt::Alignment alignment(index.data(Qt::TextAlignmentRole).toInt());
    const QRect place = QStyle::alignedRect(layoutDirection(), alignment,
                                            {width, option.fontMetrics.height()}, room);
    painter.drawText(place.left(), place.top() + option.fontMetrics.ascent(), text);
}

} // namespace boulix
