// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/forecastPage.h"

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;
class QLineEdit;
class QToolBar;

namespace boulix {

class ReportView;

/// The page of the forecasts on the screen.
class ForecastTab : public QWidget, public forecastView {
    Q_OBJECT

  public:
    /// Shows `page`, which must live longer than the widget.
    explicit ForecastTab(forecastPage &page, QWidget *parent = nullptr);
    ~ForecastTab() override;

    void refresh() override;
    void runTestWindow(frmTestProno &window) override;

  private:
    /// A parameter of a rule: its caption, its box and the text that the box stands for.
    struct Parameter {
        QLabel *caption = nullptr;
        QLineEdit *box = nullptr;
    };
    using Parameters = std::array<Parameter, forecastPage::ruleCount>;

    void makeToolbar();
    void makeList();
    QWidget *makeRules();
    void addRule(QGridLayout &grid, int row, std::size_t rule);
    Parameter makeParameter(const QString &name, const QString &caption, const QString &meaning,
                            const char *holds, std::size_t rule, std::string &text);
    void layOut();

    forecastPage &page_;
    QToolBar *tBarPronos = nullptr;
    ReportView *lvwPronoResults;
    std::array<QLabel *, forecastPage::ruleCount> lblPronoTitle{};
    Parameters n_;
    Parameters p_;
    Parameters points_;
};

} // namespace boulix
