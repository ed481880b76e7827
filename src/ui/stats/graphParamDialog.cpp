// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/stats/graphParamDialog.h"

#include "sill/reports.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "ui/style/theme.h"
#include "ui/widgets/okCancelRow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>

namespace boulix {

GraphParamDialog::GraphParamDialog(frmGraphParam &rules, QWidget *parent)
    : QDialog(parent), rules_(rules), cmbGraphType(new QComboBox(this)),
      chkShowAxes(new QCheckBox(QStringLiteral("Afficher les a&xes"), this)),
      chkShowGrid(new QCheckBox(QStringLiteral("Afficher la &grille"), this)) {
    setObjectName(QStringLiteral("frmGraphParam"));
    setWindowTitle(QString::fromUtf8(frmGraphParam::caption));
    cmbGraphType->setObjectName(QStringLiteral("cmbGraphType"));
    chkShowAxes->setObjectName(QStringLiteral("chkShowAxes"));
    chkShowGrid->setObjectName(QStringLiteral("chkShowGrid"));
    for (const char *name : modStats::graphTypeNames)
        cmbGraphType->addItem(QString::fromUtf8(name));
    cmbGraphType->setCurrentIndex(rules_.cmbGraphType);
    chkShowAxes->setChecked(rules_.chkShowAxes);
    chkShowGrid->setChecked(rules_.chkShowGrid);
    layOut();
}

void GraphParamDialog::layOut() {
    auto *form = new QFormLayout(this);
    form->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    form->setSpacing(theme::gap);
    form->addRow(QStringLiteral("&Type de graphique"), cmbGraphType);
    form->addRow(chkShowAxes);
    form->addRow(chkShowGrid);
    form->addItem(new QSpacerItem(0, theme::gap));
    form->addRow(makeOkCancelRow(*this, [this] { confirm(); }));
}

void GraphParamDialog::confirm() {
    rules_.cmbGraphType = static_cast<std::int16_t>(cmbGraphType->currentIndex());
    rules_.chkShowAxes = chkShowAxes->isChecked();
    rules_.chkShowGrid = chkShowGrid->isChecked();
    if (runCommand([this] { rules_.clickOK(); }))
        accept();
}

} // namespace boulix
