// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/forecasts/forecastTab.h"

#include "ui/forecasts/testPronoDialog.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportListModel.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/scrollPanel.h"
#include "ui/widgets/toolbar.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

ForecastTab::ForecastTab(forecastPage &page, QWidget *parent)
    : QWidget(parent), page_(page), lvwPronoResults(new ReportView(page.lvwPronoResults, this)) {
    makeToolbar();
    makeList();
    layOut();
    page_.view(this);
    refresh();
}

ForecastTab::~ForecastTab() {
    page_.view(nullptr);
}

void ForecastTab::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("C&harger"), QStringLiteral("Charger un pronostique existant"),
         QStringLiteral("open"), QKeySequence(QKeySequence::Open)},
        {QStringLiteral("&Sauver"), QStringLiteral("Sauvegarder le pronostique"),
         QStringLiteral("save"), QKeySequence(QKeySequence::Save)},
        {QStringLiteral("Ca&lculer"), QStringLiteral("Calculer les points des numéros"),
         QStringLiteral("compute"), QKeySequence(Qt::Key_F5)},
        {QStringLiteral("Teste&r"), QStringLiteral("Tester le pronostique sur des tirages passés"),
         QStringLiteral("test"), QKeySequence(Qt::Key_F6)},
    };
    tBarPronos = boulix::makeToolbar(
        QStringLiteral("tBarPronos"), buttons, [this](int button) { page_.clickButton(button); },
        this);
}

void ForecastTab::makeList() {
    lvwPronoResults->setObjectName(QStringLiteral("lvwPronoResults"));
    lvwPronoResults->setAccessibleName(QStringLiteral("Points des numéros"));
    lvwPronoResults->setToolTip(
        QStringLiteral("Cochez les numéros à utiliser pour composer un jeu"));
    lvwPronoResults->setChecks({[this](std::int64_t row) { return page_.ticked(row); },
                                [this](std::int64_t row, bool on) { page_.tick(row, on); }});
    lvwPronoResults->keepAllColumnsVisible();
    connect(lvwPronoResults, &ReportView::headerClicked, this,
            [this](int column) { page_.clickHeader(column); });
}

ForecastTab::Parameter ForecastTab::makeParameter(const QString &name, const QString &caption,
                                                  const QString &meaning, const char *holds,
                                                  std::size_t rule, std::string &text) {
    auto *label = new QLabel(caption, this);
    label->setObjectName(QStringLiteral("lbl%1_%2").arg(name).arg(rule));
    auto *box = new QLineEdit(this);
    box->setObjectName(QStringLiteral("txt%1_%2").arg(name).arg(rule));
    box->setAccessibleName(QStringLiteral("%1, règle %2").arg(meaning).arg(rule + 1));
    box->setToolTip(meaning + QStringLiteral(" : ") + QString::fromUtf8(holds));
    box->setFixedWidth(fontMetrics().averageCharWidth() * 12);
    label->setBuddy(box);
    connect(box, &QLineEdit::textEdited, this,
            [&text](const QString &typed) { text = fromQt(typed); });
    return {label, box};
}

void ForecastTab::addRule(QGridLayout &grid, int row, std::size_t rule) {
    auto *title = new QLabel(this);
    title->setObjectName(QStringLiteral("lblPronoTitle_%1").arg(rule));
    title->setWordWrap(true);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setMinimumHeight(2 * QFontMetrics(bold).lineSpacing()); // the longest takes two lines
    title->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    lblPronoTitle[rule] = title;
    n_[rule] = makeParameter(QStringLiteral("N"), QStringLiteral("N"),
                             QStringLiteral("Nombre N de la règle"), forecastPage::countHolds, rule,
                             page_.txtN[rule]);
    p_[rule] = makeParameter(QStringLiteral("P"), QStringLiteral("P"),
                             QStringLiteral("Nombre P de la règle"), forecastPage::countHolds, rule,
                             page_.txtP[rule]);
    points_[rule] = makeParameter(QStringLiteral("Points"), QStringLiteral("Points"),
                                  QStringLiteral("Points donnés à un numéro qui suit la règle"),
                                  forecastPage::pointsHold, rule, page_.txtPoints[rule]);

    grid.addWidget(title, row, 0, 1, 9);
    int column = 0;
    for (const Parameter &parameter : {n_[rule], p_[rule], points_[rule]}) {
        grid.addWidget(parameter.caption, row + 1, column++);
        grid.addWidget(parameter.box, row + 1, column++);
        grid.setColumnMinimumWidth(column++, theme::margin);
    }
}

QWidget *ForecastTab::makeRules() {
    auto *rules = new QWidget(this);
    auto *grid = new QGridLayout(rules);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::gap);
    grid->setVerticalSpacing(theme::gap);
    constexpr int rowsOfARule = 4;
    for (std::size_t rule = 0; rule < lblPronoTitle.size(); ++rule) {
        const int row = static_cast<int>(rule) * rowsOfARule;
        addRule(*grid, row, rule);
        grid->setRowMinimumHeight(row + 2, theme::gap);
        if (rule + 1 == lblPronoTitle.size())
            continue;
        auto *line = new QFrame(rules);
        line->setFrameStyle(int(QFrame::HLine) | int(QFrame::Sunken));
        grid->addWidget(line, row + 3, 0, 1, 9);
    }
    grid->setColumnStretch(8, 1);
    grid->setRowStretch(static_cast<int>(lblPronoTitle.size()) * rowsOfARule, 1);
    return rules;
}

void ForecastTab::layOut() {
    auto *below = new QHBoxLayout;
    below->setContentsMargins(theme::margin, theme::gap, theme::margin, theme::margin);
    below->setSpacing(2 * theme::margin);
    auto *rules = new ScrollPanel(makeRules(), this);
    // In a wide window the points stay beside the rules that give them.
    rules->setMaximumWidth(fontMetrics().averageCharWidth() * 100);
    below->addWidget(rules, 100);
    below->addWidget(lvwPronoResults);
    below->addStretch(1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tBarPronos);
    column->addLayout(below, 1);
    std::vector<QWidget *> stops = {tBarPronos};
    for (std::size_t rule = 0; rule < n_.size(); ++rule)
        stops.insert(stops.end(), {n_[rule].box, p_[rule].box, points_[rule].box});
    stops.push_back(lvwPronoResults);
    setTabStops(stops);
}

void ForecastTab::refresh() {
    const auto show = [](const Parameter &parameter, const std::string &text, bool visible) {
        parameter.box->setText(toQt(text));
        parameter.caption->setVisible(visible);
        parameter.box->setVisible(visible);
    };
    for (std::size_t rule = 0; rule < n_.size(); ++rule) {
        lblPronoTitle[rule]->setText(toQt(page_.lblPronoTitle[rule]));
        show(n_[rule], page_.txtN[rule], page_.visibleN[rule]);
        show(p_[rule], page_.txtP[rule], page_.visibleP[rule]);
        show(points_[rule], page_.txtPoints[rule], true);
    }
    lvwPronoResults->viewport()->update();
}

void ForecastTab::runTestWindow(frmTestProno &window) {
    TestPronoDialog(window, this).exec();
}

} // namespace boulix
