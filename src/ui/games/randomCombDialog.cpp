// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/randomCombDialog.h"

#include "games/frmRandomComb.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

RandomCombDialog::RandomCombDialog(frmRandomComb &rules, QWidget *parent)
    : QDialog(parent), rules_(rules) {
    setObjectName(QStringLiteral("frmRandomComb"));
    setWindowTitle(QString::fromUtf8(frmRandomComb::caption));
    // Tab goes through the controls in the order of their making.
    QHBoxLayout *countRow = makeCountRow();
    auto *lvWComb = new ReportView(rules.lvWComb, this);
    lvWComb->setObjectName(QStringLiteral("lvWComb"));
    lvWComb->setAccessibleName(QStringLiteral("Combinaisons aléatoires"));
    lvWComb->keepAllColumnsVisible();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::margin);
    column->addLayout(countRow);
    column->addWidget(lvWComb, 1);
    column->addLayout(makeButtons());
}

QHBoxLayout *RandomCombDialog::makeCountRow() {
    auto *txtnComb = new QLineEdit(toQt(rules_.txtnComb), this);
    txtnComb->setObjectName(QStringLiteral("txtnComb"));
    txtnComb->setToolTip(QStringLiteral("Nombre de tirages à simuler, jusqu'à 32 767"));
    txtnComb->setPlaceholderText(QStringLiteral("1 à 32 767"));
    txtnComb->setFixedWidth(fontMetrics().averageCharWidth() * 12);
    connect(txtnComb, &QLineEdit::textEdited, this,
            [this](const QString &text) { rules_.txtnComb = fromQt(text); });
    auto *title = new QLabel(QStringLiteral("&Nombre de combinaisons"), this);
    title->setBuddy(txtnComb);
    auto *cmdCompute = new QPushButton(QStringLiteral("&Calculer"), this);
    cmdCompute->setObjectName(QStringLiteral("cmdCompute"));
    cmdCompute->setToolTip(QStringLiteral("Tirer les combinaisons au hasard"));
    cmdCompute->setDefault(true);
    connect(cmdCompute, &QPushButton::clicked, this, [this] { rules_.clickCompute(); });
    auto *row = new QHBoxLayout;
    row->setSpacing(theme::gap);
    row->addWidget(title);
    row->addWidget(txtnComb);
    row->addStretch();
    row->addWidget(cmdCompute);
    return row;
}

QHBoxLayout *RandomCombDialog::makeButtons() {
    auto *CMD_OK = new QPushButton(QStringLiteral("&OK"), this);
    auto *CMD_Cancel = new QPushButton(QStringLiteral("&Annuler"), this);
    CMD_OK->setObjectName(QStringLiteral("CMD_OK"));
    CMD_OK->setToolTip(QStringLiteral("Tester le jeu sur ces combinaisons"));
    CMD_Cancel->setObjectName(QStringLiteral("CMD_Cancel"));
    CMD_Cancel->setToolTip(QStringLiteral("Fermer sans tester le jeu"));
    connect(CMD_OK, &QPushButton::clicked, this, [this] {
        rules_.clickOK();
        accept();
    });
    connect(CMD_Cancel, &QPushButton::clicked, this, &RandomCombDialog::reject);
    auto *row = new QHBoxLayout;
    row->setSpacing(theme::gap);
    row->addStretch();
    row->addWidget(CMD_OK);
    row->addWidget(CMD_Cancel);
    return row;
}

void RandomCombDialog::reject() {
    rules_.clickCancel();
    QDialog::reject();
}

} // namespace boulix
