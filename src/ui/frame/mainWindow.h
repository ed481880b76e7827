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

class ElidedLabel;

/// What the main window shows without knowing it: the rooms of the pages stand above the frame.
struct MainParts {
    using MakePage = QWidget *(*)(frmMain &main, QWidget *parent);
    using RunDialog = void (*)(QWidget *parent);

    std::array<MakePage, frmMain::tabCount> pages; ///< in the order of the tabs
    RunDialog runGridParam;
    RunDialog runGraphParam;
};

/// The main window on the screen: menus, six pages, status bar. What they say and do stands in
/// `frmMain`.
class MainWindow : public QMainWindow, public frmMainView {
    Q_OBJECT

  public:
    /// Shows `main`, which must live longer than the window and has been loaded.
    MainWindow(frmMain &main, const MainParts &parts);
    ~MainWindow() override;

    void refresh() override;
    void goToSide(int side) override;
    /// Opens the files once the events under way are done and no dialog is up any more.
    void openFiles(const QStringList &fullNames);
    /// Says behind the panels of the status bar what was done.
    void announce(const QString &text);

  protected:
    void closeEvent(QCloseEvent *event) override;
    /// Files may be dropped anywhere on the window, unless a dialog or a long job is up.
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

  private:
    void makePages();
    void openAsLeft();
    void keepMemory();
    void showRecentGames(QMenu &file);
    bool isFree() const;
    void openWaiting();
    void makeMenus();
    void makeEditMenu();
    void showUndo();
    void makeStatusBar();
    QAction *addEntry(QMenu &menu, const QString &name, const QString &caption,
                      const QString &icon);
    void showAbout();

    frmMain &main_;
    MainParts parts_;
    QStringList waiting_; ///< files to be opened
    QTabWidget *TabStrip;
    std::array<QLabel *, 2> panels_{};
    ElidedLabel *announcement_ = nullptr;
    QAction *undo_ = nullptr;
    QAction *redo_ = nullptr;
};

} // namespace boulix
