// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/chancesDialog.h"

#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/scrollPanel.h"
#include "ui/winnings/chanceBars.h"
#include "ui/winnings/rankTable.h"
#include "workbench/frmChances.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace boulix {

namespace {

constexpr int allRanks = 12;  // and their sum
constexpr int fewestRows = 6; // that a list shows on a small screen

} // namespace

ChancesDialog::ChancesDialog(frmChances &rules, QWidget *parent) : QDialog(parent), rules_(rules) {
    setObjectName(QStringLiteral("frmChances"));
    setWindowTitle(QString::fromUtf8(frmChances::caption));
    // Tab goes through the controls in the order of their making.
    auto *body = new QWidget(this);
    auto *column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::margin);
    QLabel *sentence = makeLabel("lblSentence", rules.lblSentence);
    sentence->setFont(rankTable::strong(font()));
    column->addWidget(sentence);
    ReportView *ranks = makeList("lvwRanks", "Chances par rang", rules.lvwRanks, allRanks);
    column->addWidget(ranks, 3);
    column->addWidget(makeLabel("lblCases", rules.lblCases));
    auto *below = new QHBoxLayout;
    below->setSpacing(2 * theme::margin);
    below->addLayout(makeLeftSide());
    below->addWidget(new ChanceBars(rules.bars, this), 1);
    column->addLayout(below, 2);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    all->setSpacing(theme::margin);
    all->addWidget(new ScrollPanel(body, this), 1);
    all->addLayout(makeButtons());
    resize(sizeHint().boundedTo(screen()->availableSize() - QSize(16, 40)));
}

QLabel *ChancesDialog::makeLabel(const char *name, const std::string &text) {
    auto *label = new QLabel(linesToQt(text), this);
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// A list that shows `rows` rows at once where the screen is large enough.
ReportView *ChancesDialog::makeList(const char *name, const char *accessibleName, reportList &list,
                                    int rows) {
    auto *view = new ReportView(list, this);
    view->setObjectName(QString::fromLatin1(name));
    view->setAccessibleName(QString::fromUtf8(accessibleName));
    const int header = view->header()->sizeHint().height() + 2 * view->frameWidth();
    view->setMinimumHeight(header + std::min(rows, fewestRows) * view->rowHeight());
    view->setMaximumHeight(header + rows * view->rowHeight() + 2);
    return view;
}

QLayout *ChancesDialog::makeLeftSide() {
    auto *side = new QVBoxLayout;
    side->setSpacing(theme::gap);
    side->addLayout(makeMoney());
    side->addSpacing(theme::gap);
    side->addWidget(makeLabel("lblGuarantees", rules_.lblGuarantees));
    if (rules_.hasGuarantees)
        side->addWidget(makeList("lvwGuarantees", "Garanties", rules_.lvwGuarantees, 6));
    side->addStretch();
    return side;
}

QLayout *ChancesDialog::makeMoney() {
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(theme::margin);
    form->setVerticalSpacing(theme::gap / 2);
    form->addRow(QStringLiteral("Mise"), makeLabel("lblStake", rules_.lblStake));
    form->addRow(QStringLiteral("Gain moyen"), makeLabel("lblReturn", rules_.lblReturn));
    form->addRow(QStringLiteral("Part de la mise rendue"),
                 makeLabel("lblReturnPart", rules_.lblReturnPart));
    form->addRow(QStringLiteral("Chance de gagner plus que la mise"),
                 makeLabel("lblAboveStake", rules_.lblAboveStake));
    return form;
}

QLayout *ChancesDialog::makeButtons() {
    auto *cmdExit = new QPushButton(QStringLiteral("&Quitter"), this);
    cmdExit->setObjectName(QStringLiteral("cmdExit"));
    cmdExit->setToolTip(QStringLiteral("Fermer cette fenêtre"));
    cmdExit->setDefault(true);
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::accept);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(cmdExit);
    return row;
}

} // namespace boulix
