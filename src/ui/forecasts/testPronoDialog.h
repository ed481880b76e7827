// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QToolBar;

namespace boulix {

class ReportView;
class UpDownView;
class frmTestProno;

/// The window that tests the forecast rules on the past.
class TestPronoDialog : public QDialog {
    Q_OBJECT

  public:
    explicit TestPronoDialog(frmTestProno &rules, QWidget *parent = nullptr);
    ~TestPronoDialog() override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void makeToolbar();
    QLineEdit *makeBox(const QString &name);
    QWidget *makeQuestions();
    void connectControls();
    void refresh();

    frmTestProno &rules_;
    QToolBar *toolBar = nullptr;
    QLineEdit *txtNumTir;
    UpDownView *spnTir;
    QLabel *lblDescTir;
    QLineEdit *txtTirBefore;
    QLineEdit *txtTirAfter;
    QLineEdit *txtNbrCount;
    ReportView *lvWResult;
};

} // namespace boulix
