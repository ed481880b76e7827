// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/stats/statisticsTab.h"

#include "sill/reports.h"
#include "stats/statTypes.h"
#include "ui/stats/graphWindow.h"
#include "ui/style/theme.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/toolbar.h"
#include "ui/widgets/upDownField.h"

#include <QAction>
#include <QActionGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace boulix {

StatisticsTab::StatisticsTab(statisticsPage &page, QWidget *parent)
    : QWidget(parent), page_(page), tbarStats(makeToolbar()), types_(new QMenu(this)),
      lblStatType(new QLabel(this)), lblStatDesc(new QLabel(this)),
      lvwStatsResult(new ReportView(page.lvwStatsResult, this)), lblStatsStatus(new QLabel(this)),
      lblStatsNote(new QLabel(this)),
      frameStatsRange(new QGroupBox(QStringLiteral("Plage d'étude"), this)),
      start_(new UpDownField(page.updStatStart, QStringLiteral("txtStatStart"),
                             QStringLiteral("updStatStart"), frameStatsRange)),
      end_(new UpDownField(page.updStatEnd, QStringLiteral("txtStatEnd"),
                           QStringLiteral("updStatEnd"), frameStatsRange)),
      grdStatNbrSelector(new NumberBoardView(page.grdStatNbrSelector, this)),
      lblStatStartDate(new QLabel(frameStatsRange)), lblStatEndDate(new QLabel(frameStatsRange)) {
    lblStatType->setObjectName(QStringLiteral("lblStatType"));
    lblStatDesc->setObjectName(QStringLiteral("lblStatDesc"));
    lblStatDesc->setToolTip(QStringLiteral("Descriptif du type de statistique actif"));
    lblStatsStatus->setObjectName(QStringLiteral("lblStatsStatus"));
    lblStatsNote->setObjectName(QStringLiteral("lblStatsNote"));
    lvwStatsResult->setObjectName(QStringLiteral("lvwStatsResult"));
    lvwStatsResult->setToolTip(QStringLiteral("Résultats de l'analyse statistique"));
    lvwStatsResult->setAccessibleName(QStringLiteral("Résultats de l'analyse statistique"));
    grdStatNbrSelector->setObjectName(QStringLiteral("grdStatNbrSelector"));
    lblStatStartDate->setObjectName(QStringLiteral("lblStatStartDate"));
    lblStatEndDate->setObjectName(QStringLiteral("lblStatEndDate"));
    makeTypeMenu();
    makeRange();
    connectList();
    layOut();
    page_.view(this);
    refresh();
}

StatisticsTab::~StatisticsTab() {
    page_.view(nullptr);
}

QToolBar *StatisticsTab::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("T&ype"),
         QStringLiteral("Sélection du type de statistique à calculer. Cliquez sur le bouton pour "
                        "effectuer le calcul demandé."),
         QStringLiteral("statistics"), QKeySequence(Qt::Key_F5)},
        {QStringLiteral("&Graphique"),
         QStringLiteral("Enfoncez ce bouton pour visualiser la statistique demandée sous forme "
                        "graphique"),
         QStringLiteral("chart"), QKeySequence(Qt::CTRL | Qt::Key_G)},
        {QStringLiteral("Co&mpl."),
         QStringLiteral("Utilise ou non le numéro complémentaire dans le calcul des statistiques"),
         QStringLiteral("complementary"),
         {}},
        {QStringLiteral("E&xporter"),
         QStringLiteral("Exporter la statistique étudiée dans un fichier texte"),
         QStringLiteral("export"),
         {}},
        {QStringLiteral("Im&primer"),
         QStringLiteral("Imprimer la statistique étudiée"),
         QStringLiteral("print"),
         {}},
        {QStringLiteral("Eff&acer"),
         QStringLiteral("Effacer la liste des numéros sélectionnés"),
         QStringLiteral("clear"),
         {}},
        {QStringLiteral("Jo&uer ces numéros"),
         QStringLiteral("Passer aux jeux avec les numéros sélectionnés ici comme source"),
         QStringLiteral("game"),
         {}},
    };
    QToolBar *bar = boulix::makeToolbar(
        QStringLiteral("tbarStats"), buttons,
        [this](int number) { page_.clickButton(number, button(number)->isChecked()); }, this);
    for (const int checked : {statisticsPage::showGraph, statisticsPage::withComplementary})
        bar->actions().at(checked - 1)->setCheckable(true);
    return bar;
}

QAction *StatisticsTab::button(int number) const {
    return tbarStats->findChild<QAction *>(QStringLiteral("tbarStats_%1").arg(number));
}

void StatisticsTab::makeTypeMenu() {
    types_->setObjectName(QStringLiteral("mnuStatTypes"));
    auto *group = new QActionGroup(types_);
    for (std::int16_t type = 1; type <= modStats::statTypeCount; ++type) {
        QAction *entry = types_->addAction(toQt(statisticsPage::menuText(type)));
        entry->setObjectName(QStringLiteral("mnuStatTypes_%1").arg(type));
        entry->setCheckable(true);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this,
                [this, type] { runCommand([&] { page_.pickType(type); }); });
    }
    QAction *compute = button(statisticsPage::computeType);
    compute->setMenu(types_);
    if (auto *widget = qobject_cast<QToolButton *>(tbarStats->widgetForAction(compute)))
        widget->setPopupMode(QToolButton::MenuButtonPopup);
}

