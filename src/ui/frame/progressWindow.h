// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace boulix {

class frmProgress;
struct progressBar;

/// The progress window: it shows the state that a long computation keeps, and takes the click on
/// its cancel button. Its close box and Escape are clicks on that button, too.
class ProgressWindow : public QWidget {
    Q_OBJECT

  public:
    /// Follows `progress`, which must live longer than the window.
    explicit ProgressWindow(frmProgress &progress, QWidget *parent = nullptr);

    /// Shows the state as it is now.
    void refresh();

  protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    QProgressBar *makeBar(const QString &name, const QString &meaning);
    static void showBar(QProgressBar &bar, const progressBar &state);
    void cancel();

    frmProgress &progress_;
    QLabel *lblInfo;
    QProgressBar *ProgressBar2;
    QProgressBar *ProgressBar;
    QPushButton *cmdCancel;
};

} // namespace boulix
