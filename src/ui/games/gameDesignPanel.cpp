// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/gameDesignPanel.h"

#include "sill/reports.h"
#include "ui/games/systemMakerPanel.h"
#include "ui/style/theme.h"
#include "ui/widgets/elidedLabel.h"
#include "ui/widgets/fittingTabs.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/toolbar.h"
#include "workbench/gameDesign.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

GameDesignPanel::GameDesignPanel(gameDesign &design, QWidget *parent)
    : QWidget(parent), design_(design), tabGameDesign(new FittingTabBar(this)),
      systems_(new SystemMakerPanel(design, this)),
      grdGameDef(new NumberBoardView(design.grdGameDef, this)), count_(new ElidedLabel(this)) {
    makeTabs();
    makeToolbar();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(tabGameDesign);
    column->addWidget(tbarGameDef);
    column->addWidget(makeSystemChoice());
    column->addWidget(makeRandomCount());
    column->addWidget(makeSources());
    column->addWidget(systems_);
    column->addWidget(makeGrids(), 1);
    column->addStretch();
    setTabOrder(chkSelect.back(), grdGameDef); // the result, which was made last, comes last
    setFocusProxy(tabGameDesign);
    refresh();
}

void GameDesignPanel::makeTabs() {
    tabGameDesign->setObjectName(QStringLiteral("tabGameDesign"));
    tabGameDesign->setAccessibleName(QStringLiteral("Méthode de création"));
    tabGameDesign->setExpanding(false);
    tabGameDesign->setDrawBase(false);
    for (const ControlText &text : gameDesign::tabGameDesign) {
        const int tab = tabGameDesign->addTab(QString::fromUtf8(text.caption));
        tabGameDesign->setTabToolTip(tab, QString::fromUtf8(text.toolTip));
    }
    connect(tabGameDesign, &QTabBar::currentChanged, this,
            [this](int index) { runCommand([&] { design_.clickTab(index); }); });
}

void GameDesignPanel::makeToolbar() {
    const std::array<const char *, 4> icons = {"add", "select", "clear", "compute"};
    const std::array<QKeySequence, 4> shortcuts = {QKeySequence(Qt::CTRL | Qt::Key_Return),
                                                   QKeySequence(Qt::Key_F7),
                                                   {},
                                                   QKeySequence(Qt::Key_F5)};
    std::vector<ToolbarButton> buttons;
    for (std::size_t i = 0; i < gameDesign::tbarGameDef.size(); ++i)
        buttons.push_back({QString::fromUtf8(gameDesign::tbarGameDef[i].caption),
                           QString::fromUtf8(gameDesign::tbarGameDef[i].toolTip),
                           QString::fromUtf8(icons[i]), shortcuts[i]});
    tbarGameDef = boulix::makeToolbar(
        QStringLiteral("tbarGameDef"), buttons, [this](int button) { design_.clickButton(button); },
        this, ToolbarLook::slim);
}

QWidget *GameDesignPanel::makeSystemChoice() {
    systemChoice_ = new QWidget(this);
    cmbGameType = new QComboBox(systemChoice_);
    cmbGameType->setObjectName(QStringLiteral("cmbGameType"));
    cmbGameType->setAccessibleName(QStringLiteral("Système de jeu"));
    cmbGameType->setToolTip(QStringLiteral("Système de jeu à utiliser"));
    // Users name their systems: a long name must not push the list off the page.
    cmbGameType->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbGameType->setMinimumContentsLength(24);
    connect(cmbGameType, &QComboBox::currentIndexChanged, this,
            [this](int index) { design_.chooseGameType(index); });
    auto *row = new QHBoxLayout(systemChoice_);
    row->setContentsMargins(0, 0, 0, 0);
    cmbGameType->setMaximumWidth(fontMetrics().averageCharWidth() * 120);
    row->addWidget(cmbGameType, 1);
    row->addStretch();
    return systemChoice_;
}

QWidget *GameDesignPanel::makeRandomCount() {
    randomCount_ = new QWidget(this);
    txtNrandomGrid = new QLineEdit(randomCount_);
    txtNrandomGrid->setObjectName(QStringLiteral("txtNrandomGrid"));
    txtNrandomGrid->setToolTip(
        QStringLiteral("Nombre de grilles du jeu aléatoire, jusqu'à 32 767"));
    txtNrandomGrid->setPlaceholderText(QStringLiteral("1 à 32 767"));
    txtNrandomGrid->setFixedWidth(fontMetrics().averageCharWidth() * 12);
    connect(txtNrandomGrid, &QLineEdit::textEdited, this,
            [this](const QString &text) { design_.txtNrandomGrid = fromQt(text); });
    auto *title = new QLabel(QStringLiteral("Nombre de &grilles"), randomCount_);
    title->setBuddy(txtNrandomGrid);
    auto *row = new QHBoxLayout(randomCount_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::gap);
    row->addWidget(title);
    row->addWidget(txtNrandomGrid);
    row->addStretch();
    return randomCount_;
}

