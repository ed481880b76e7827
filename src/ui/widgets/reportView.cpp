// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/reportView.h"

#include "sill/emptyPlace.h"
#include "sill/reportList.h"
#include "ui/widgets/emptyPlaceView.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportCopy.h"
#include "ui/widgets/reportListModel.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <limits>
#include <utility>

namespace boulix {

namespace {

constexpr int rowPadding = 7; // above and below it, together

} // namespace

ReportView::ReportView(reportList &list, QWidget *parent)
    : QAbstractItemView(parent), list_(list), model_(std::make_unique<ReportListModel>(list)),
      header_(new QHeaderView(Qt::Horizontal, this)), empty_(new EmptyPlaceView(viewport())) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    makeHeader();
    makeCopyActions();
    header_->setModel(model_.get()); // before the view: it learns of new columns first
    setModel(model_.get());
    list_.lookChanged = [this] { viewport()->update(); };
}

ReportView::~ReportView() {
    list_.lookChanged = nullptr;
    setModel(nullptr);
    header_->setModel(nullptr);
}

void ReportView::makeHeader() {
    header_->setSectionsClickable(true);
    header_->setHighlightSections(false);
    header_->setStretchLastSection(true);
    header_->setMinimumSectionSize(fontMetrics().averageCharWidth() * 3);
    connect(header_, &QHeaderView::sectionClicked, this, &ReportView::headerClicked);
    connect(header_, &QHeaderView::sectionResized, this, [this](int column) {
        keepUserWidths(column);
        updateGeometries();
        viewport()->update();
    });
}

void ReportView::setChecks(RowChecks checks) {
    model_->setChecks(std::move(checks));
    sizeColumns();
}

void ReportView::makeCopyActions() {
    auto *copy = new QAction(QStringLiteral("&Copier"), this);
    copy->setObjectName(QStringLiteral("copySelected"));
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &ReportView::copySelected);
    auto *all = new QAction(QStringLiteral("Copier &toute la liste"), this);
    all->setObjectName(QStringLiteral("copyAll"));
    connect(all, &QAction::triggered, this, &ReportView::copyAll);
    addActions({copy, all});
}

void ReportView::copySelected() const {
    const QString text = reportCopy::selectedRows(*model_, selectionModel()->selection());
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text);
}

void ReportView::copyAll() const {
    QApplication::clipboard()->setText(reportCopy::allRows(*model_));
}

std::vector<std::int64_t> ReportView::selectedRows() const {
    std::vector<std::int64_t> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row + 1);
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ReportView::goToRow(std::int64_t row, bool select) {
    const QModelIndex index = model_->index(static_cast<int>(row - 1), 0);
    if (select)
        setCurrentIndex(index);
    scrollTo(index);
}

void ReportView::keepAllColumnsVisible() {
    allColumnsVisible_ = true;
    setMinimumWidth(fullWidth());
}

int ReportView::fullWidth() const {
    int width = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    const int last = header_->count() - 1;
    for (int column = 0; column < last; ++column)
        width += std::max(header_->sectionSize(column), columnWidth(column));
    // The last column is stretched: what it has is no measure of what it needs.
    return last < 0 ? width : width + columnWidth(last);
}

QSize ReportView::sizeHint() const {
    return {fullWidth(), 16 * rowHeight_};
}

QSize ReportView::minimumSizeHint() const {
    return {12 * fontMetrics().averageCharWidth(), header_->sizeHint().height() + 3 * rowHeight_};
}

/// New rows: the place in the list stays where it was, as far as the list still reaches. A list
/// is emptied before it is filled again, so the place outlives an empty list; new columns begin
/// at the top.
void ReportView::reset() {
    if (verticalScrollBar()->maximum() > 0)
        top_ = verticalScrollBar()->value();
    QStringList headers;
    for (const ReportColumn &column : model_->list().columns())
        headers << toQt(column.header);
    if (headers != headers_) {
        headers_ = headers;
        top_ = 0;
        sizeColumns();
    }
    QAbstractItemView::reset();
    showSorting();
    updateGeometries();
    verticalScrollBar()->setValue(top_);
    showEmptyPlace();
}

void ReportView::showEmptyPlace() {
    empty_->tell(rowCount() == 0 ? model_->list().whenEmpty() : EmptyPlace());
}

void ReportView::changeEvent(QEvent *event) {
    QAbstractItemView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        sizeColumns();
}

