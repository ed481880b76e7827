// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/stats/drawAnalysisTab.h"

#include "sill/reports.h"
#include "stats/drawAnalysis.h"
#include "ui/style/theme.h"
#include "ui/widgets/numberBall.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/upDownField.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace boulix {

DrawAnalysisTab::DrawAnalysisTab(drawAnalysisPage &page, QWidget *parent)
    : QWidget(parent), page_(page),
      draw_(new UpDownField(page.updnTirNbr, QStringLiteral("txtTirNbr"),
                            QStringLiteral("updnTirNbr"), this)),
      lblTirInfo(new QLabel(this)), lstStatTirType(new QListWidget(this)),
      lvwTirStat(new ReportView(page.lvwTirStat, this)) {
    lblTirInfo->setObjectName(QStringLiteral("lblTirInfo"));
    lstStatTirType->setObjectName(QStringLiteral("lstStatTirType"));
    lvwTirStat->setObjectName(QStringLiteral("lvwTirStat"));
    lvwTirStat->setAccessibleName(QStringLiteral("Résultats de l'analyse du tirage"));
    fillAnalyses();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::margin);
    column->addWidget(makeDrawRow());
    column->addWidget(makeBalls());
    auto *lists = new QHBoxLayout;
    lists->setSpacing(theme::margin);
    lists->addWidget(lstStatTirType);
    lists->addWidget(lvwTirStat, 1);
    column->addLayout(lists, 1);

    setBallOrder();
    page_.view(this);
    refresh();
}

DrawAnalysisTab::~DrawAnalysisTab() {
    page_.view(nullptr);
}

QWidget *DrawAnalysisTab::makeDrawRow() {
    connect(draw_, &UpDownField::boxLeft, this,
            [this](const QString &text) { runCommand([&] { page_.leaveBox(fromQt(text)); }); });
    QFont title = lblTirInfo->font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * 1.2);
    lblTirInfo->setFont(title);

    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap);
    auto *caption = new QLabel(QStringLiteral("Ti&rage"), row);
    caption->setBuddy(draw_);
    layout->addWidget(caption);
    layout->addWidget(draw_);
    layout->addSpacing(theme::margin);
    layout->addWidget(lblTirInfo);
    layout->addStretch();
    return row;
}

QWidget *DrawAnalysisTab::makeBalls() {
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap);
    for (std::size_t k = 0; k < lblNumTir.size(); ++k) {
        lblNumTir[k] = new NumberBall(row);
        lblNumTir[k]->setObjectName(QStringLiteral("lblNumTir_%1").arg(k));
        lblNumTir[k]->setAccessibleName(k == 0 ? QStringLiteral("Complémentaire")
                                               : QStringLiteral("Numéro"));
        lblNumTir[k]->setToolTip(
            k == 0 ? QStringLiteral("Numéro complémentaire : cliquez pour le sélectionner")
                   : QStringLiteral("Cliquez pour sélectionner ce numéro"));
        connect(lblNumTir[k], &QAbstractButton::clicked, this,
                [this, k] { runCommand([&] { page_.clickNumber(k); }); });
    }
    for (std::size_t k = 1; k < lblNumTir.size(); ++k)
        layout->addWidget(lblNumTir[k]);
    layout->addSpacing(theme::margin);
    layout->addWidget(lblNumTir[0]);
    layout->addStretch();
    return row;
}

/// The Tab key goes from the draw over its numbers to the lists; the complementary is the last of
/// the numbers, as on the screen.
void DrawAnalysisTab::setBallOrder() {
    QWidget *before = draw_->focusProxy();
    for (std::size_t k = 1; k <= lblNumTir.size(); ++k) {
        QWidget *ball = lblNumTir[k % lblNumTir.size()];
        setTabOrder(before, ball);
        before = ball;
    }
    setTabOrder(before, lstStatTirType);
    setTabOrder(lstStatTirType, lvwTirStat);
}

void DrawAnalysisTab::fillAnalyses() {
    lstStatTirType->setAccessibleName(QStringLiteral("Analyses"));
    lstStatTirType->setSelectionMode(QAbstractItemView::MultiSelection);
    lstStatTirType->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const QSize roomy(0, fontMetrics().height() * 8 / 5);
    for (const char *name : modStats::analysisNames) {
        lstStatTirType->addItem(QString::fromUtf8(name));
        lstStatTirType->item(lstStatTirType->count() - 1)->setSizeHint(roomy);
    }
    int widest = 0;
    for (const char *name : modStats::analysisNames)
        widest = std::max(widest, fontMetrics().horizontalAdvance(QString::fromUtf8(name)));
    lstStatTirType->setFixedWidth(widest + 3 * theme::gap);
    connect(lstStatTirType, &QListWidget::itemSelectionChanged, this,
            &DrawAnalysisTab::tellAnalyses);
}

void DrawAnalysisTab::tellAnalyses() {
    std::vector<std::int32_t> analyses;
    for (int row = 0; row < lstStatTirType->count(); ++row)
        if (lstStatTirType->item(row)->isSelected())
            analyses.push_back(row + 1);
    runCommand([&] { page_.selectAnalyses(std::move(analyses)); });
}

/// The board can have changed on the other page meanwhile.
void DrawAnalysisTab::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    runCommand([this] { page_.ShowDrawAnalysis(); });
}

void DrawAnalysisTab::refresh() {
    lblTirInfo->setText(toQt(page_.lblTirInfo));
    draw_->refresh(QString::number(page_.updnTirNbr.value()));
    for (std::size_t k = 0; k < lblNumTir.size(); ++k) {
        const drawAnalysisPage::NumberLabel &label = page_.lblNumTir[k];
        lblNumTir[k]->show(toQt(label.caption),
                           {label.ground.red, label.ground.green, label.ground.blue},
                           label.selected);
    }
}

} // namespace boulix
