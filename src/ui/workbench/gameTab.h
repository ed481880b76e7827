// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/gamePage.h"

#include <QWidget>

class QCheckBox;
class QTabWidget;
class QToolBar;

namespace boulix {

class ElidedLabel;
class GameDesignPanel;
class ReportView;
class WinningsPanels;
class winningsPage;

/// The page of the games on the screen: the user's game on the left, what is made of it and what
/// it won on the right.
class GameTab : public QWidget, public gameView {
    Q_OBJECT

  public:
    /// Shows `page` and `winnings`, which must live longer than the widget.
    GameTab(gamePage &page, winningsPage &winnings, QWidget *parent = nullptr);
    ~GameTab() override;

    std::vector<std::int64_t> selectedRows() const override;
    bool anyRowSelected() const override;
    void showSide(int index) override;
    void refresh() override;
    void runGameList(frmGameList &window) override;
    void runOptimiser(frmOptimiser &window) override;

  private:
    QToolBar *makeToolbar();
    void makePrintMenu();
    QWidget *makeGame();
    ElidedLabel *makeLine(const QString &name, const QString &title);
    void showButtons();
    QWidget *makeSides(winningsPage &winnings);
    void addSide(QWidget *side, const QString &caption);

    gamePage &page_;
    QToolBar *tbarGame; // made first: Tab goes through the controls in the order of their making
    ReportView *lvwGame;
    ElidedLabel *count_; ///< how many grids there are and what they cost
    ElidedLabel *file_;
    QCheckBox *chkUpdateList;
    QTabWidget *TabGame;
    GameDesignPanel *design_;
    WinningsPanels *winnings_;
};

} // namespace boulix
