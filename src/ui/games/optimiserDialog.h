// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <array>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace boulix {

class GridCurve;
class frmOptimiser;

/// The window that searches for smaller systems.
class OptimiserDialog : public QDialog {
    Q_OBJECT

  public:
    /// Shows `rules`, which must live longer than the dialog.
    explicit OptimiserDialog(frmOptimiser &rules, QWidget *parent = nullptr);
    ~OptimiserDialog() override;

    /// Escape and the window's own button: a search ends first.
    void reject() override;

  private:
    QWidget *makeQuestion();
    QWidget *makeFigures();
    QHBoxLayout *makeButtons();
    QPushButton *makeButton(const char *name, const char *caption, const char *toolTip);
    void refresh();

    frmOptimiser &rules_;
    QComboBox *cmbGuarantee = nullptr;
    std::array<QLabel *, 7> figures_{};
    GridCurve *curve_ = nullptr;
    QLabel *lblState = nullptr;
    QPushButton *cmdStart = nullptr;
    QPushButton *cmdStop = nullptr;
    QPushButton *cmdUse = nullptr;
};

} // namespace boulix
