// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <array>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QRadioButton;

namespace boulix {

class PlotView;
class frmGraph;

/// The window with the curve of the current statistic and the panel of its settings.
class GraphWindow : public QWidget {
    Q_OBJECT

  public:
    /// Shows `rules`, which must live longer than the window.
    explicit GraphWindow(frmGraph &rules, QWidget *parent = nullptr);
    ~GraphWindow() override;

  signals:
    /// The user closes the window by its close box.
    void closedByUser();

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    QWidget *makePanel();
    QWidget *makeRange();
    QWidget *makeLimits();
    void refresh();

    frmGraph &rules_;
    PlotView *plotPane_;
    QComboBox *cmbGraphType;
    QCheckBox *chkShowAxes;
    QCheckBox *chkShowGrid;
    QRadioButton *optAutoRange;
    QRadioButton *optManualRange;
    QGroupBox *frameManualRange;
    std::array<QLineEdit *, 4> txtLimit{};
};

} // namespace boulix
