// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/frmGameList.h"

#include <QDialog>

#include <array>

class QLabel;
class QToolBar;

namespace boulix {

class ReportView;

/// The window that lists the systems of the user.
class GameListDialog : public QDialog, public gameListView {
    Q_OBJECT

  public:
    explicit GameListDialog(frmGameList &rules, QWidget *parent = nullptr);
    ~GameListDialog() override;

    void refresh() override;
    void runDisplayGame(frmDisplayGame &window) override;

  private:
    QToolBar *makeToolbar();
    QWidget *makeDescription();

    frmGameList &rules_;
    QToolBar *tbar; // made first: Tab goes through the controls in the order of their making
    ReportView *lvwGame;
    std::array<QLabel *, 4> values_{};
};

} // namespace boulix
