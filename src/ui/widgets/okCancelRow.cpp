// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/okCancelRow.h"

#include "ui/style/theme.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>

namespace boulix {

QHBoxLayout *makeOkCancelRow(QDialog &dialog, const std::function<void()> &confirm) {
    auto *CMD_OK = new QPushButton(QStringLiteral("OK"), &dialog);
    auto *CMD_Cancel = new QPushButton(QStringLiteral("&Annuler"), &dialog);
    CMD_OK->setObjectName(QStringLiteral("CMD_OK"));
    CMD_Cancel->setObjectName(QStringLiteral("CMD_Cancel"));
    CMD_OK->setDefault(true);
    QObject::connect(CMD_OK, &QPushButton::clicked, &dialog, confirm);
    QObject::connect(CMD_Cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->setSpacing(theme::gap);
    row->addStretch();
    row->addWidget(CMD_OK);
    row->addWidget(CMD_Cancel);
    return row;
}

} // namespace boulix
