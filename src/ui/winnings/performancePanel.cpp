// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/performancePanel.h"

#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/toolbar.h"
#include "ui/winnings/rankTable.h"
#include "workbench/winningsPage.h"

#include <QGridLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace boulix {

namespace {

constexpr int framesApart = 30; // milliseconds between two looks at the bar of a running check

} // namespace

PerformancePanel::PerformancePanel(winningsPage &page, QWidget *parent)
    : QWidget(parent), page_(page), pgrScanDB(new QProgressBar(this)) {
    pgrScanDB->setObjectName(QStringLiteral("pgrScanDB"));
    pgrScanDB->setAccessibleName(QStringLiteral("Avancement de la vérification"));
    pgrScanDB->setTextVisible(false);
    auto *table = new QWidget(this);
    ranks_ = rankTable::make(*table, {QStringLiteral("Rang"), QStringLiteral("Grilles gagnantes"),
                                      QStringLiteral("Gains")});
    QWidget *toolbar = makeToolbar(); // before the buttons in the tab order, too
    addDateButtons();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(toolbar);
    column->addWidget(pgrScanDB);
    column->addWidget(table);
    column->addStretch();
    progress_.setInterval(framesApart);
    connect(&progress_, &QTimer::timeout, this, &PerformancePanel::showProgress);
}

QWidget *PerformancePanel::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("Tirages de la base"),
         QStringLiteral("Vérifier le jeu courant sur tous les tirages de la base de données"),
         QStringLiteral("database"), QKeySequence(Qt::Key_F5)},
        {QStringLiteral("Tirages aléatoires"),
         QStringLiteral("Vérifier le jeu courant sur des combinaisons aléatoires"),
         QStringLiteral("dice"), QKeySequence(Qt::Key_F6)},
        {QStringLiteral("Chances"),
         QStringLiteral("Calculer les chances exactes du jeu courant sur tous les tirages"),
         QStringLiteral("chart"), QKeySequence(Qt::Key_F7)},
    };
    return boulix::makeToolbar(
        QStringLiteral("tbarPerfo"), buttons, [this](int button) { page_.clickPerfo(button); },
        this, ToolbarLook::slim);
}

void PerformancePanel::addDateButtons() {
    for (std::size_t i = 0; i < cmdPerfDate.size(); ++i) {
        cmdPerfDate[i] = new QPushButton(QStringLiteral("Dates"), this);
        cmdPerfDate[i]->setObjectName(QStringLiteral("cmdPerfDate_%1").arg(i));
        cmdPerfDate[i]->setAccessibleName(QStringLiteral("Dates des gains, rang %1").arg(i + 1));
        cmdPerfDate[i]->setToolTip(QStringLiteral("Voir les dates des gains de ce rang"));
        connect(cmdPerfDate[i], &QPushButton::clicked, this,
                [this, i] { page_.clickPerfDate(static_cast<int>(i)); });
        ranks_->addWidget(cmdPerfDate[i], rankTable::rowOf(i), 3);
    }
}

void PerformancePanel::showProgress() {
    // Qt counts in int: the bar shows the part that is done.
    constexpr int parts = 1000;
    const progressBar &bar = page_.pgrScanDB;
    const std::int64_t span = std::max<std::int64_t>(bar.max - bar.min, 1);
    pgrScanDB->setRange(0, parts);
    pgrScanDB->setValue(static_cast<int>((bar.value - bar.min) * parts / span));
}

void PerformancePanel::refresh() {
    for (QPushButton *button : cmdPerfDate)
        button->setEnabled(page_.cmdPerfDateEnabled());
    showProgress();
    if (page_.busy() && !progress_.isActive())
        progress_.start();
    else if (!page_.busy())
        progress_.stop();
}

} // namespace boulix
