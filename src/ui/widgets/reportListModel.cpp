// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/reportListModel.h"

#include "core/failure.h"
#include "sill/reportList.h"
#include "ui/widgets/qtText.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace boulix {

ReportListModel::ReportListModel(reportList &list, QObject *parent)
    : QAbstractTableModel(parent), list_(list) {
    list_.changed = [this] { listChanged(); };
    takeSizes();
}

ReportListModel::~ReportListModel() {
    list_.changed = nullptr;
}

void ReportListModel::setChecks(RowChecks checks) {
    beginResetModel();
    checks_ = std::move(checks);
    endResetModel();
}

/// The mark stands in front of the first text.
bool ReportListModel::bearsCheck(const QModelIndex &index) const {
    return hasChecks() && index.isValid() && index.column() == 0;
}

Qt::ItemFlags ReportListModel::flags(const QModelIndex &index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    flags.setFlag(Qt::ItemIsUserCheckable, bearsCheck(index));
    return flags;
}

bool ReportListModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (role != Qt::CheckStateRole || !bearsCheck(index))
        return false;
    checks_.check(index.row(), value.toInt() == Qt::Checked);
    emit dataChanged(index, index, {role});
    return true;
}

int ReportListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : rows_;
}

int ReportListModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant ReportListModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return textOf(index.row(), index.column());
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(index.column());
    if (role == Qt::CheckStateRole && bearsCheck(index))
        return int(checks_.checked(index.row()) ? Qt::Checked : Qt::Unchecked);
    return {};
}

QVariant ReportListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columns_)
        return {};
    if (role == Qt::DisplayRole)
        return toQt(list_.columns()[static_cast<std::size_t>(section)].header);
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(section);
    return {};
}

void ReportListModel::listChanged() {
    beginResetModel();
    takeSizes();
    endResetModel();
}

void ReportListModel::takeSizes() {
    // Views count in int; no list of the program comes near that limit.
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    rows_ = static_cast<int>(std::min(list_.rowCount(), most));
    columns_ = static_cast<int>(list_.columns().size());
}

QVariant ReportListModel::alignmentOf(int column) const {
    const bool barred = list_.bars() && list_.bars()->column == column; // they begin at its left
    const bool centred = !barred && list_.columns()[static_cast<std::size_t>(column)].centred;
    return int((centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
}

/// A row that cannot be told stays empty: drawing is no place for a failure to travel from.
QString ReportListModel::textOf(int row, int column) const {
    try {
        return toQt(list_.text(row, column));
    } catch (const RuntimeFailure &) {
        return {};
    }
}

} // namespace boulix