void StatisticsTab::makeRange() {
    frameStatsRange->setObjectName(QStringLiteral("frameStatsRange"));
    frameStatsRange->setToolTip(
        QStringLiteral("Permet de définir la plage d'étude pour les analyses statistiques"));
    auto *startTitle = new QLabel(QStringLiteral("T&irage de départ"), frameStatsRange);
    auto *endTitle = new QLabel(QStringLiteral("Ti&rage de fin"), frameStatsRange);
    startTitle->setBuddy(start_);
    endTitle->setBuddy(end_);
    connect(start_, &UpDownField::boxLeft, this,
            [this](const QString &text) { runCommand([&] { page_.leaveStart(fromQt(text)); }); });
    connect(end_, &UpDownField::boxLeft, this,
            [this](const QString &text) { runCommand([&] { page_.leaveEnd(fromQt(text)); }); });
    auto *grid = new QGridLayout(frameStatsRange);
    grid->setHorizontalSpacing(theme::gap);
    grid->setVerticalSpacing(theme::gap / 2);
    grid->addWidget(startTitle, 0, 0);
    grid->addWidget(start_, 0, 1);
    grid->addWidget(lblStatStartDate, 0, 2);
    grid->addWidget(endTitle, 1, 0);
    grid->addWidget(end_, 1, 1);
    grid->addWidget(lblStatEndDate, 1, 2);
    grid->setColumnStretch(2, 1);
}

void StatisticsTab::connectList() {
    lvwStatsResult->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(lvwStatsResult, &ReportView::rowsPicked, this,
            [this] { runCommand([this] { page_.clickList(); }); });
    connect(lvwStatsResult, &ReportView::headerClicked, this,
            [this](int column) { runCommand([&] { page_.clickHeader(column); }); });
}

void StatisticsTab::layOut() {
    QFont title = lblStatType->font();
    title.setBold(true);
    lblStatType->setFont(title);
    lblStatType->setWordWrap(true);
    lblStatDesc->setWordWrap(true);
    lblStatsStatus->setWordWrap(true);
    lblStatsNote->setWordWrap(true);
    lblStatDesc->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *left = new QVBoxLayout;
    left->setSpacing(theme::gap);
    left->addWidget(lblStatType);
    left->addWidget(lblStatDesc);
    left->addWidget(lvwStatsResult, 1);
    left->addWidget(lblStatsStatus);
    left->addWidget(lblStatsNote);

    auto *right = new QVBoxLayout;
    right->setSpacing(theme::gap);
    right->addWidget(frameStatsRange);
    right->addWidget(grdStatNbrSelector, 1);

    auto *below = new QHBoxLayout;
    below->setContentsMargins(theme::margin, 0, theme::margin, theme::margin);
    below->setSpacing(2 * theme::margin);
    below->addLayout(left, 6);
    below->addLayout(right, 5);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(tbarStats);
    column->addLayout(below, 1);
}

std::vector<std::int64_t> StatisticsTab::selectedRows() const {
    return lvwStatsResult->selectedRows();
}

void StatisticsTab::refresh() {
    lblStatType->setText(toQt(page_.lblStatType));
    lblStatDesc->setText(toQt(page_.lblStatDesc));
    lblStatsStatus->setText(toQt(page_.lblStatsStatus));
    lblStatsStatus->setEnabled(!page_.lvwStatsResult.outdated());
    lblStatsNote->setText(toQt(page_.lblStatsNote));
    lblStatsNote->setVisible(!page_.lblStatsNote.empty());
    lblStatStartDate->setText(toQt(page_.lblStatStartDate));
    lblStatEndDate->setText(toQt(page_.lblStatEndDate));
    start_->refresh(toQt(page_.txtStatStart));
    end_->refresh(toQt(page_.txtStatEnd));
    frameStatsRange->setEnabled(page_.frameStatsRangeEnabled);
    QAction *graph = button(statisticsPage::showGraph);
    graph->setEnabled(page_.graphButtonEnabled);
    graph->setChecked(page_.graphButton() == 1);
    button(statisticsPage::withComplementary)->setChecked(page_.complementaryChoice() == 1);
    setWhyOff(*button(statisticsPage::playNumbers),
              page_.canPlay() ? QString()
                              : QStringLiteral("Cochez d'abord des numéros sur la grille ou dans "
                                               "la liste."));
    const QList<QAction *> types = types_->actions();
    if (page_.currentType() >= 1 && page_.currentType() <= types.size())
        types[page_.currentType() - 1]->setChecked(true);
}

/// The board can have changed on the other page meanwhile.
void StatisticsTab::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    refresh();
}

void StatisticsTab::openGraph(frmGraph &graph) {
    if (!graph_) {
        graph_ = new GraphWindow(graph, window());
        connect(graph_, &GraphWindow::closedByUser, this,
                [this] { runCommand([this] { page_.graphWindowClosed(); }); });
        const modStats::GraphWindowPos place = modStats::graphWindowPos;
        if (place != modStats::GraphWindowPos{})
            graph_->setGeometry(QRectF(place.left, place.top, place.width, place.height).toRect());
    }
    graph_->show();
    graph_->raise();
}

modStats::GraphWindowPos StatisticsTab::closeGraph() {
    if (!graph_)
        return {};
    const QRectF place = graph_->geometry();
    delete graph_;
    return {static_cast<float>(place.x()), static_cast<float>(place.y()),
            static_cast<float>(place.width()), static_cast<float>(place.height())};
}

} // namespace boulix
