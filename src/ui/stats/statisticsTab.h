// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/statisticsPage.h"

#include <QPointer>
#include <QWidget>

class QAction;
class QGroupBox;
class QLabel;
class QMenu;
class QToolBar;

namespace boulix {

class GraphWindow;
class NumberBoardView;
class ReportView;
class UpDownField;

/// The statistics page on the screen.
class StatisticsTab : public QWidget, public statisticsView {
    Q_OBJECT

  public:
    /// Shows `page`, which must live longer than the tab.
    explicit StatisticsTab(statisticsPage &page, QWidget *parent = nullptr);
    ~StatisticsTab() override;

    std::vector<std::int64_t> selectedRows() const override;
    void refresh() override;
    void openGraph(frmGraph &graph) override;
    modStats::GraphWindowPos closeGraph() override;

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    QToolBar *makeToolbar();
    void makeTypeMenu();
    void makeRange();
    void connectList();
    void layOut();
    QAction *button(int number) const;

    statisticsPage &page_;
    QToolBar *tbarStats; // the Tab key goes through the controls as they are made
    QMenu *types_;
    QLabel *lblStatType;
    QLabel *lblStatDesc;
    ReportView *lvwStatsResult;
    QLabel *lblStatsStatus;
    QLabel *lblStatsNote;
    QGroupBox *frameStatsRange;
    UpDownField *start_;
    UpDownField *end_;
    NumberBoardView *grdStatNbrSelector;
    QLabel *lblStatStartDate;
    QLabel *lblStatEndDate;
    QPointer<GraphWindow> graph_;
};

} // namespace boulix
