// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/systemMakerPanel.h"

#include "sill/reports.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/toolbar.h"
#include "ui/widgets/upDownField.h"
#include "workbench/gameDesign.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

SystemMakerPanel::SystemMakerPanel(gameDesign &design, QWidget *parent)
    : QWidget(parent), design_(design),
      lblnGameDefComb(makeResult(QStringLiteral("lblnGameDefComb"))),
      lblCost(makeResult(QStringLiteral("lblCost"))) {
    setObjectName(QStringLiteral("systemMaker"));
    QWidget *toolbar = makeToolbar(); // before the boxes in the tab order, too
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(theme::gap);
    grid->setVerticalSpacing(theme::gap / 2);
    systemMaker &systems = design_.systems;
    nFixed_ = addNumber(*grid, QStringLiteral("Numéros fixes"), QStringLiteral("txtNFixedNbr"),
                        QStringLiteral("updnNFixed"), systems.nFixed);
    nWin_ = addNumber(*grid, QStringLiteral("Numéros &gagnants"), QStringLiteral("txtWinNbr"),
                      QStringLiteral("updnNWin"), systems.nWin);
    nChoosen_ = addNumber(*grid, QStringLiteral("Numéros choisis"), QStringLiteral("txtChoosenNbr"),
                          QStringLiteral("updnNChoosen"), systems.nChoosen);

    auto *results = new QVBoxLayout;
    results->setSpacing(theme::gap);
    results->addStretch();
    results->addWidget(lblnGameDefComb);
    results->addWidget(lblCost);
    results->addStretch();
    auto *row = new QHBoxLayout;
    row->setSpacing(2 * theme::margin);
    row->addLayout(grid);
    row->addLayout(results, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(toolbar);
    column->addLayout(row);
}

QWidget *SystemMakerPanel::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("Ajouter"),
         QStringLiteral("Ajoute le jeu défini à la liste des jeux réduits ou à positions fixes"),
         QStringLiteral("add"), QKeySequence(Qt::CTRL | Qt::Key_Return)},
        {QStringLiteral("Liste"), QStringLiteral("Gère la liste des jeux créés"),
         QStringLiteral("list"), QKeySequence(Qt::Key_F7)},
        {QStringLiteral("Calculer"), QStringLiteral("Calculer le jeu"), QStringLiteral("compute"),
         QKeySequence(Qt::Key_F5)},
        {QStringLiteral("Optimiser"),
         QStringLiteral("Chercher un système de moins de grilles pour la même garantie"),
         QStringLiteral("reduced"), QKeySequence(Qt::Key_F6)},
    };
    return boulix::makeToolbar(
        QStringLiteral("tbarCreateGame"), buttons,
        [this](int button) { design_.clickCreateButton(button); }, this, ToolbarLook::slim);
}

UpDownField *SystemMakerPanel::addNumber(QGridLayout &grid, const QString &title,
                                         const QString &boxName, const QString &arrowsName,
                                         numberBox &number) {
    auto *field = new UpDownField(number.upDownControl, boxName, arrowsName, this);
    auto *box = field->findChild<QLineEdit *>(boxName);
    box->setAccessibleName(QString(title).remove(QLatin1Char('&')));
    box->setToolTip(QStringLiteral("Un nombre de %1 à %2")
                        .arg(number.upDownControl.min())
                        .arg(number.upDownControl.max()));
    connect(field, &UpDownField::boxLeft, this, [this, &number](const QString &text) {
        number.text = fromQt(text);
        runCommand([&] { number.confirm(); });
        refresh();
    });
    auto *label = new QLabel(title, this);
    label->setBuddy(field);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(field, row, 1);
    return field;
}

QLabel *SystemMakerPanel::makeResult(const QString &name) {
    auto *label = new QLabel(this);
    label->setObjectName(name);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

void SystemMakerPanel::refresh() {
    nFixed_->refresh(toQt(design_.systems.nFixed.text));
    nWin_->refresh(toQt(design_.systems.nWin.text));
    nChoosen_->refresh(toQt(design_.systems.nChoosen.text));
    lblnGameDefComb->setText(toQt(design_.systems.lblnGameDefComb));
    lblCost->setText(toQt(design_.systems.lblCost));
}

} // namespace boulix
