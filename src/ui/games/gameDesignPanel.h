// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QTabBar;
class QToolBar;

namespace boulix {

class ElidedLabel;
class NumberBoardView;
class ReportView;
class SystemMakerPanel;
class gameDesign;

/// The side of the game page on which grids are made. Its tabs share the list, the board and the
/// toolbar: each tab shows those of the controls that it has.
class GameDesignPanel : public QWidget {
    Q_OBJECT

  public:
    /// Shows `design`, which must live longer than the panel.
    explicit GameDesignPanel(gameDesign &design, QWidget *parent = nullptr);

    void refresh();
    /// To be called after the sub-tab has changed. Qt gives the focus to the first control of a
    /// page; where that is the strip of the methods, the next one takes it.
    void passFocusOn();

  private:
    void makeTabs();
    void makeToolbar();
    QWidget *makeSystemChoice();
    QWidget *makeRandomCount();
    QWidget *makeSources();
    QWidget *makeGrids();
    QWidget *makeList();
    void showGameTypes();
    void showControlsOfTab();
    void focusFirstControl();

    gameDesign &design_;
    QTabBar *tabGameDesign;
    QToolBar *tbarGameDef = nullptr;
    QWidget *systemChoice_ = nullptr;
    QComboBox *cmbGameType = nullptr;
    QWidget *randomCount_ = nullptr;
    QLineEdit *txtNrandomGrid = nullptr;
    QWidget *sources_ = nullptr;
    std::array<QCheckBox *, 3> chkSelect{};
    SystemMakerPanel *systems_;
    QWidget *grids_ = nullptr;
    NumberBoardView *grdGameDef;
    ReportView *lvwGameDef = nullptr;
    ElidedLabel *count_; ///< how many grids the list shows and what they cost
};

} // namespace boulix