QWidget *GameDesignPanel::makeSources() {
    sources_ = new QWidget(this);
    auto *column = new QVBoxLayout(sources_);
    column->setContentsMargins(0, theme::gap, 0, 0);
    column->setSpacing(theme::gap);
    auto *title = new QLabel(QString::fromUtf8(gameDesign::chkSelectLabel), sources_);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    column->addWidget(title);
    for (std::size_t i = 0; i < chkSelect.size(); ++i) {
        chkSelect[i] = new QCheckBox(QString::fromUtf8(gameDesign::chkSelectTexts[i]), sources_);
        chkSelect[i]->setObjectName(QStringLiteral("chkSelect_%1").arg(i));
        connect(chkSelect[i], &QCheckBox::toggled, this,
                [this, i](bool on) { design_.chkSelect[i] = on; });
        column->addWidget(chkSelect[i], 0, Qt::AlignLeft);
    }
    return sources_;
}

QWidget *GameDesignPanel::makeGrids() {
    grids_ = new QWidget(this);
    grdGameDef->setObjectName(QStringLiteral("grdGameDef"));
    grdGameDef->setToolTip(QStringLiteral("Numéros sélectionnés"));
    // In a wide window the list stays beside the board.
    grdGameDef->setMaximumWidth(fontMetrics().averageCharWidth() * 60);
    auto *row = new QHBoxLayout(grids_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::margin);
    row->addWidget(grdGameDef, 1);
    row->addWidget(makeList());
    row->addStretch(); // where there is no board the list stays as wide as its columns
    return grids_;
}

QWidget *GameDesignPanel::makeList() {
    auto *list = new QWidget(this);
    lvwGameDef = new ReportView(design_.lvwGameDef, list);
    lvwGameDef->setObjectName(QStringLiteral("lvwGameDef"));
    lvwGameDef->setAccessibleName(QStringLiteral("Grilles calculées"));
    lvwGameDef->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    list->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    count_->setObjectName(QStringLiteral("lblDesignCount"));
    count_->setAccessibleDescription(QStringLiteral("Grilles et prix du jeu en construction"));
    count_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *column = new QVBoxLayout(list);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(lvwGameDef, 1);
    column->addWidget(count_);
    return list;
}

void GameDesignPanel::showGameTypes() {
    const QSignalBlocker quiet(cmbGameType);
    cmbGameType->clear();
    for (const std::string &label : design_.cmbGameType())
        cmbGameType->addItem(toQt(label));
    cmbGameType->setCurrentIndex(design_.gameType());
}

void GameDesignPanel::refresh() {
    const QWidget *focus = window()->focusWidget();
    showControlsOfTab();
    showGameTypes();
    const QString count = toQt(design_.txtNrandomGrid);
    if (txtNrandomGrid->text() != count)
        txtNrandomGrid->setText(count);
    for (std::size_t i = 0; i < chkSelect.size(); ++i)
        chkSelect[i]->setChecked(design_.chkSelect[i]);
    systems_->refresh();
    count_->setText(toQt(design_.lblCount()));
    int button = 0;
    for (QAction *action : tbarGameDef->actions())
        setWhyOff(*action, toQt(gameDesign::whyOff(++button)));
    if (focus && isAncestorOf(focus) && !focus->isVisibleTo(this))
        focusFirstControl();
}

void GameDesignPanel::passFocusOn() {
    if (window()->focusWidget() == tabGameDesign)
        focusFirstControl();
}

void GameDesignPanel::showControlsOfTab() {
    const int tab = design_.currentTab();
    const bool designs = tab < gameDesign::selectorsTab;
    tabGameDesign->setCurrentIndex(tab);
    tbarGameDef->setVisible(designs);
    systemChoice_->setVisible(tab == gameDesign::reducedTab || tab == gameDesign::fixedTab);
    randomCount_->setVisible(tab == gameDesign::randomTab);
    sources_->setVisible(tab == gameDesign::selectorsTab);
    systems_->setVisible(tab == gameDesign::createTab);
    grids_->setVisible(tab != gameDesign::selectorsTab);
    grdGameDef->setVisible(designs);
    count_->setVisible(designs); // a computed system has its own labels
}

/// The control that had the focus is not on this tab: Qt would look for the next one anywhere in
/// the window.
void GameDesignPanel::focusFirstControl() {
    QWidget *control = tabGameDesign->nextInFocusChain();
    while (control != tabGameDesign) {
        if (isAncestorOf(control) && control->isVisibleTo(this) && control->isEnabled() &&
            control->focusPolicy() & Qt::TabFocus && !control->focusProxy())
            return control->setFocus();
        control = control->nextInFocusChain();
    }
}

} // namespace boulix
