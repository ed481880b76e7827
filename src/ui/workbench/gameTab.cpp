// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/workbench/gameTab.h"

#include "ui/games/gameDesignPanel.h"
#include "ui/games/gameListDialog.h"
#include "ui/games/optimiserDialog.h"
#include "ui/style/theme.h"
#include "ui/widgets/elidedLabel.h"
#include "ui/widgets/fittingTabs.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/scrollPanel.h"
#include "ui/widgets/toolbar.h"
#include "ui/winnings/winningsPanels.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace boulix {

GameTab::GameTab(gamePage &page, winningsPage &winnings, QWidget *parent)
    : QWidget(parent), page_(page), tbarGame(makeToolbar()),
      lvwGame(new ReportView(page.lvwGame, this)),
      count_(makeLine(QStringLiteral("lblGameCount"), QStringLiteral("Grilles et prix du jeu"))),
      file_(makeLine(QStringLiteral("lblGameFile"), QStringLiteral("Fichier du jeu"))),
      chkUpdateList(new QCheckBox(QStringLiteral("&Mise à jour de la liste"), this)),
      TabGame(new FittingTabs(this)), design_(new GameDesignPanel(page.design, this)),
      winnings_(new WinningsPanels(winnings, this)) {
    makePrintMenu();
    auto *below = new QHBoxLayout;
    below->setContentsMargins(theme::margin, 0, theme::margin, theme::margin);
    below->setSpacing(theme::margin);
    below->addWidget(makeGame());
    below->addWidget(makeSides(winnings), 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(tbarGame);
    column->addLayout(below, 1);
    page_.view(this);
    refresh();
}

GameTab::~GameTab() {
    page_.view(nullptr);
}

QToolBar *GameTab::makeToolbar() {
    const std::array<const char *, 6> captions = {"C&harger",  "Eff&acer", "S&upprimer",
                                                  "E&liminer", "&Sauver",  "&Imprimer"};
    const std::array<const char *, 6> icons = {"open",      "clear", "delete",
                                               "eliminate", "save",  "print"};
    const std::array<QKeySequence, 6> shortcuts = {QKeySequence(QKeySequence::Open),   {},
                                                   QKeySequence(QKeySequence::Delete), {},
                                                   QKeySequence(QKeySequence::Save),   {}};
    std::vector<ToolbarButton> buttons;
    for (std::size_t i = 0; i < gamePage::tbarGame.size(); ++i)
        buttons.push_back({QString::fromUtf8(captions[i]),
                           QString::fromUtf8(gamePage::tbarGame[i].toolTip),
                           QString::fromUtf8(icons[i]), shortcuts[i]});
    return boulix::makeToolbar(
        QStringLiteral("tbarGame"), buttons, [this](int button) { page_.clickButton(button); },
        this);
}

void GameTab::makePrintMenu() {
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mnuPrintGame"));
    for (std::size_t i = 0; i < gamePage::printMenu.size(); ++i) {
        QAction *entry = menu->addAction(QString::fromUtf8(gamePage::printMenu[i]));
        const int number = static_cast<int>(i) + 1;
        entry->setObjectName(QStringLiteral("mnuPrintGame_%1").arg(number));
        connect(entry, &QAction::triggered, this, [this, number] { page_.clickPrint(number); });
    }
    menu->actions().front()->setShortcut(QKeySequence(QKeySequence::Print));
    QAction *print = tbarGame->actions().back();
    print->setMenu(menu);
    if (auto *button = qobject_cast<QToolButton *>(tbarGame->widgetForAction(print)))
        button->setPopupMode(QToolButton::InstantPopup);
}

QWidget *GameTab::makeGame() {
    auto *side = new QWidget(this);
    lvwGame->setObjectName(QStringLiteral("lvwGame"));
    lvwGame->setAccessibleName(QStringLiteral("Grilles du jeu courant"));
    lvwGame->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(lvwGame->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &GameTab::showButtons);
    chkUpdateList->setObjectName(QStringLiteral("chkUpdateList"));
    chkUpdateList->setToolTip(QStringLiteral("Garder la liste des grilles à jour"));
    connect(chkUpdateList, &QCheckBox::clicked, this,
            [this](bool on) { page_.tickUpdateList(on); });
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(lvwGame, 1);
    column->addWidget(count_);
    column->addWidget(file_);
    column->addWidget(chkUpdateList, 0, Qt::AlignLeft);
    return side;
}

/// A line under the list, which is what decides how wide this side is.
ElidedLabel *GameTab::makeLine(const QString &name, const QString &title) {
    auto *line = new ElidedLabel(this);
    line->setObjectName(name);
    line->setAccessibleDescription(title);
    line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return line;
}

QWidget *GameTab::makeSides(winningsPage &winnings) {
    TabGame->setObjectName(QStringLiteral("TabGame"));
    TabGame->setDocumentMode(true);
    addSide(winnings_->verification(), QStringLiteral("&Vérifications"));
    addSide(winnings_->performance(), QStringLiteral("&Performances"));
    addSide(winnings_->report(), QStringLiteral("&Rapports"));
    // In a wide window an amount still stands near what it is the amount of.
    for (QWidget *table :
         {winnings_->verification(), winnings_->performance(), winnings_->report()})
        table->setMaximumWidth(fontMetrics().averageCharWidth() * 100);
    addSide(design_, QStringLiteral("Jeu&x"));
    connect(TabGame, &QTabWidget::currentChanged, this, [this, &winnings](int index) {
        winnings.clickSubTab(index);
        design_->passFocusOn();
    });
    TabGame->setCurrentIndex(TabGame->count() - 1); // a game is made before it wins
    return TabGame;
}

void GameTab::addSide(QWidget *side, const QString &caption) {
    auto *frame = new QWidget(TabGame);
    frame->setObjectName(QStringLiteral("frameGameTab_%1").arg(TabGame->count()));
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(0, theme::gap, 0, 0);
    column->addWidget(new ScrollPanel(side, frame));
    TabGame->addTab(frame, caption);
}

std::vector<std::int64_t> GameTab::selectedRows() const {
    return lvwGame->selectedRows();
}

bool GameTab::anyRowSelected() const {
    return lvwGame->selectionModel()->hasSelection();
}

/// The buttons that have nothing to act on are off.
void GameTab::showButtons() {
    int button = 0;
    for (QAction *action : tbarGame->actions())
        setWhyOff(*action, toQt(page_.whyOff(++button)));
}

void GameTab::showSide(int index) {
    TabGame->setCurrentIndex(index);
}

void GameTab::refresh() {
    chkUpdateList->setChecked(page_.chkUpdateList());
    count_->setText(toQt(page_.lblCount()));
    file_->setText(toQt(page_.lblFile()));
    file_->setVisible(!file_->text().isEmpty());
    file_->setToolTip(toQt(page_.document.file()));
    showButtons();
    design_->refresh();
}

void GameTab::runGameList(frmGameList &window) {
    GameListDialog(window, this).exec();
}

void GameTab::runOptimiser(frmOptimiser &window) {
    OptimiserDialog(window, this).exec();
}

} // namespace boulix
