// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/winDateDialog.h"

#include "ui/reportView.h"
#include "ui/theme.h"
#include "workbench/frmWinDate.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

WinDateDialog::WinDateDialog(frmWinDate &rules, QWidget *parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmWinDate"));
    setWindowTitle(QString::fromUtf8(frmWinDate::caption));
    auto *lvwWinDate = new ReportView(rules.lvwWinDate, this);
    lvwWinDate->setObjectName(QStringLiteral("lvwWinDate"));
    lvwWinDate->setAccessibleName(QStringLiteral("Tirages gagnants"));
    lvwWinDate->keepAllColumnsVisible();
    auto *cmdExit = new QPushButton(QStringLiteral("&Quitter"), this);
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cmdExit->setToolTip(QStringLiteral("Fermer cette fenêtre"));
    cmdExit->setDefault(true);
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdExit);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::margin);
    column->addWidget(lvwWinDate, 1);
    column->addLayout(buttons);
}

} // namespace boulix
