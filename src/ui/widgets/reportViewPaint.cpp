// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/reportList.h"
#include "ui/style/theme.h"
#include "ui/widgets/reportListModel.h"
#include "ui/widgets/reportView.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace boulix {

namespace {

constexpr int pointerWidth = 4;
constexpr int barMargin = 3;     // above and below it
constexpr int narrowestBar = 24; // with less room there is none

} // namespace

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
    paintGround(painter, option, row);
    if (list_.bars())
        paintBar(painter, option, row);
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

/// The ground of a row. A marked one is tinted; the one that is shown beside the list bears a bar
/// at its edge, so that it is found without colour, too.
void ReportView::paintGround(QPainter &painter, const QStyleOptionViewItem &option, int row) const {
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
    const QColor accent = option.palette.color(QPalette::Highlight);
    if (option.state & QStyle::State_Selected) {
        painter.fillRect(option.rect, accent);
        return;
    }
    const bool dark = theme::isDark(option.palette);
    if (list_.isMarked(row))
        painter.fillRect(option.rect, theme::blend(option.palette.color(QPalette::Base), accent,
                                                   dark ? 0.4 : 0.18));
    if (list_.isPointedAt(row))
        painter.fillRect(QRect(option.rect.topLeft(), QSize(pointerWidth, option.rect.height())),
                         option.palette.color(QPalette::Link));
}

/// The bar of a row behind its number, and the mean of the column across it. Where the column is
/// too narrow for one there is none.
void ReportView::paintBar(QPainter &painter, const QStyleOptionViewItem &option, int row) const {
    const ReportBars &bars = *list_.bars();
    const QRect cell = visualRect(model_->index(row, bars.column));
    const int number = option.fontMetrics.horizontalAdvance(QStringLiteral("000000"));
    const QRect room =
        cell.adjusted(number + 2 * cellMargin, barMargin, -2 * cellMargin, -barMargin);
    if (room.width() < narrowestBar)
        return;
    const bool selected = option.state & QStyle::State_Selected;
    const QColor ground = option.palette.color(selected ? QPalette::Highlight : QPalette::Base);
    const QColor ink = selected ? option.palette.color(QPalette::HighlightedText)
                                : option.palette.color(QPalette::Link);
    const qreal strength = list_.outdated() ? 0.12 : 0.35;
    const qreal width = list_.barOf(row) * room.width();
    painter.fillRect(QRectF(room.left(), room.top(), width, room.height()),
                     theme::blend(ground, ink, strength));
    if (bars.largest <= 0)
        return;
    const qreal mean = room.left() + bars.mean / bars.largest * room.width();
    painter.setPen(QPen(textColor(option), 1, Qt::DotLine));
    painter.drawLine(QPointF(mean, cell.top()), QPointF(mean, cell.bottom()));
}

/// What is outdated looks as what is switched off.
QColor ReportView::textColor(const QStyleOptionViewItem &option) const {
    if (option.state & QStyle::State_Selected)
        return option.palette.color(QPalette::HighlightedText);
    const auto group = list_.outdated() ? QPalette::Disabled : option.palette.currentColorGroup();
    return option.palette.color(group, QPalette::Text);
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
    painter.setPen(textColor(option));
    const Qt::Alignment alignment(index.data(Qt::TextAlignmentRole).toInt());
    const QRect place = QStyle::alignedRect(layoutDirection(), alignment,
                                            {width, option.fontMetrics.height()}, room);
    painter.drawText(place.left(), place.top() + option.fontMetrics.ascent(), text);
}

} // namespace boulix
