// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/reportPanel.h"

#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/toolbar.h"
#include "ui/winnings/rankTable.h"
#include "workbench/winningsPage.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

ReportPanel::ReportPanel(winningsPage &page, QWidget *parent) : QWidget(parent), page_(page) {
    auto *table = new QWidget(this);
    ranks_ = rankTable::make(
        *table, {QStringLiteral("Rang"), QStringLiteral("Gain d'une grille gagnante")});
    QWidget *toolbar = makeToolbar(); // before the boxes in the tab order, too
    addBoxes();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(toolbar);
    column->addWidget(table);
    column->addStretch();
}

QWidget *ReportPanel::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("Charger"),
         QStringLiteral("Charger un fichier de rapport"),
         QStringLiteral("open"),
         {}},
        {QStringLiteral("Sauver"),
         QStringLiteral("Sauvegarder les rapports"),
         QStringLiteral("save"),
         {}},
        {QStringLiteral("Par défaut"),
         QStringLiteral("Sauvegarder les rapports comme rapports par défaut"),
         QStringLiteral("save-default"),
         {}},
    };
    return boulix::makeToolbar(
        QStringLiteral("tbarRapp"), buttons, [this](int button) { page_.clickRapp(button); }, this,
        ToolbarLook::slim);
}

void ReportPanel::addBoxes() {
    QWidget *last = nullptr;
    for (std::size_t i = 0; i < txtRapPrice.size(); ++i) {
        auto *box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("txtRapPrice_%1").arg(i));
        box->setAccessibleName(QStringLiteral("Gain du rang %1").arg(i + 1));
        box->setToolTip(QStringLiteral("Gain d'une grille gagnante à ce rang"));
        box->setAlignment(Qt::AlignRight);
        box->setFixedWidth(fontMetrics().averageCharWidth() * 16);
        connect(box, &QLineEdit::textEdited, this,
                [this, i](const QString &text) { page_.txtRapPrice[i] = fromQt(text); });
        ranks_->addWidget(box, rankTable::rowOf(i), 1, Qt::AlignRight);
        if (last)
            setTabOrder(last, box);
        last = box;
        txtRapPrice[i] = box;
    }
}

void ReportPanel::refresh() {
    for (std::size_t i = 0; i < txtRapPrice.size(); ++i)
        if (const QString price = toQt(page_.txtRapPrice[i]); txtRapPrice[i]->text() != price)
            txtRapPrice[i]->setText(price);
}

} // namespace boulix
