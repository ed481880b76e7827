// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/listDialog.h"

#include "ui/style/theme.h"
#include "ui/widgets/reportView.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

ListDialog::ListDialog(reportList &list, const QString &title, QWidget *parent) : QDialog(parent) {
    setWindowTitle(title);
    auto *rows = new ReportView(list, this);
    rows->setAccessibleName(title);
    rows->keepAllColumnsVisible();
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
    column->addWidget(rows, 1);
    column->addLayout(buttons);
}

void ListDialog::setNames(const QString &window, const QString &list) {
    setObjectName(window);
    findChild<ReportView *>()->setObjectName(list);
}

} // namespace boulix
