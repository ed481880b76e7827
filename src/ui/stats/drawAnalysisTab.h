// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/drawAnalysisPage.h"

#include <QWidget>

#include <array>

class QLabel;
class QListWidget;

namespace boulix {

class NumberBall;
class ReportView;
class UpDownField;

/// The page of the analysis by draw on the screen.
class DrawAnalysisTab : public QWidget, public drawAnalysisView {
    Q_OBJECT

  public:
    /// Shows `page`, which must live longer than the tab.
    explicit DrawAnalysisTab(drawAnalysisPage &page, QWidget *parent = nullptr);
    ~DrawAnalysisTab() override;

    void refresh() override;

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    QWidget *makeDrawRow();
    QWidget *makeBalls();
    void fillAnalyses();
    void setBallOrder();
    void tellAnalyses();

    drawAnalysisPage &page_;
    UpDownField *draw_;
    QLabel *lblTirInfo;
    std::array<NumberBall *, 7> lblNumTir{};
    QListWidget *lstStatTirType;
    ReportView *lvwTirStat;
};

} // namespace boulix
