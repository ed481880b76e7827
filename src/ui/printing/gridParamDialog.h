// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QLineEdit;

namespace boulix {

class frmGridParam;

/// The price of a grid and the money unit on the screen.
class GridParamDialog : public QDialog {
    Q_OBJECT

  public:
    explicit GridParamDialog(frmGridParam &rules, QWidget *parent = nullptr);

  protected:
    void reject() override;

  private:
    void layOut();
    void confirm();

    frmGridParam &rules_;
    QLineEdit *txtUnit;
    QLineEdit *txtPrice;
};

} // namespace boulix
