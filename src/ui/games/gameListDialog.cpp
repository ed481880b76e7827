// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/gameListDialog.h"

#include "ui/games/displayGameDialog.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/toolbar.h"

#include <QAction>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

GameListDialog::GameListDialog(frmGameList &rules, QWidget *parent)
    : QDialog(parent), rules_(rules), tbar(makeToolbar()),
      lvwGame(new ReportView(rules.lvwGame, this)) {
    setObjectName(QStringLiteral("frmGameList"));
    setWindowTitle(QString::fromUtf8(frmGameList::caption));
    lvwGame->setObjectName(QStringLiteral("lvwGame"));
    lvwGame->setAccessibleName(QStringLiteral("Jeux créés"));
    lvwGame->keepAllColumnsVisible();
    connect(lvwGame, &ReportView::rowClicked, this, [this](qint64 row) { rules_.clickRow(row); });

    auto *below = new QVBoxLayout;
    below->setContentsMargins(theme::margin, theme::gap, theme::margin, theme::margin);
    below->setSpacing(theme::margin);
    below->addWidget(lvwGame, 1);
    below->addWidget(makeDescription());
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tbar);
    column->addLayout(below, 1);
    lvwGame->setFocus();
    rules_.view(this);
    refresh();
}

GameListDialog::~GameListDialog() {
    rules_.view(nullptr);
}

QToolBar *GameListDialog::makeToolbar() {
    const std::array<const char *, 6> captions = {"&Supprimer", "&Renommer", "&Exporter",
                                                  "&Imprimer",  "&Voir",     "&Quitter"};
    const std::array<const char *, 6> icons = {"delete", "rename", "export",
                                               "print",  "view",   "quit"};
    const std::array<QKeySequence, 6> shortcuts = {
        QKeySequence(QKeySequence::Delete), QKeySequence(Qt::Key_F2),
        QKeySequence(Qt::CTRL | Qt::Key_E), QKeySequence(QKeySequence::Print),
        QKeySequence(Qt::Key_F3),           {}};
    std::vector<ToolbarButton> buttons;
    for (std::size_t i = 0; i < frmGameList::tbar.size(); ++i)
        buttons.push_back({QString::fromUtf8(captions[i]),
                           QString::fromUtf8(frmGameList::tbar[i].toolTip),
                           QString::fromUtf8(icons[i]), shortcuts[i]});
    return boulix::makeToolbar(
        QStringLiteral("tbar"), buttons, [this](int button) { rules_.clickButton(button); }, this);
}

QWidget *GameListDialog::makeDescription() {
    constexpr std::array<const char *, 4> names = {"lblnGrid", "lblnWin", "lblnFixed",
                                                   "lblnSelected"};
    constexpr std::array<const char *, 4> titles = {"Nombre de grilles", "Numéros gagnants",
                                                    "Numéros fixes", "Numéros sélectionnés"};
    auto *frame = new QGroupBox(QString::fromUtf8(frmGameList::descriptionCaption), this);
    auto *form = new QFormLayout(frame);
    form->setHorizontalSpacing(2 * theme::margin);
    form->setVerticalSpacing(theme::gap / 2);
    for (std::size_t i = 0; i < values_.size(); ++i) {
        values_[i] = new QLabel(frame);
        values_[i]->setObjectName(QString::fromLatin1(names[i]));
        form->addRow(QString::fromUtf8(titles[i]), values_[i]);
    }
    return frame;
}

void GameListDialog::refresh() {
    const std::array<const std::string *, 4> texts = {&rules_.lblnGrid, &rules_.lblnWin,
                                                      &rules_.lblnFixed, &rules_.lblnSelected};
    for (std::size_t i = 0; i < values_.size(); ++i)
        values_[i]->setText(toQt(*texts[i]));
    int button = 0;
    for (QAction *action : tbar->actions())
        setWhyOff(*action, toQt(rules_.whyOff(++button)));
    if (rules_.hidden())
        accept();
}

void GameListDialog::runDisplayGame(frmDisplayGame &window) {
    DisplayGameDialog(window, this).exec();
}

} // namespace boulix
