// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <array>

class QGridLayout;
class QLineEdit;

namespace boulix {

class winningsPage;

/// The prize table: what one winning grid pays at each rank.
class ReportPanel : public QWidget {
    Q_OBJECT

  public:
    explicit ReportPanel(winningsPage &page, QWidget *parent = nullptr);

    /// Where the titles of the ranks stand, as on the verification panel.
    QGridLayout &ranks() { return *ranks_; }
    void refresh();

  private:
    QWidget *makeToolbar();
    void addBoxes();

    winningsPage &page_;
    QGridLayout *ranks_ = nullptr;
    std::array<QLineEdit *, 11> txtRapPrice{};
};

} // namespace boulix
