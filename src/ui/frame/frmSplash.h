// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace boulix {

struct SplashTexts;

/// The splash window: it stands on the screen while the program starts. Where the start fails it
/// stays, and the user can then close it.
class frmSplash : public QWidget {
    Q_OBJECT

  public:
    explicit frmSplash(const SplashTexts &texts);

    /// The start has failed: a button appears that closes the window, and with it the program.
    void offerToClose();

  protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    QLabel *makeLabel(const QString &name, const std::string &text, qreal size, bool bold = false);
    void layOut(const SplashTexts &texts);
    void takeSize();

    QPushButton *cmdClose;
};

} // namespace boulix
