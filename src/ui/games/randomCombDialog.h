// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QHBoxLayout;

namespace boulix {

class frmRandomComb;

/// The dialog that makes random draws to test a game on.
class RandomCombDialog : public QDialog {
    Q_OBJECT

  public:
    explicit RandomCombDialog(frmRandomComb &rules, QWidget *parent = nullptr);

  protected:
    void reject() override;

  private:
    QHBoxLayout *makeCountRow();
    QHBoxLayout *makeButtons();

    frmRandomComb &rules_;
};

} // namespace boulix
