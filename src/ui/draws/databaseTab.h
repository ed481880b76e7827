// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/databasePage.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolBar;
class QToolButton;

namespace boulix {

class ElidedLabel;
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
    void goToRow(std::int64_t row, bool select) override;
    void refresh() override;

  protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void makeToolbar();
    QWidget *makeSearch();
    QToolButton *makeStep(const char *name, const char *icon, const QString &toolTip,
                          const QKeySequence &keys, void (databasePage::*step)());
    void makeSearchKeys();
    void layOut();
    void leaveSearch();
    void refreshButtons();

    databasePage &page_;
    QToolBar *tbarDB;
    QLineEdit *txtFind;
    QToolButton *cmdFindNext;
    QToolButton *cmdFindPrevious;
    ElidedLabel *lblFound;
    ReportView *lvwDBcomb;
    NumberBoardView *grdDB;
    QLabel *lblDBCombDesc;
    bool placed_ = false; ///< the list has once had its place on the screen
};

} // namespace boulix
