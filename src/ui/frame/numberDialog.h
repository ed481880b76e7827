// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace boulix {

class frmNbrSelector;
class NumberBoardView;

/// The number dialog on the screen, from showing it to its confirmation or cancelling.
class NumberDialog : public QDialog {
    Q_OBJECT

  public:
    /// Shows `dialog`, which must live longer than the window.
    explicit NumberDialog(frmNbrSelector &dialog, QWidget *parent = nullptr);

    /// Escape and the close box are clicks on "Annuler".
    void reject() override;

  private:
    QPushButton *makeButton(const QString &name, const QString &caption);
    void makeLine();
    QLayout *makeSide();
    void layOut();
    void typeNumbers(const QString &text);
    void showStatus();
    void hideOnceTagged();

    frmNbrSelector &dialog_;
    NumberBoardView *grd;
    QLabel *lblStatus;
    QLabel *lblWanted;
    QLabel *lblRefused;
    QLineEdit *txtNumbers;
    QPushButton *cmdOK;
    QPushButton *cmdCancel;
    QPushButton *cmdClear;
    QPushButton *cmdSelectAll;
    bool typing_ = false; ///< the line is the source of the marks: it is not written over
};

} // namespace boulix
