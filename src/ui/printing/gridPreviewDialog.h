// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;
class QSpinBox;

namespace boulix {

class SlipView;
class frmPrintGridPreview;
class upDown;

/// The window in which the user chooses the grids and the options of a print run and sees each
/// slip before it is printed.
class GridPreviewDialog : public QDialog {
    Q_OBJECT

  public:
    explicit GridPreviewDialog(frmPrintGridPreview &rules, QWidget *parent = nullptr);
    ~GridPreviewDialog() override;

  protected:
    void reject() override;

  private:
    QWidget *makeToolbar();
    QWidget *makeRange();
    QWidget *makeOptions();
    QWidget *makeSubscription();
    QWidget *makeStatusBar();
    QRadioButton *makeOption(const QString &name, const QString &caption, QWidget *frame);
    QSpinBox *makeCounter(const QString &name, const QString &label, upDown &counter);
    void refresh();

    frmPrintGridPreview &rules_;
    SlipView *picGrid;
    QSpinBox *updnBeg;
    QSpinBox *updnEnd;
    QCheckBox *chkAbon = nullptr;
    QGroupBox *frameAbon = nullptr;
    std::array<QRadioButton *, 4> optWeek{};
    std::array<QLabel *, 2> panels_{};
};

} // namespace boulix
