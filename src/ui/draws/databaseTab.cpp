// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/draws/databaseTab.h"

#include "sill/reports.h"
#include "ui/style/theme.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/toolbar.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

DatabaseTab::DatabaseTab(databasePage &page, QWidget *parent)
    : QWidget(parent), page_(page), lvwDBcomb(new ReportView(page.lvwDBcomb, this)),
      grdDB(new NumberBoardView(page.grdDB, this)), lblDBCombDesc(new QLabel(this)) {
    lvwDBcomb->setObjectName(QStringLiteral("lvwDBcomb"));
    lvwDBcomb->setAccessibleName(QStringLiteral("Tirages de la base de données"));
    grdDB->setObjectName(QStringLiteral("grdDB"));
    lblDBCombDesc->setObjectName(QStringLiteral("lblDBCombDesc"));
    makeToolbar();
    layOut();
    connect(lvwDBcomb, &ReportView::rowClicked, this, [this](qint64 row) {
        runCommand([&] { page_.clickRow(static_cast<std::int32_t>(row)); });
    });
    page_.view(this);
    refresh();
}

DatabaseTab::~DatabaseTab() {
    page_.view(nullptr);
}

void DatabaseTab::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("&Importer"),
         QStringLiteral("Importer des tirages depuis un fichier texte de la française des jeux"),
         QStringLiteral("import"), QKeySequence(Qt::CTRL | Qt::Key_I)},
        {QStringLiteral("&Ajouter"),
         QStringLiteral("Ajouter une combinaison à la base de données des tirages"),
         QStringLiteral("add"), QKeySequence(QKeySequence::New)},
        {QStringLiteral("&Modifier"),
         QStringLiteral("Modifier une combinaison de la base de données des tirages"),
         QStringLiteral("edit"), QKeySequence(Qt::Key_F2)},
        {QStringLiteral("&Supprimer"),
         QStringLiteral("Supprimer une combinaison de la base de données des tirages"),
         QStringLiteral("delete"), QKeySequence(QKeySequence::Delete)},
        {QStringLiteral("Im&primer"), QStringLiteral("Imprimer la base de données des tirages"),
         QStringLiteral("print"), QKeySequence(QKeySequence::Print)},
        {QStringLiteral("E&xporter"), QStringLiteral("Exporter la base de données des tirages"),
         QStringLiteral("export"), QKeySequence(Qt::CTRL | Qt::Key_E)},
    };
    tbarDB = boulix::makeToolbar(
        QStringLiteral("tbarDB"), buttons, [this](int button) { page_.clickButton(button); }, this);
}

void DatabaseTab::layOut() {
    QFont title = lblDBCombDesc->font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * 1.2);
    lblDBCombDesc->setFont(title);
    lblDBCombDesc->setAlignment(Qt::AlignCenter);

    auto *draw = new QVBoxLayout;
    draw->setSpacing(theme::gap);
    draw->addWidget(lblDBCombDesc);
    draw->addWidget(grdDB, 1);

    auto *below = new QHBoxLayout;
    below->setContentsMargins(theme::margin, 0, theme::margin, theme::margin);
    below->setSpacing(2 * theme::margin);
    below->addWidget(lvwDBcomb);
    below->addLayout(draw, 1);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(tbarDB);
    column->addLayout(below, 1);
    setTabStops({tbarDB, lvwDBcomb, grdDB});
}

std::vector<std::int64_t> DatabaseTab::selectedRows() const {
    return lvwDBcomb->selectedRows();
}

void DatabaseTab::refresh() {
    lblDBCombDesc->setText(toQt(page_.lblDBCombDesc));
}

} // namespace boulix
