// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;

namespace boulix {

class NumberBall;
class UpDownField;
class winningsPage;

/// What the game wins in one draw.
class VerificationPanel : public QWidget {
    Q_OBJECT

  public:
    explicit VerificationPanel(winningsPage &page, QWidget *parent = nullptr);

    /// Where the labels of the ranks stand: titles, counts and amounts in columns 0 to 2, the
    /// first rank in row 1.
    QGridLayout &ranks() { return *ranks_; }
    void refresh();

  private:
    QWidget *makeDrawRow();
    QWidget *makeNumbers();
    QWidget *makeTotal();

    winningsPage &page_;
    UpDownField *draw_;
    QLabel *lblVerifComb;
    std::array<NumberBall *, 7> numbers_{}; // the complementary number is the last
    QGridLayout *ranks_ = nullptr;
    QLabel *lblVerWinTot;
};

} // namespace boulix
