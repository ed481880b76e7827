// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/stats/graphWindow.h"

#include "sill/reports.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "ui/stats/plotView.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/typedText.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace boulix {

GraphWindow::GraphWindow(frmGraph &rules, QWidget *parent)
    : QWidget(parent, Qt::Window), rules_(rules), plotPane_(new PlotView(rules.plot, this)),
      cmbGraphType(new QComboBox(this)),
      chkShowAxes(new QCheckBox(QStringLiteral("Afficher les ax&es"), this)),
      chkShowGrid(new QCheckBox(QStringLiteral("Afficher la &grille"), this)),
      optAutoRange(new QRadioButton(QStringLiteral("Domaine &automatique"), this)),
      optManualRange(new QRadioButton(QStringLiteral("Domaine ma&nuel"), this)),
      frameManualRange(new QGroupBox(this)) {
    setObjectName(QStringLiteral("frmGraph"));
    setWindowTitle(QString::fromUtf8(frmGraph::caption));
    setWindowIcon(logoIcon());
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    layout->setSpacing(theme::margin);
    layout->addWidget(plotPane_, 1);
    layout->addWidget(makePanel());
    auto *leave = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(leave, &QShortcut::activated, this, &QWidget::close);
    plotPane_->setFocus(); // its keys work at once
    rules_.changed = [this] { refresh(); };
    refresh();
}

GraphWindow::~GraphWindow() {
    rules_.changed = nullptr;
}

QWidget *GraphWindow::makePanel() {
    auto *frameGraph = new QWidget(this);
    frameGraph->setObjectName(QStringLiteral("frameGraph"));
    cmbGraphType->setObjectName(QStringLiteral("cmbGraphType"));
    cmbGraphType->setAccessibleName(QStringLiteral("Type de graphique"));
    chkShowAxes->setObjectName(QStringLiteral("chkShowAxes"));
    chkShowGrid->setObjectName(QStringLiteral("chkShowGrid"));
    for (const char *name : modStats::graphTypeNames)
        cmbGraphType->addItem(QString::fromUtf8(name));
    cmbGraphType->setCurrentIndex(rules_.cmbGraphType);
    chkShowAxes->setChecked(rules_.chkShowAxes);
    chkShowGrid->setChecked(rules_.chkShowGrid);
    connect(cmbGraphType, &QComboBox::currentIndexChanged, this,
            [this](int index) { rules_.selectGraphType(static_cast<std::int16_t>(index)); });
    connect(chkShowAxes, &QCheckBox::toggled, this, [this](bool on) { rules_.clickShowAxes(on); });
    connect(chkShowGrid, &QCheckBox::toggled, this, [this](bool on) { rules_.clickShowGrid(on); });

    auto *column = new QVBoxLayout(frameGraph);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(cmbGraphType);
    column->addWidget(chkShowAxes);
    column->addWidget(chkShowGrid);
    column->addSpacing(theme::gap);
    column->addWidget(makeRange());
    column->addWidget(makeLimits());
    column->addStretch();
    return frameGraph;
}

QWidget *GraphWindow::makeRange() {
    auto *options = new QWidget(this);
    optAutoRange->setObjectName(QStringLiteral("optAutoRange"));
    optManualRange->setObjectName(QStringLiteral("optManualRange"));
    connect(optAutoRange, &QRadioButton::clicked, this, [this] { rules_.clickAutoRange(); });
    connect(optManualRange, &QRadioButton::clicked, this, [this] { rules_.clickManualRange(); });
    auto *column = new QVBoxLayout(options);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap / 2);
    column->addWidget(optAutoRange);
    column->addWidget(optManualRange);
    return options;
}

QWidget *GraphWindow::makeLimits() {
    constexpr std::array<const char *, 4> names = {"txtXMin", "txtXMax", "txtYMin", "txtYMax"};
    constexpr std::array<const char *, 4> titles = {"&X min", "X &max", "Y m&in", "&Y max"};
    frameManualRange->setObjectName(QStringLiteral("frameManualRange"));
    auto *form = new QFormLayout(frameManualRange);
    form->setSpacing(theme::gap);
    for (std::size_t i = 0; i < txtLimit.size(); ++i) {
        txtLimit[i] = new QLineEdit(frameManualRange);
        txtLimit[i]->setObjectName(QString::fromLatin1(names[i]));
        txtLimit[i]->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
        whenLeft(*txtLimit[i], [this, i](const QString &text) {
            const auto limit = static_cast<frmGraph::Limit>(i);
            runCommand([&] { rules_.leaveLimit(limit, fromQt(text)); });
        });
        form->addRow(QString::fromLatin1(titles[i]), txtLimit[i]);
    }
    return frameManualRange;
}

void GraphWindow::refresh() {
    optAutoRange->setChecked(rules_.optAutoRange);
    optManualRange->setChecked(!rules_.optAutoRange);
    frameManualRange->setEnabled(rules_.frameManualRangeEnabled);
    for (std::size_t i = 0; i < txtLimit.size(); ++i)
        if (!txtLimit[i]->isModified()) // what is being typed is not written over
            txtLimit[i]->setText(toQt(rules_.txtLimit[i]));
}

void GraphWindow::closeEvent(QCloseEvent *event) {
    QWidget::closeEvent(event);
    // Later, because whoever hears of it may delete the window.
    QTimer::singleShot(0, this, &GraphWindow::closedByUser);
}

} // namespace boulix
