// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

#include <array>

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace boulix {

class frmPrint;

/// The printer settings on the screen.
class PrintDialog : public QDialog {
    Q_OBJECT

  public:
    explicit PrintDialog(frmPrint &rules, QWidget *parent = nullptr);

  protected:
    void reject() override;

  private:
    QWidget *makePrinterRow();
    QWidget *makeDirectionFrame();
    QWidget *makeOffsetFrame();
    QWidget *makeButtons();
    QLineEdit *makeOffset(const QString &name, const std::string &value);
    void confirm();

    frmPrint &rules_;
    QComboBox *cmbPrinter;
    QButtonGroup *optPrintDir;
    QLineEdit *txtOffsetX;
    QLineEdit *txtOffsetY;
};

} // namespace boulix