void ReportView::sizeColumns() {
    rowHeight_ = fontMetrics().height() + rowPadding;
    const auto given = userWidths_.find(header_->count());
    sizing_ = true;
    for (int column = 0; column < header_->count(); ++column) {
        const auto place = static_cast<std::size_t>(column);
        const bool own = given != userWidths_.end() && place < given->second.size();
        header_->resizeSection(column, own ? given->second[place] : columnWidth(column));
    }
    sizing_ = false;
    if (allColumnsVisible_)
        setMinimumWidth(fullWidth());
    updateGeometry();
}

/// The width of a column by its sample, so that header and sample both have their room.
int ReportView::columnWidth(int column) const {
    const ReportColumn &told = model_->list().columns()[static_cast<std::size_t>(column)];
    const QString sample = toQt(told.sample.empty() ? told.header : told.sample);
    const bool marked = column == 0 && model_->hasChecks();
    const int mark = marked ? style()->pixelMetric(QStyle::PM_IndicatorWidth) : 0;
    const int text = fontMetrics().horizontalAdvance(sample) + 2 * cellMargin;
    return mark + std::max(header_->sectionSizeHint(column), text);
}

void ReportView::showSorting() {
    const reportList &list = model_->list();
    const int column = list.sortColumn();
    header_->setSortIndicatorShown(column >= 0);
    header_->setSortIndicator(column, list.descending() ? Qt::DescendingOrder : Qt::AscendingOrder);
    if (column >= 0) { // the arrow must not cover the text
        sizing_ = true;
        header_->resizeSection(column, std::max(header_->sectionSize(column), columnWidth(column)));
        sizing_ = false;
    }
    if (allColumnsVisible_)
        setMinimumWidth(fullWidth());
}

int ReportView::rowCount() const {
    return model_->rowCount();
}

int ReportView::rowAt(int y) const {
    const int row = verticalScrollBar()->value() + y / rowHeight_;
    return y >= 0 && row < rowCount() ? row : -1;
}

int ReportView::fullyVisibleRows() const {
    return std::max(1, viewport()->height() / rowHeight_);
}

QRect ReportView::visualRect(const QModelIndex &index) const {
    if (!index.isValid())
        return {};
    const qint64 y = (qint64{index.row()} - verticalScrollBar()->value()) * rowHeight_;
    // A range of selected rows can begin far outside what is visible.
    constexpr qint64 far = std::numeric_limits<int>::max() / 2;
    return {header_->sectionViewportPosition(index.column()),
            static_cast<int>(std::clamp(y, -far, far)), header_->sectionSize(index.column()),
            rowHeight_};
}

QModelIndex ReportView::indexAt(const QPoint &point) const {
    const int row = rowAt(point.y());
    // Behind the last column a row is still the row.
    const int column = std::max(0, header_->logicalIndexAt(point.x()));
    return row < 0 ? QModelIndex() : model_->index(row, column);
}

void ReportView::scrollTo(const QModelIndex &index, ScrollHint hint) {
    if (!index.isValid())
        return;
    QScrollBar *bar = verticalScrollBar();
    const int shown = fullyVisibleRows();
    const int row = index.row();
    if (hint == PositionAtTop)
        bar->setValue(row);
    else if (hint == PositionAtBottom)
        bar->setValue(row - shown + 1);
    else if (hint == PositionAtCenter)
        bar->setValue(row - shown / 2);
    else if (row < bar->value())
        bar->setValue(row);
    else if (row >= bar->value() + shown)
        bar->setValue(row - shown + 1);
}

QModelIndex ReportView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    const int last = rowCount() - 1;
    if (last < 0)
        return {};
    const bool onRow = currentIndex().isValid();
    int row = onRow ? currentIndex().row() : -1;
    switch (action) {
    case MoveUp:
        row = onRow ? row - 1 : last;
        break;
    case MoveDown:
        row += 1;
        break;
    case MovePageUp:
        row -= fullyVisibleRows();
        break;
    case MovePageDown:
        row += fullyVisibleRows();
        break;
    case MoveHome:
        row = 0;
        break;
    case MoveEnd:
        row = last;
        break;
    case MoveLeft:
    case MoveRight:
        horizontalScrollBar()->triggerAction(action == MoveLeft
                                                 ? QAbstractSlider::SliderSingleStepSub
                                                 : QAbstractSlider::SliderSingleStepAdd);
        return currentIndex();
    default:
        return currentIndex();
    }
    return model_->index(std::clamp(row, 0, last), 0);
}

