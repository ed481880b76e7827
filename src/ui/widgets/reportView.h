// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractItemView>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

class QHeaderView;

namespace boulix {

class EmptyPlaceView;
class reportList;
class ReportListModel;
struct RowChecks;

/// A list in report view: a header, and rows that are selected as a whole. Nothing is kept for a
/// single row, so that fourteen million rows appear as quickly as ten. The column widths follow
/// the sample texts; what is selected can be copied, its columns parted by tabs.
class ReportView : public QAbstractItemView {
    Q_OBJECT

  public:
    /// Shows `list`, which must live longer than the view.
    explicit ReportView(reportList &list, QWidget *parent = nullptr);
    ~ReportView() override;

    QHeaderView *header() const { return header_; }
    /// Gives every row a check mark, which a click on it or the space bar turns on and off.
    void setChecks(RowChecks checks);
    /// The selected rows, counted from 1 at the top of the list as it is shown, ascending.
    std::vector<std::int64_t> selectedRows() const;
    /// Scrolls to the row, counted from 1; with `select` it becomes the selected one.
    void goToRow(std::int64_t row, bool select);
    /// Never becomes so narrow that a column is cut off, whatever font and style come.
    void keepAllColumnsVisible();
    /// The width at which all columns and the scroll bar have their room.
    int fullWidth() const;
    int rowHeight() const { return rowHeight_; }
    /// As if the user clicked the row, counted from 0.
    void pick(int row);
    /// Turns the check mark of a row on or off, whichever of its columns is meant.
    void toggleCheck(const QModelIndex &index);
    /// The widths that the user has given the columns, one stretch for each count of columns that
    /// the list has had; the last column takes what is left and is no part of it.
    std::vector<std::vector<int>> userWidths() const;
    void setUserWidths(const std::vector<std::vector<int>> &widths);

    QRect visualRect(const QModelIndex &index) const override;
    QModelIndex indexAt(const QPoint &point) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void keyboardSearch(const QString &text) override { emit typed(text); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// The user has clicked the row with any button, or gone to it with the keyboard. Counted
    /// from 1.
    void rowClicked(qint64 row);
    /// The user has clicked in the list, or pressed Space or Return: the selected rows are meant.
    void rowsPicked();
    /// The user has typed letters or digits while the list had the focus.
    void typed(const QString &text);
    /// The user has clicked the header of a column, counted from 0.
    void headerClicked(int column);

  protected:
    void reset() override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex &) const override { return false; }
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;

  private:
    static constexpr int cellMargin = 6; // left and right of a text

    void makeHeader();
    void makeCopyActions();
    void sizeColumns();
    void keepUserWidths(int column);
    int columnWidth(int column) const;
    void showSorting();
    void showEmptyPlace();
    void paintRow(QPainter &painter, int row);
    void paintGround(QPainter &painter, const QStyleOptionViewItem &option, int row) const;
    void paintBar(QPainter &painter, const QStyleOptionViewItem &option, int row) const;
    QColor textColor(const QStyleOptionViewItem &option) const;
    void paintText(QPainter &painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const;
    int rowCount() const;
    int rowAt(int y) const;
    int fullyVisibleRows() const;
    void tellMoveFrom(const QModelIndex &before);
    void copySelected() const;
    void copyAll() const;

    reportList &list_;
    std::unique_ptr<ReportListModel> model_;
    QHeaderView *header_;
    EmptyPlaceView *empty_;
    QStringList headers_;
    std::map<int, std::vector<int>> userWidths_; // by the count of columns
    bool sizing_ = false;                        // the columns take the widths of their samples
    int rowHeight_ = 1;
    int top_ = 0; ///< the first visible row when there were rows last
    bool allColumnsVisible_ = false;
};

} // namespace boulix
