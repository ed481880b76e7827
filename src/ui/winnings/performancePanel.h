// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QWidget>

#include <array>

class QGridLayout;
class QProgressBar;
class QPushButton;

namespace boulix {

class ElidedLabel;
class winningsPage;

/// What the game would have won over the whole base, or wins over random draws.
class PerformancePanel : public QWidget {
    Q_OBJECT

  public:
    explicit PerformancePanel(winningsPage &page, QWidget *parent = nullptr);

    /// Where the labels of the ranks stand, as on the verification panel.
    QGridLayout &ranks() { return *ranks_; }
    void refresh();

  private:
    QWidget *makeToolbar();
    void addDateButtons();
    QWidget *makeBalance();
    void showProgress();

    winningsPage &page_;
    QProgressBar *pgrScanDB;
    QGridLayout *ranks_ = nullptr;
    std::array<QPushButton *, 11> cmdPerfDate{};
    std::array<ElidedLabel *, 3> balance_{}; ///< won, stake, rest
    QTimer progress_;
};

} // namespace boulix
