// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/draws/databaseTab.h"

#include "sill/reports.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/elidedLabel.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/toolbar.h"

#include <QAction>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace boulix {

DatabaseTab::DatabaseTab(databasePage &page, QWidget *parent)
    : QWidget(parent), page_(page), txtFind(new QLineEdit(this)), lblFound(new ElidedLabel(this)),
      lvwDBcomb(new ReportView(page.lvwDBcomb, this)), grdDB(new NumberBoardView(page.grdDB, this)),
      lblDBCombDesc(new QLabel(this)) {
    lvwDBcomb->setObjectName(QStringLiteral("lvwDBcomb"));
    lvwDBcomb->setAccessibleName(QStringLiteral("Tirages de la base de données"));
    grdDB->setObjectName(QStringLiteral("grdDB"));
    lblDBCombDesc->setObjectName(QStringLiteral("lblDBCombDesc"));
    makeToolbar();
    makeSearchKeys();
    layOut();
    connect(lvwDBcomb, &ReportView::rowClicked, this, [this](qint64 row) {
        runCommand([&] { page_.clickRow(static_cast<std::int32_t>(row)); });
    });
    connect(lvwDBcomb->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DatabaseTab::refreshButtons);
    connect(lvwDBcomb->model(), &QAbstractItemModel::modelReset, this,
            &DatabaseTab::refreshButtons);
    page_.view(this);
    refresh();
}

DatabaseTab::~DatabaseTab() {
    page_.view(nullptr);
}

void DatabaseTab::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("&Importer"),
         QStringLiteral("Importer des tirages depuis un fichier texte de la française des jeux"),
         QStringLiteral("import"), QKeySequence(Qt::CTRL | Qt::Key_I)},
        {QStringLiteral("&Ajouter"),
         QStringLiteral("Ajouter une combinaison à la base de données des tirages"),
         QStringLiteral("add"), QKeySequence(QKeySequence::New)},
        {QStringLiteral("&Modifier"),
         QStringLiteral("Modifier une combinaison de la base de données des tirages"),
         QStringLiteral("edit"), QKeySequence(Qt::Key_F2)},
        {QStringLiteral("&Supprimer"),
         QStringLiteral("Supprimer une combinaison de la base de données des tirages"),
         QStringLiteral("delete"), QKeySequence(QKeySequence::Delete)},
        {QStringLiteral("Im&primer"), QStringLiteral("Imprimer la base de données des tirages"),
         QStringLiteral("print"), QKeySequence(QKeySequence::Print)},
        {QStringLiteral("E&xporter"), QStringLiteral("Exporter la base de données des tirages"),
         QStringLiteral("export"), QKeySequence(Qt::CTRL | Qt::Key_E)},
    };
    tbarDB = boulix::makeToolbar(
        QStringLiteral("tbarDB"), buttons, [this](int button) { page_.clickButton(button); }, this);
}

QWidget *DatabaseTab::makeSearch() {
    txtFind->setObjectName(QStringLiteral("txtFind"));
    txtFind->setAccessibleName(QStringLiteral("Chercher dans la base"));
    txtFind->setPlaceholderText(QStringLiteral("Chercher : une date ou des numéros"));
    txtFind->setToolTip(QStringLiteral(
        "Une date (15/03/2003, 03/2003, mars 2003, 2003) ou des numéros que le tirage doit tous "
        "contenir, complémentaire compris (7 13 22). Ctrl+F, ou tapez dans la liste."));
    txtFind->setClearButtonEnabled(true);
    txtFind->installEventFilter(this);
    connect(txtFind, &QLineEdit::textChanged, this,
            [this](const QString &text) { runCommand([&] { page_.typeSearch(fromQt(text)); }); });
    cmdFindPrevious = makeStep("cmdFindPrevious", "previous",
                               QStringLiteral("Tirage trouvé précédent, plus récent"),
                               QKeySequence(Qt::SHIFT | Qt::Key_F3), &databasePage::findPrevious);
    cmdFindNext =
        makeStep("cmdFindNext", "next", QStringLiteral("Tirage trouvé suivant, plus ancien"),
                 QKeySequence(Qt::Key_F3), &databasePage::findNext);
    lblFound->setObjectName(QStringLiteral("lblFound"));
    lblFound->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // as wide as the list

    auto *search = new QWidget(this);
    auto *grid = new QGridLayout(search);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::gap / 2);
    grid->setVerticalSpacing(theme::gap / 2);
    grid->addWidget(txtFind, 0, 0);
    grid->addWidget(cmdFindPrevious, 0, 1);
    grid->addWidget(cmdFindNext, 0, 2);
    grid->addWidget(lblFound, 1, 0, 1, 3);
    return search;
}

