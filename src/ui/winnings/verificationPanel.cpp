// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/verificationPanel.h"

#include "sill/reports.h"
#include "ui/style/theme.h"
#include "ui/widgets/numberBall.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/upDownField.h"
#include "ui/winnings/rankTable.h"
#include "workbench/winningsPage.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace boulix {

namespace {

const QColor numberGround(0xe8, 0xee, 0xea);
const QColor complementaryGround(0xf3, 0xd9, 0x9b);

} // namespace

VerificationPanel::VerificationPanel(winningsPage &page, QWidget *parent)
    : QWidget(parent), page_(page),
      draw_(new UpDownField(page.updVerifComb, QStringLiteral("txtVerifComb"),
                            QStringLiteral("updVerifComb"), this)),
      lblVerifComb(new QLabel(this)), lblVerWinTot(new QLabel(this)) {
    lblVerifComb->setObjectName(QStringLiteral("lblVerifComb"));
    lblVerWinTot->setObjectName(QStringLiteral("lblVerWinTot"));
    auto *table = new QWidget(this);
    ranks_ = rankTable::make(*table, {QStringLiteral("Rang"), QStringLiteral("Grilles gagnantes"),
                                      QStringLiteral("Gains")});
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(makeDrawRow());
    column->addWidget(makeNumbers());
    column->addWidget(table);
    column->addWidget(makeTotal());
    column->addStretch();
    setFocusProxy(draw_);
}

QWidget *VerificationPanel::makeDrawRow() {
    connect(draw_, &UpDownField::boxLeft, this, [this](const QString &text) {
        runCommand([&] { page_.leaveVerifComb(fromQt(text)); });
    });
    lblVerifComb->setFont(rankTable::strong(font()));
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap);
    auto *caption = new QLabel(QStringLiteral("Tira&ge"), row);
    caption->setBuddy(draw_);
    layout->addWidget(caption);
    layout->addWidget(draw_);
    layout->addSpacing(theme::gap);
    layout->addWidget(lblVerifComb);
    layout->addStretch();
    return row;
}

QWidget *VerificationPanel::makeNumbers() {
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap / 2);
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
        numbers_[i] = new NumberBall(row);
        numbers_[i]->onlyShow();
        const bool drawn = i + 1 < numbers_.size();
        numbers_[i]->setAccessibleName(drawn ? QStringLiteral("Numéro")
                                             : QStringLiteral("Complémentaire"));
        numbers_[i]->setObjectName(drawn ? QStringLiteral("lblVerifNum_%1").arg(i)
                                         : QStringLiteral("lblVerifCompl"));
        if (!drawn)
            layout->addSpacing(theme::gap);
        layout->addWidget(numbers_[i]);
    }
    layout->addStretch();
    return row;
}

QWidget *VerificationPanel::makeTotal() {
    lblVerWinTot->setFont(rankTable::strong(font()));
    lblVerWinTot->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *title = new QLabel(QStringLiteral("Total des gains"), this);
    title->setFont(rankTable::strong(font()));
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(lblVerWinTot, 1);
    return row;
}

void VerificationPanel::refresh() {
    draw_->refresh(toQt(page_.txtVerifComb));
    lblVerifComb->setText(toQt(page_.lblVerifComb));
    for (std::size_t i = 0; i + 1 < numbers_.size(); ++i)
        numbers_[i]->show(toQt(page_.lblVerifNum[i]), numberGround, false);
    numbers_.back()->show(toQt(page_.lblVerifCompl), complementaryGround, false);
    lblVerWinTot->setText(toQt(page_.lblVerWinTot));
}

} // namespace boulix
