// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/eliminators/eliminatorTab.h"

#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/elidedLabel.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/scrollPanel.h"
#include "ui/widgets/toolbar.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
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
    setTabStops(stops);
    addLines(*grid);
    return rules;
}

/// What stands below the rules: the numbers of the last one, and a sentence where there are none.
void EliminatorTab::addLines(QGridLayout &grid) {
    constexpr int below = eliminatorPage::ruleCount;
    list_ = new ElidedLabel(this);
    list_->setObjectName(QStringLiteral("lblList"));
    list_->setAccessibleDescription(QStringLiteral("Numéros de la liste"));
    list_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    const int toText = style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                       style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    list_->setContentsMargins(toText, 0, 0, 0); // it stands under the text of its rule
    noRules_ = new QLabel(this);
    noRules_->setObjectName(QStringLiteral("lblNoRules"));
    noRules_->setWordWrap(true);
    grid.addWidget(list_, below, 0, 1, 2);
    grid.addWidget(noRules_, below + 1, 0, 1, 2, Qt::AlignTop);
    grid.setRowStretch(below + 1, 1); // in a high window the rules stay together
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
        showValueBox(i);
    }
    const bool listed = page_.btnSelectListEnabled();
    btnSelectList->setEnabled(listed);
    btnSelectList->setToolTip(listed ? QStringLiteral("Choisir les numéros de la liste")
                                     : QStringLiteral("Cochez la règle pour choisir ses numéros"));
    list_->setText(toQt(eliminatorPage::lblList()));
    list_->setEnabled(listed);
    noRules_->setText(toQt(eliminatorPage::lblNoRules()));
}

/// A box tells what it takes, and why it takes nothing.
void EliminatorTab::showValueBox(std::size_t i) {
    const int index = static_cast<int>(i);
    QLineEdit &box = *txtEliminator[i];
    const QString value = toQt(page_.txtEliminator[i]);
    if (box.text() != value)
        box.setText(value);
    const QString range = toQt(eliminatorPage::rangeText(index));
    box.setEnabled(page_.txtEnabled(index));
    box.setPlaceholderText(range);
    QString toolTip = QStringLiteral("Valeur de l'éliminateur");
    if (!range.isEmpty())
        toolTip += QStringLiteral(", ") + range;
    if (!box.isEnabled())
        toolTip += QStringLiteral("\nCochez la règle pour donner sa valeur");
    box.setToolTip(toolTip);
}

} // namespace boulix
