// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QAbstractTableModel>

namespace boulix {

class reportList;

/// A list of the logic as Qt's views want it. It holds no text: each cell is asked for when it
/// is drawn. The list tells its changes, and all rows are then new.
class ReportListModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// Shows `list`, which must live longer than the model.
    explicit ReportListModel(reportList &list, QObject *parent = nullptr);
    ~ReportListModel() override;

    const reportList &list() const { return list_; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void listChanged();
    void takeSizes();
    QVariant alignmentOf(int column) const;
    QString textOf(int row, int column) const;

    reportList &list_;
    int rows_ = 0;
    int columns_ = 0;
};

} // namespace boulix
