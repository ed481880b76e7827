// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/frmMain.h"

#include <QMainWindow>

#include <array>

class QLabel;
class QMenu;
class QTabWidget;

namespace boulix {

/// The main window on the screen: menus, six pages, status bar. What they say and do stands in
/// `frmMain`.
class MainWindow : public QMainWindow, public frmMainView {
    Q_OBJECT

  public:
    /// Shows `main`, which must live longer than the window and has been loaded.
    explicit MainWindow(frmMain &main);
    ~MainWindow() override;

    void refresh() override;

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    void makePages();
    QWidget *makePage(int index);
    void makeMenus();
    void makeStatusBar();
    QAction *addEntry(QMenu &menu, const QString &name, const QString &caption,
                      const QString &icon);
    void showAbout();
    void showGridParam();
    void showGraphParam();

    frmMain &main_;
    QTabWidget *TabStrip;
    std::array<QLabel *, 2> panels_{};
};

} // namespace boulix
