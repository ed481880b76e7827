// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>

#include <cstdint>
#include <functional>

namespace boulix {

class reportList;

/// Check marks in front of the rows of a list. Rows are counted from 0, as they are shown.
struct RowChecks {
    std::function<bool(std::int64_t row)> checked;
    std::function<void(std::int64_t row, bool on)> check; ///< the user has clicked the mark
};

/// A list of the logic as Qt's views want it. It holds no text: each cell is asked for when it
/// is drawn. The list tells its changes, and all rows are then new.
class ReportListModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// Shows `list`, which must live longer than the model.
    explicit ReportListModel(reportList &list, QObject *parent = nullptr);
    ~ReportListModel() override;

    const reportList &list() const { return list_; }
    /// Gives every row a check mark.
    void setChecks(RowChecks checks);
    bool hasChecks() const { return static_cast<bool>(checks_.checked); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void listChanged();
    void takeSizes();
    QVariant alignmentOf(int column) const;
    QString textOf(int row, int column) const;
    bool bearsCheck(const QModelIndex &index) const;

    reportList &list_;
    RowChecks checks_;
    int rows_ = 0;
    int columns_ = 0;
};

} // namespace boulix