int ReportView::horizontalOffset() const {
    return header_->offset();
}

int ReportView::verticalOffset() const {
    return verticalScrollBar()->value() * rowHeight_;
}

void ReportView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) {
    const auto row = [this](int y) {
        const int down = y >= 0 ? y / rowHeight_ : (y - rowHeight_ + 1) / rowHeight_;
        return verticalScrollBar()->value() + down;
    };
    // A range that the user draws upwards ends above where it began.
    const int first = std::max(0, row(std::min(rect.top(), rect.bottom())));
    const int last = std::min(rowCount() - 1, row(std::max(rect.top(), rect.bottom())));
    QItemSelection selection;
    if (first <= last)
        selection.select(model_->index(first, 0), model_->index(last, model_->columnCount() - 1));
    selectionModel()->select(selection, command);
}

QRegion ReportView::visualRegionForSelection(const QItemSelection &selection) const {
    const int width = viewport()->width();
    QRegion region;
    for (const QItemSelectionRange &range : selection) {
        const QRect top = visualRect(range.topLeft());
        const QRect bottom = visualRect(range.bottomRight());
        region += QRect(QPoint(0, top.top()), QPoint(width, bottom.bottom()));
    }
    return region;
}

void ReportView::scrollContentsBy(int dx, int) {
    if (dx != 0)
        header_->setOffset(horizontalScrollBar()->value());
    viewport()->update();
}

void ReportView::updateGeometries() {
    const int height = header_->sizeHint().height();
    setViewportMargins(0, height, 0, 0);
    const QRect area = viewport()->geometry();
    header_->setGeometry(area.left(), area.top() - height, area.width(), height);
    verticalScrollBar()->setPageStep(fullyVisibleRows());
    verticalScrollBar()->setRange(0, std::max(0, rowCount() - fullyVisibleRows()));
    horizontalScrollBar()->setPageStep(area.width());
    horizontalScrollBar()->setSingleStep(std::max(1, area.width() / 8));
    horizontalScrollBar()->setRange(0, std::max(0, header_->length() - area.width()));
    QAbstractItemView::updateGeometries();
    empty_->cover();
}

/// The space bar acts on the row, whichever of its columns was clicked before.
void ReportView::toggleCheck(const QModelIndex &index) {
    const QModelIndex mark = index.siblingAtColumn(0);
    const bool on = mark.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model_->setData(mark, int(on ? Qt::Unchecked : Qt::Checked), Qt::CheckStateRole);
}

void ReportView::pick(int row) {
    setFocus(Qt::OtherFocusReason);
    const auto whole = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    selectionModel()->setCurrentIndex(model_->index(row, 0), whole);
    emit rowClicked(row + 1);
    emit rowsPicked();
}

/// A screen reader goes to the row that the keyboard has reached: to its first cell, behind the
/// headers and the rows above.
void ReportView::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QAbstractItemView::currentChanged(current, previous);
    if (!current.isValid() || !hasFocus() || !QAccessible::isActive())
        return;
    QAccessibleEvent told(this, QAccessible::Focus);
    told.setChild((current.row() + 1) * model_->columnCount());
    QAccessible::updateAccessibility(&told);
}

void ReportView::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Space && model_->hasChecks() && currentIndex().isValid()) {
        toggleCheck(currentIndex());
        return;
    }
    const QModelIndex before = currentIndex();
    QAbstractItemView::keyPressEvent(event);
    tellMoveFrom(before);
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter)
        emit rowsPicked();
}

/// Whichever button has marked a row, the row is told: a marked row that nobody knows of would
/// differ from what is shown beside the list.
void ReportView::mousePressEvent(QMouseEvent *event) {
    QAbstractItemView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid())
        emit rowClicked(index.row() + 1);
}

/// Rows can be drawn together until the button comes up.
void ReportView::mouseReleaseEvent(QMouseEvent *event) {
    QAbstractItemView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        emit rowsPicked();
}

void ReportView::mouseMoveEvent(QMouseEvent *event) {
    const QModelIndex before = currentIndex();
    QAbstractItemView::mouseMoveEvent(event);
    tellMoveFrom(before);
}

void ReportView::tellMoveFrom(const QModelIndex &before) {
    const QModelIndex now = currentIndex();
    if (now.isValid() && now.row() != before.row())
        emit rowClicked(now.row() + 1);
}

} // namespace boulix
