// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/reportList.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace boulix {

void reportList::columns(std::vector<ReportColumn> columns) {
    columns_ = std::move(columns);
    clear();
}

void reportList::rows(std::int64_t count, Cell cell) {
    cell_ = std::move(cell);
    count_ = count;
    sortColumn_ = -1;
    descending_ = false;
    order_.clear();
    marked_ = {};
    pointed_ = -1;
    bars_.reset();
    outdated_ = false;
    notify();
}

void reportList::whenEmpty(EmptyPlace place) {
    whenEmpty_ = std::move(place);
    if (count_ == 0)
        notify();
}

void reportList::clear() {
    rows(0, {});
}

void reportList::sortByText(int column, bool descending) {
    sortColumn_ = column;
    descending_ = descending;
    const auto count = static_cast<std::size_t>(count_);
    std::vector<std::string> keys(count);
    for (std::size_t row = 0; row < count; ++row)
        keys[row] = cell_(static_cast<std::int64_t>(row), column);
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        return descending ? keys[b] < keys[a] : keys[a] < keys[b];
    });
    order_ = std::move(order);
    notify();
}

void reportList::sortOrReverse(int column) {
    sortByText(column, column == sortColumn_ && !descending_);
}

void reportList::textsChanged() {
    if (sortColumn_ >= 0)
        sortByText(sortColumn_, descending_);
    else
        notify();
}

std::string reportList::text(std::int64_t row, int column) const {
    return cell_(sourceRow(row), column);
}

std::int64_t reportList::sourceRow(std::int64_t row) const {
    return order_.empty() ? row : order_[static_cast<std::size_t>(row)];
}

void reportList::marks(std::function<bool(std::int64_t row)> marked) {
    marked_ = std::move(marked);
    notifyLook();
}

bool reportList::isMarked(std::int64_t row) const {
    return marked_ && marked_(sourceRow(row));
}

void reportList::pointTo(std::int64_t row) {
    pointed_ = row;
    notifyLook();
}

bool reportList::isPointedAt(std::int64_t row) const {
    return pointed_ >= 0 && sourceRow(row) == pointed_;
}

void reportList::bars(ReportBars bars) {
    bars_ = std::move(bars);
    notify(); // the texts of the column give way
}

double reportList::barOf(std::int64_t row) const {
    if (!bars_ || bars_->largest <= 0)
        return 0;
    return std::clamp(bars_->value(sourceRow(row)) / bars_->largest, 0.0, 1.0);
}

void reportList::outdated(bool outdated) {
    if (outdated == outdated_)
        return;
    outdated_ = outdated;
    notifyLook();
}

void reportList::notifyLook() const {
    if (lookChanged)
        lookChanged();
}

void reportList::notify() const {
    if (changed)
        changed();
}

} // namespace boulix
