// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/eliminators/eliminatorTab.h"

#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/scrollPanel.h"
#include "ui/widgets/toolbar.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

EliminatorTab::EliminatorTab(eliminatorPage &page, QWidget *parent)
    : QWidget(parent), page_(page),
      btnSelectList(
          new QPushButton(loadIcon(QStringLiteral("select")), QStringLiteral("&Liste..."), this)) {
    btnSelectList->setObjectName(QStringLiteral("btnSelectList"));
    btnSelectList->setToolTip(QStringLiteral("Choisir les numéros de la liste"));
    btnSelectList->setAutoDefault(false);
    connect(btnSelectList, &QPushButton::clicked, this, [this] { page_.clickSelectList(); });
    makeToolbar();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(tBarEliminator);
    column->addWidget(new ScrollPanel(makeRules(), this), 1);
    page_.view(this);
    refresh();
}

EliminatorTab::~EliminatorTab() {
    page_.view(nullptr);
}

void EliminatorTab::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("C&harger"), QStringLiteral("Charger des éliminateurs existants"),
         QStringLiteral("open"), QKeySequence(QKeySequence::Open)},
        {QStringLiteral("&Sauver"), QStringLiteral("Sauvegarder les éliminateurs"),
         QStringLiteral("save"), QKeySequence(QKeySequence::Save)},
    };
    tBarEliminator = boulix::makeToolbar(
        QStringLiteral("tBarEliminator"), buttons,
        [this](int button) { page_.clickButton(button); }, this);
}

QWidget *EliminatorTab::makeRules() {
    auto *rules = new QWidget(this);
    auto *grid = new QGridLayout(rules);
    grid->setContentsMargins(theme::margin, 0, 0, theme::margin);
    grid->setHorizontalSpacing(theme::margin);
    grid->setVerticalSpacing(theme::margin);
    grid->setColumnStretch(2, 1);
    std::vector<QWidget *> stops = {tBarEliminator};
    for (int index = 0; index < eliminatorPage::ruleCount; ++index) {
        addRule(*grid, index);
        stops.push_back(chkEliminator[static_cast<std::size_t>(index)]);
        stops.push_back(controlOf(index));
    }
    grid->setRowStretch(eliminatorPage::ruleCount, 1); // in a high window they stay together
    setTabStops(stops);
    return rules;
}

void EliminatorTab::addRule(QGridLayout &grid, int index) {
    const auto i = static_cast<std::size_t>(index);
    auto *box = new QCheckBox(this);
    box->setObjectName(QStringLiteral("chkEliminator_%1").arg(index));
    chkEliminator[i] = box;
    if (i < txtEliminator.size())
        txtEliminator[i] = makeValueBox(index);
    connect(box, &QCheckBox::toggled, this, [this, index](bool on) { page_.tick(index, on); });
    connect(box, &QCheckBox::clicked, this, [this, index](bool on) {
        if (on) // what the rule needs next is its value
            controlOf(index)->setFocus();
    });
    grid.addWidget(box, index, 0, Qt::AlignLeft);
    grid.addWidget(controlOf(index), index, 1);
}

QLineEdit *EliminatorTab::makeValueBox(int index) {
    const auto i = static_cast<std::size_t>(index);
    auto *box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("txtEliminator_%1").arg(index));
    box->setAccessibleName(QStringLiteral("Valeur de l'éliminateur %1").arg(index + 1));
    box->setToolTip(QStringLiteral("Valeur de l'éliminateur"));
    connect(box, &QLineEdit::textEdited, this,
            [this, i](const QString &text) { page_.txtEliminator[i] = fromQt(text); });
    return box;
}

/// The control that goes with the check box at `index`.
QWidget *EliminatorTab::controlOf(int index) const {
    if (index < eliminatorPage::valueCount)
        return txtEliminator[static_cast<std::size_t>(index)];
    return btnSelectList;
}

void EliminatorTab::refresh() {
    for (std::size_t i = 0; i < chkEliminator.size(); ++i) {
        const int index = static_cast<int>(i);
        chkEliminator[i]->setText(toQt(page_.chkEliminator(index)));
        chkEliminator[i]->setChecked(page_.ticked(index));
    }
    for (std::size_t i = 0; i < txtEliminator.size(); ++i) {
        const QString value = toQt(page_.txtEliminator[i]);
        if (txtEliminator[i]->text() != value)
            txtEliminator[i]->setText(value);
        txtEliminator[i]->setEnabled(page_.txtEnabled(static_cast<int>(i)));
    }
    btnSelectList->setEnabled(page_.btnSelectListEnabled());
}

} // namespace boulix
