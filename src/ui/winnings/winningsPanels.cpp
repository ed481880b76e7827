// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/winningsPanels.h"

#include "ui/games/randomCombDialog.h"
#include "ui/widgets/handsOff.h"
#include "ui/widgets/qtText.h"
#include "ui/winnings/chancesDialog.h"
#include "ui/winnings/performancePanel.h"
#include "ui/winnings/rankTable.h"
#include "ui/winnings/reportPanel.h"
#include "ui/winnings/verificationPanel.h"
#include "ui/winnings/winDateDialog.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace boulix {

WinningsPanels::WinningsPanels(winningsPage &page, QWidget *parent)
    : QObject(parent), page_(page), parent_(parent),
      verification_(new VerificationPanel(page, parent)),
      performance_(new PerformancePanel(page, parent)), report_(new ReportPanel(page, parent)) {
    makeLabels();
    page_.view(this);
    refresh();
}

WinningsPanels::~WinningsPanels() {
    page_.view(nullptr);
}

void WinningsPanels::makeLabels() {
    const auto make = [this](const char *name, Labels &labels, Qt::Alignment side) {
        for (std::size_t i = 0; i < labels.size(); ++i) {
            labels[i] = new QLabel(parent_);
            labels[i]->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(i));
            labels[i]->setAlignment(side | Qt::AlignVCenter);
        }
    };
    make("lblVerWinTitle", lblVerWinTitle, Qt::AlignLeft);
    make("lblVerComb", lblVerComb, Qt::AlignRight);
    make("lblVerPrice", lblVerPrice, Qt::AlignRight);
}

QWidget *WinningsPanels::verification() const {
    return verification_;
}

QWidget *WinningsPanels::performance() const {
    return performance_;
}

QWidget *WinningsPanels::report() const {
    return report_;
}

QGridLayout &WinningsPanels::tableOf(winningsPage::SubTab tab) const {
    switch (tab) {
    case winningsPage::performance:
        return performance_->ranks();
    case winningsPage::report:
        return report_->ranks();
    default:
        return verification_->ranks();
    }
}

void WinningsPanels::place(const Labels &labels, QGridLayout &table, int column) {
    if (labels.front()->parentWidget() == table.parentWidget())
        return;
    for (std::size_t i = 0; i < labels.size(); ++i)
        table.addWidget(labels[i], rankTable::rowOf(i), column);
}

void WinningsPanels::refresh() {
    place(lblVerWinTitle, tableOf(page_.titleFrame()), 0);
    place(lblVerComb, tableOf(page_.resultFrame()), 1);
    place(lblVerPrice, tableOf(page_.resultFrame()), 2);
    for (std::size_t i = 0; i < lblVerWinTitle.size(); ++i) {
        lblVerWinTitle[i]->setText(toQt(page_.lblVerWinTitle[i]));
        lblVerComb[i]->setText(toQt(page_.lblVerComb[i]));
        lblVerPrice[i]->setText(toQt(page_.lblVerPrice[i]));
    }
    keepRoomForTitles();
    verification_->refresh();
    performance_->refresh();
    report_->refresh();
    keepHandsOff();
}

/// On each panel, whichever the titles stand on now: a visit to a sub-tab makes no window larger.
void WinningsPanels::keepRoomForTitles() {
    int widest = 0;
    for (const QLabel *title : lblVerWinTitle)
        widest = std::max(widest, title->sizeHint().width());
    for (const auto tab :
         {winningsPage::verification, winningsPage::performance, winningsPage::report})
        tableOf(tab).setColumnMinimumWidth(0, widest);
}

/// A check runs the event queue: meanwhile nobody may change the game that it walks through.
void WinningsPanels::keepHandsOff() {
    if (!page_.busy())
        handsOff_.reset();
    else if (!handsOff_)
        handsOff_ = std::make_unique<HandsOff>(*parent_->window());
}

void WinningsPanels::runRandomComb(frmRandomComb &dialog) {
    RandomCombDialog(dialog, parent_->window()).exec();
}

void WinningsPanels::runWinDate(frmWinDate &window) {
    WinDateDialog(window, parent_->window()).exec();
}

void WinningsPanels::runChances(frmChances &window) {
    ChancesDialog(window, parent_->window()).exec();
}

} // namespace boulix
