// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/performancePanel.h"

#include "ui/style/theme.h"
#include "ui/widgets/elidedLabel.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/toolbar.h"
#include "ui/winnings/rankTable.h"
#include "workbench/winningsPage.h"

#include <QGridLayout>
#include <QLabel>
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
    column->addWidget(makeBalance());
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

/// The three sums side by side, each below its title, so that they take no more than two lines.
QWidget *PerformancePanel::makeBalance() {
    constexpr std::array<const char *, 3> names = {"lblPerfSum", "lblPerfStake", "lblPerfBalance"};
    constexpr std::array<const char *, 3> titles = {"Total des gains", "Mise", "Bilan"};
    auto *row = new QWidget(this);
    row->setToolTip(QStringLiteral("La mise est le nombre de grilles multiplié par celui des "
                                   "tirages et par le prix d'une grille"));
    auto *grid = new QGridLayout(row);
    grid->setContentsMargins(0, theme::gap / 2, 0, 0);
    grid->setHorizontalSpacing(theme::margin);
    grid->setVerticalSpacing(0);
    for (std::size_t i = 0; i < balance_.size(); ++i) {
        auto *title = new QLabel(QString::fromUtf8(titles[i]), row);
        title->setForegroundRole(QPalette::PlaceholderText);
        balance_[i] = new ElidedLabel(row);
        balance_[i]->setObjectName(QString::fromLatin1(names[i]));
        balance_[i]->setFont(rankTable::strong(font()));
        const int column = static_cast<int>(i);
        grid->addWidget(title, 0, column);
        grid->addWidget(balance_[i], 1, column);
        grid->setColumnStretch(column, 1);
    }
    return row;
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
    const std::array<const std::string *, 3> sums = {&page_.lblPerfSum, &page_.lblPerfStake,
                                                     &page_.lblPerfBalance};
    for (std::size_t i = 0; i < balance_.size(); ++i)
        balance_[i]->setText(toQt(*sums[i]));
    showProgress();
    if (page_.busy() && !progress_.isActive())
        progress_.start();
    else if (!page_.busy())
        progress_.stop();
}

} // namespace boulix
