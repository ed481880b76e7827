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
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

NumberDialog::NumberDialog(frmNbrSelector &dialog, QWidget *parent)
    : QDialog(parent), dialog_(dialog), grd(new NumberBoardView(dialog.grd, this)),
      lblStatus(new QLabel(this)), lblWanted(new QLabel(this)), lblRefused(new QLabel(this)),
      txtNumbers(new QLineEdit(this)),
      cmdOK(makeButton(QStringLiteral("cmdOK"), QStringLiteral("&Valider la sélection"))),
      cmdCancel(makeButton(QStringLiteral("cmdCancel"), QStringLiteral("&Annuler"))),
      cmdClear(makeButton(QStringLiteral("cmdClear"), QStringLiteral("Tout &Effacer"))),
      cmdSelectAll(
          makeButton(QStringLiteral("cmdSelectAll"), QStringLiteral("Tout &sélectionner"))) {
    setObjectName(QStringLiteral("frmNbrSelector"));
    setWindowTitle(QStringLiteral("Selecteur"));
    grd->setObjectName(QStringLiteral("grd"));
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    makeLine();
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

/// The numbers can be typed as well as marked: line and board always hold the same ones.
void NumberDialog::makeLine() {
    txtNumbers->setObjectName(QStringLiteral("txtNumbers"));
    txtNumbers->setPlaceholderText(QStringLiteral("1 8 13 17"));
    txtNumbers->setToolTip(
        QStringLiteral("Les numéros dans l'ordre, séparés par des espaces : 1 8 13 17"));
    connect(txtNumbers, &QLineEdit::textEdited, this, &NumberDialog::typeNumbers);
    connect(txtNumbers, &QLineEdit::editingFinished, this, &NumberDialog::showStatus);
    lblWanted->setObjectName(QStringLiteral("lblWanted"));
    lblWanted->setWordWrap(true);
    lblRefused->setObjectName(QStringLiteral("lblRefused"));
    lblRefused->setWordWrap(true);
    lblRefused->setTextFormat(Qt::PlainText);
    lblRefused->setMinimumHeight(2 * fontMetrics().height());
    lblRefused->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

QLayout *NumberDialog::makeSide() {
    auto *side = new QVBoxLayout;
    side->setSpacing(theme::gap);
    side->addWidget(cmdSelectAll);
    side->addWidget(cmdClear);
    side->addSpacing(theme::margin);
    side->addWidget(lblStatus);
    side->addWidget(lblWanted);
    side->addStretch();
    side->addWidget(cmdOK);
    side->addWidget(cmdCancel);
    return side;
}

void NumberDialog::layOut() {
    auto *caption = new QLabel(QStringLiteral("&Numéros"), this);
    caption->setBuddy(txtNumbers);
    auto *line = new QHBoxLayout;
    line->setSpacing(theme::gap);
    line->addWidget(caption);
    line->addWidget(txtNumbers, 1);
    auto *above = new QHBoxLayout;
    above->setSpacing(2 * theme::gap);
    above->addWidget(grd, 1);
    above->addLayout(makeSide());

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    all->setSpacing(theme::gap);
    all->addLayout(above, 1);
    all->addLayout(line);
    all->addWidget(lblRefused);

    setTabOrder(grd, txtNumbers);
    setTabOrder(txtNumbers, cmdSelectAll);
    setTabOrder(cmdSelectAll, cmdClear);
    setTabOrder(cmdClear, cmdOK);
    setTabOrder(cmdOK, cmdCancel);
}

void NumberDialog::typeNumbers(const QString &text) {
    typing_ = true;
    dialog_.typeNumbers(fromQt(text));
    showStatus();
    typing_ = false;
}

void NumberDialog::showStatus() {
    lblStatus->setText(toQt(dialog_.lblStatus()));
    lblWanted->setText(toQt(dialog_.lblWanted()));
    lblRefused->setText(toQt(dialog_.lblRefused()));
    if (!typing_)
        txtNumbers->setText(toQt(dialog_.txtNumbers()));
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
