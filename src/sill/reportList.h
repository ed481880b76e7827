// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/emptyPlace.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace boulix {

/// A column of a list in report view.
struct ReportColumn {
    std::string header;
    std::string sample; ///< a text as wide as the column wants to be; empty: the header decides
    bool centred = false;
};

/// A bar in each row of a column, so that its numbers compare at a glance.
struct ReportBars {
    int column = 0;
    std::function<double(std::int64_t row)> value; ///< of the computed row; none below 0
    double largest = 0;                            ///< fills the column
    double mean = 0;                               ///< marked in each row
};

/// What a list in report view shows. A cell's text is asked for when it is drawn, so a list of
/// millions of rows appears at once; its order can follow the text of a column.
class reportList {
  public:
    using Cell = std::function<std::string(std::int64_t row, int column)>;

    /// New columns, no rows, no sorting.
    void columns(std::vector<ReportColumn> columns);
    const std::vector<ReportColumn> &columns() const { return columns_; }

    /// New rows, in computed order: `cell` gives the text of row 0 to `count` - 1.
    void rows(std::int64_t count, Cell cell);
    /// No rows any more.
    void clear();
    std::int64_t rowCount() const { return count_; }
    /// What stands in the list while it has no rows; at first nothing.
    void whenEmpty(EmptyPlace place);
    const EmptyPlace &whenEmpty() const { return whenEmpty_; }

    /// Orders the rows by the text of `column`; equal texts keep their order.
    void sortByText(int column, bool descending = false);
    /// Orders the rows ascending by `column`, or, where they stand so, descending.
    void sortOrReverse(int column);
    /// Some texts have changed: a sorted list is put in order again.
    void textsChanged();
    /// The column of the sort key, -1 while the rows stand in computed order.
    int sortColumn() const { return sortColumn_; }
    bool descending() const { return descending_; }

    /// The text of a cell at the place `row` of the list as it is shown.
    std::string text(std::int64_t row, int column) const;
    /// The computed row shown at the place `row`.
    std::int64_t sourceRow(std::int64_t row) const;

    /// Rows that stand out quietly, without being selected: `marked` is asked with the computed
    /// row. New rows have no marks.
    void marks(std::function<bool(std::int64_t row)> marked);
    bool isMarked(std::int64_t row) const; ///< of the list as it is shown
    /// The computed row that is shown in full beside the list, -1 for none. New rows: none.
    void pointTo(std::int64_t row);
    bool isPointedAt(std::int64_t row) const; ///< of the list as it is shown

    /// Bars in a column, until there are new rows.
    void bars(ReportBars bars);
    const std::optional<ReportBars> &bars() const { return bars_; }
    /// How much of the column the bar of a row fills, 0 to 1; the row as the list is shown.
    double barOf(std::int64_t row) const;
    /// The rows are not those that are meant by now, and look so. New rows are.
    void outdated(bool outdated);
    bool outdated() const { return outdated_; }

    /// Called after any change of columns, rows or order.
    std::function<void()> changed;
    /// Called after a change of how rows look; they and their order stay.
    std::function<void()> lookChanged;

  private:
    void notify() const;
    void notifyLook() const;

    std::vector<ReportColumn> columns_;
    Cell cell_;
    std::function<bool(std::int64_t)> marked_;
    std::optional<ReportBars> bars_;
    bool outdated_ = false;
    std::int64_t pointed_ = -1;
    std::int64_t count_ = 0;
    EmptyPlace whenEmpty_;
    int sortColumn_ = -1;
    bool descending_ = false;
    std::vector<std::uint32_t> order_; // empty while unsorted
};

} // namespace boulix