/// A button that goes from one draw found to another. The key works on the whole page.
QToolButton *DatabaseTab::makeStep(const char *name, const char *icon, const QString &toolTip,
                                   const QKeySequence &keys, void (databasePage::*step)()) {
    auto *action = new QAction(loadIcon(QString::fromLatin1(icon)), toolTip, this);
    action->setShortcut(keys);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(toolTip, keys.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this,
            [&page = page_, step] { runCommand([&page, step] { (page.*step)(); }); });
    addAction(action);
    auto *button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

/// Ctrl+F leads into the search line, and so does a digit or a letter typed in the list.
void DatabaseTab::makeSearchKeys() {
    auto *find = new QAction(QStringLiteral("Chercher"), this);
    find->setObjectName(QStringLiteral("findDraw"));
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, txtFind, [this] {
        txtFind->setFocus(Qt::ShortcutFocusReason);
        txtFind->selectAll();
    });
    addAction(find);
    connect(lvwDBcomb, &ReportView::typed, txtFind, [this](const QString &text) {
        if (text.isEmpty() || !text.front().isLetterOrNumber())
            return;
        txtFind->setFocus(Qt::ShortcutFocusReason);
        txtFind->setText(text);
    });
}

/// In the search line Return goes on to the next draw found, with Shift to the one before, and
/// Escape gives the list back as it was without a search.
bool DatabaseTab::eventFilter(QObject *watched, QEvent *event) {
    if (watched == txtFind && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool back = key->modifiers().testFlag(Qt::ShiftModifier);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            (back ? cmdFindPrevious : cmdFindNext)->defaultAction()->trigger();
            return true;
        }
        if (key->key() == Qt::Key_Escape) {
            leaveSearch();
            return true;
        }
        if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) {
            lvwDBcomb->setFocus();
            QCoreApplication::sendEvent(lvwDBcomb, event);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void DatabaseTab::leaveSearch() {
    txtFind->clear();
    lvwDBcomb->setFocus();
}

void DatabaseTab::layOut() {
    QFont title = lblDBCombDesc->font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * 1.2);
    lblDBCombDesc->setFont(title);
    lblDBCombDesc->setAlignment(Qt::AlignCenter);

    auto *draw = new QVBoxLayout;
    draw->setSpacing(theme::gap);
    draw->addWidget(lblDBCombDesc);
    draw->addWidget(grdDB, 1);

    auto *below = new QHBoxLayout;
    below->setContentsMargins(theme::margin, 0, theme::margin, theme::margin);
    below->setSpacing(2 * theme::margin);
    auto *draws = new QVBoxLayout;
    draws->setSpacing(theme::gap / 2);
    draws->addWidget(makeSearch());
    draws->addWidget(lvwDBcomb, 1);
    below->addLayout(draws);
    below->addLayout(draw, 1);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::gap);
    column->addWidget(tbarDB);
    column->addLayout(below, 1);
    setTabStops({tbarDB, txtFind, cmdFindPrevious, cmdFindNext, lvwDBcomb, grdDB});
}

std::vector<std::int64_t> DatabaseTab::selectedRows() const {
    return lvwDBcomb->selectedRows();
}

void DatabaseTab::goToRow(std::int64_t row, bool select) {
    lvwDBcomb->goToRow(row, select);
}

void DatabaseTab::refresh() {
    lblDBCombDesc->setText(toQt(page_.lblDBCombDesc));
    lblFound->setText(toQt(page_.finder.lblFound));
    for (QToolButton *step : {cmdFindPrevious, cmdFindNext})
        step->defaultAction()->setEnabled(!page_.finder.found().empty());
    refreshButtons();
}

/// Without a selected row there is nothing to change or to delete.
void DatabaseTab::refreshButtons() {
    const QString why = page_.getSelectedDraw() > 0
                            ? QString()
                            : QStringLiteral("Choisissez d'abord un tirage dans la liste.");
    for (const int number : {databasePage::modifyDraw, databasePage::removeDraw})
        setWhyOff(*tbarDB->actions().at(number - 1), why);
}

/// The list has its place on the screen only now, and opens at the draw of the board. Later it
/// comes back as it was left.
void DatabaseTab::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (!placed_ && page_.shownDraw() > 0)
        goToRow(page_.shownDraw(), false);
    placed_ = true;
}

} // namespace boulix
