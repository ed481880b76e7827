// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/displayGameDialog.h"

#include "ui/reportView.h"
#include "ui/theme.h"
#include "workbench/frmDisplayGame.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

DisplayGameDialog::DisplayGameDialog(frmDisplayGame &rules, QWidget *parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmDisplayGame"));
    setWindowTitle(QStringLiteral("Grilles du jeu"));
    auto *lvwGame = new ReportView(rules.lvwGame, this);
    lvwGame->setObjectName(QStringLiteral("lvwGame"));
    lvwGame->setAccessibleName(QStringLiteral("Grilles du jeu"));
    lvwGame->keepAllColumnsVisible();
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
    column->addWidget(lvwGame, 1);
    column->addLayout(buttons);
}

} // namespace boulix
