// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/reportListModel.h"

#include "core/failure.h"
#include "core/reportList.h"
#include "ui/qtText.h"

#include <algorithm>
#include <limits>

namespace boulix {

ReportListModel::ReportListModel(reportList &list, QObject *parent)
    : QAbstractTableModel(parent), list_(list) {
    list_.changed = [this] { listChanged(); };
    takeSizes();
}

ReportListModel::~ReportListModel() {
    list_.changed = nullptr;
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
    const bool centred = list_.columns()[static_cast<std::size_t>(column)].centred;
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
