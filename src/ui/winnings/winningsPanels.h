// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/winningsPage.h"

#include <QObject>

#include <array>
#include <memory>

class QGridLayout;
class QLabel;
class QWidget;

namespace boulix {

class HandsOff;
class PerformancePanel;
class ReportPanel;
class VerificationPanel;

/// The three sub-tabs of the winnings. The labels of the ranks exist once and stand on the panel
/// that showed them last.
class WinningsPanels : public QObject, public winningsView {
    Q_OBJECT

  public:
    /// Shows `page`, which must live longer than the panels; they become children of `parent`.
    WinningsPanels(winningsPage &page, QWidget *parent);
    ~WinningsPanels() override;

    QWidget *verification() const;
    QWidget *performance() const;
    QWidget *report() const;

    void refresh() override;
    void runRandomComb(frmRandomComb &dialog) override;
    void runWinDate(frmWinDate &window) override;
    void runChances(frmChances &window) override;

  private:
    using Labels = std::array<QLabel *, winningsPage::ranks>;

    void makeLabels();
    QGridLayout &tableOf(winningsPage::SubTab tab) const;
    static void place(const Labels &labels, QGridLayout &table, int column);
    void keepRoomForTitles();
    void keepHandsOff();

    winningsPage &page_;
    QWidget *parent_;
    VerificationPanel *verification_;
    PerformancePanel *performance_;
    ReportPanel *report_;
    Labels lblVerWinTitle{};
    Labels lblVerComb{};
    Labels lblVerPrice{};
    std::unique_ptr<HandsOff> handsOff_; ///< while a check is under way
};

} // namespace boulix
