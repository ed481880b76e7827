// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/gridParamDialog.h"

#include "printing/frmGridParam.h"
#include "sill/reports.h"
#include "ui/style/theme.h"
#include "ui/widgets/okCancelRow.h"
#include "ui/widgets/qtText.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace boulix {

GridParamDialog::GridParamDialog(frmGridParam &rules, QWidget *parent)
    : QDialog(parent), rules_(rules), txtUnit(new QLineEdit(toQt(rules.txtUnit), this)),
      txtPrice(new QLineEdit(toQt(rules.txtPrice), this)) {
    setObjectName(QStringLiteral("frmGridParam"));
    setWindowTitle(QString::fromUtf8(frmGridParam::caption));
    txtUnit->setObjectName(QStringLiteral("txtUnit"));
    txtPrice->setObjectName(QStringLiteral("txtPrice"));
    txtUnit->setToolTip(QStringLiteral("Le nom de la monnaie, au singulier"));
    txtPrice->setToolTip(QString::fromUtf8(frmGridParam::priceHolds));
    txtPrice->setPlaceholderText(QStringLiteral("0.6"));
    layOut();
}

void GridParamDialog::layOut() {
    auto *form = new QFormLayout(this);
    form->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    form->setSpacing(theme::margin);
    form->addRow(QStringLiteral("&Unité de monnaie"), txtUnit);
    form->addRow(QStringLiteral("&Prix d'une grille"), txtPrice);
    form->addRow(makeOkCancelRow(*this, [this] { confirm(); }));
    txtUnit->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
}

void GridParamDialog::confirm() {
    rules_.txtUnit = fromQt(txtUnit->text());
    rules_.txtPrice = fromQt(txtPrice->text());
    runCommand([this] { rules_.clickOK(); });
    if (rules_.closed())
        accept();
}

void GridParamDialog::reject() {
    rules_.clickCancel();
    QDialog::reject();
}

} // namespace boulix
