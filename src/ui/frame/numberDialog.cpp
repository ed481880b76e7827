// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/numberDialog.h"

#include "sill/frmNbrSelector.h"
#include "sill/reports.h"
#include "ui/style/theme.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/qtText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

NumberDialog::NumberDialog(frmNbrSelector &dialog, QWidget *parent)
    : QDialog(parent), dialog_(dialog), grd(new NumberBoardView(dialog.grd, this)),
      lblStatus(new QLabel(this)),
      cmdOK(makeButton(QStringLiteral("cmdOK"), QStringLiteral("&Valider la sélection"))),
      cmdCancel(makeButton(QStringLiteral("cmdCancel"), QStringLiteral("&Annuler"))),
      cmdClear(makeButton(QStringLiteral("cmdClear"), QStringLiteral("Tout &Effacer"))),
      cmdSelectAll(
          makeButton(QStringLiteral("cmdSelectAll"), QStringLiteral("Tout &sélectionner"))) {
    setObjectName(QStringLiteral("frmNbrSelector"));
    setWindowTitle(QStringLiteral("Selecteur"));
    grd->setObjectName(QStringLiteral("grd"));
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    connect(cmdOK, &QPushButton::clicked, this, [this] { dialog_.clickOK(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { dialog_.clickCancel(); });
    connect(cmdClear, &QPushButton::clicked, this, [this] { dialog_.clickClear(); });
    connect(cmdSelectAll, &QPushButton::clicked, this,
            [this] { runCommand([this] { dialog_.clickSelectAll(); }); });
    for (QPushButton *button : {cmdOK, cmdCancel, cmdClear, cmdSelectAll})
        connect(button, &QPushButton::clicked, this, &NumberDialog::hideOnceTagged);
    connect(grd, &NumberBoardView::changed, this, &NumberDialog::showStatus);
    cmdOK->setDefault(true);
    layOut();
    showStatus();
    grd->setFocus();
}

QPushButton *NumberDialog::makeButton(const QString &name, const QString &caption) {
    auto *button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

void NumberDialog::layOut() {
    auto *side = new QVBoxLayout;
    side->setSpacing(theme::gap);
    side->addWidget(cmdSelectAll);
    side->addWidget(cmdClear);
    side->addSpacing(theme::margin);
    side->addWidget(lblStatus);
    side->addStretch();
    side->addWidget(cmdOK);
    side->addWidget(cmdCancel);

    auto *all = new QHBoxLayout(this);
    all->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    all->setSpacing(2 * theme::gap);
    all->addWidget(grd, 1);
    all->addLayout(side);

    setTabOrder(grd, cmdSelectAll);
    setTabOrder(cmdSelectAll, cmdClear);
    setTabOrder(cmdClear, cmdOK);
    setTabOrder(cmdOK, cmdCancel);
}

void NumberDialog::showStatus() {
    lblStatus->setText(toQt(dialog_.lblStatus()));
}

void NumberDialog::hideOnceTagged() {
    if (!dialog_.tag().empty())
        hide();
}

void NumberDialog::reject() {
    dialog_.clickCancel();
    hide();
}

} // namespace boulix
