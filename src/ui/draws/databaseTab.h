// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/databasePage.h"

#include <QWidget>

class QLabel;
class QToolBar;

namespace boulix {

class NumberBoardView;
class ReportView;

/// The page of the draw base on the screen.
class DatabaseTab : public QWidget, public databaseView {
    Q_OBJECT

  public:
    /// Shows `page`, which must live longer than the widget.
    explicit DatabaseTab(databasePage &page, QWidget *parent = nullptr);
    ~DatabaseTab() override;

    std::vector<std::int64_t> selectedRows() const override;
    void refresh() override;

  private:
    void makeToolbar();
    void layOut();

    databasePage &page_;
    QToolBar *tbarDB;
    ReportView *lvwDBcomb;
    NumberBoardView *grdDB;
    QLabel *lblDBCombDesc;
};

} // namespace boulix
