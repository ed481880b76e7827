// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/gridPreviewDialog.h"

#include "printing/frmPrintGridPreview.h"
#include "sill/reports.h"
#include "ui/printing/slipView.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/toolbar.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

GridPreviewDialog::GridPreviewDialog(frmPrintGridPreview &rules, QWidget *parent)
    : QDialog(parent), rules_(rules), picGrid(new SlipView(rules, this)),
      updnBeg(makeCounter(QStringLiteral("updnBeg"), QStringLiteral("lblBeg"), rules.updnBeg)),
      updnEnd(makeCounter(QStringLiteral("updnEnd"), QStringLiteral("lblEnd"), rules.updnEnd)) {
    setObjectName(QStringLiteral("frmPrintGridPreview"));
    setWindowTitle(QString::fromUtf8(frmPrintGridPreview::caption));
    picGrid->setObjectName(QStringLiteral("picGrid"));
    picGrid->setAccessibleName(QStringLiteral("Bulletin"));

    auto *choices = new QHBoxLayout;
    choices->setSpacing(theme::margin);
    choices->addWidget(makeRange());
    choices->addWidget(makeOptions());
    choices->addWidget(makeSubscription());
    choices->addStretch();

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, 0, theme::margin, theme::gap);
    column->setSpacing(theme::gap);
    column->addWidget(makeToolbar());
    column->addLayout(choices);
    column->addWidget(picGrid, 1);
    column->addWidget(makeStatusBar());

    rules_.changed = [this] { refresh(); };
    refresh();
}

GridPreviewDialog::~GridPreviewDialog() {
    rules_.changed = nullptr;
}

QWidget *GridPreviewDialog::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("P&récédent"), QStringLiteral("Montrer le bulletin précédent"),
         QStringLiteral("previous"), QKeySequence(Qt::Key_PageUp)},
        {QStringLiteral("&Suivant"), QStringLiteral("Montrer le bulletin suivant"),
         QStringLiteral("next"), QKeySequence(Qt::Key_PageDown)},
        {QStringLiteral("&Imprimer"), QStringLiteral("Imprimer les bulletins"),
         QStringLiteral("print"), QKeySequence(QKeySequence::Print)},
        {QStringLiteral("&Annuler"),
         QStringLiteral("Fermer sans imprimer"),
         QStringLiteral("cancel"),
         {}},
        {QStringLiteral("&Paramètres"),
         QStringLiteral("Paramètres d'impression"),
         QStringLiteral("printer"),
         {}},
        {QStringLiteral("PD&F"),
         QStringLiteral("Enregistrer les bulletins dans un fichier PDF"),
         QStringLiteral("save"),
         {}},
    };
    return boulix::makeToolbar(
        QStringLiteral("tbarPrint"), buttons,
        [this](int button) { runCommand([&] { rules_.clickToolbar(button); }); }, this);
}

QSpinBox *GridPreviewDialog::makeCounter(const QString &name, const QString &label,
                                         upDown &counter) {
    auto *box = new QSpinBox(this);
    box->setObjectName(name);
    box->setKeyboardTracking(false); // a number half typed is no choice yet
    box->setRange(counter.min(), counter.max());
    auto *shown = box->findChild<QLineEdit *>();
    shown->setObjectName(label);
    connect(box, &QSpinBox::valueChanged, this, [this, &counter](int value) {
        runCommand([&] { counter.set(value); });
        refresh();
    });
    return box;
}

QWidget *GridPreviewDialog::makeRange() {
    auto *frame = new QGroupBox(QStringLiteral("Grilles"), this);
    auto *form = new QFormLayout(frame);
    form->setSpacing(theme::gap);
    form->addRow(QStringLiteral("Première &grille"), updnBeg);
    form->addRow(QStringLiteral("&Dernière grille"), updnEnd);
    updnBeg->findChild<QLineEdit *>()->setAccessibleName(QStringLiteral("Première grille"));
    updnEnd->findChild<QLineEdit *>()->setAccessibleName(QStringLiteral("Dernière grille"));
    return frame;
}

QRadioButton *GridPreviewDialog::makeOption(const QString &name, const QString &caption,
                                            QWidget *frame) {
    auto *option = new QRadioButton(caption, frame);
    option->setObjectName(name);
    return option;
}

QWidget *GridPreviewDialog::makeOptions() {
    auto *frame = new QGroupBox(QStringLiteral("Options"), this);
    auto *jokerYes = makeOption(QStringLiteral("optPlayJokerYes"),
                                QStringLiteral("Participation au &Joker"), frame);
    auto *jokerNo = makeOption(QStringLiteral("optPlayJokerNo"),
                               QStringLiteral("Pas de participation au Jo&ker"), frame);
    auto *both = makeOption(QStringLiteral("optWedAndSat"),
                            QStringLiteral("Tirage &Mercredi et Samedi"), frame);
    auto *either = makeOption(QStringLiteral("optWedOrSat"),
                              QStringLiteral("Tirage Mercredi &ou Samedi"), frame);
    auto *jokers = new QButtonGroup(frame);
    jokers->addButton(jokerYes);
    jokers->addButton(jokerNo);
    auto *days = new QButtonGroup(frame);
    days->addButton(both);
    days->addButton(either);
    (rules_.optPlayJokerYes() ? jokerYes : jokerNo)->setChecked(true);
    (rules_.optWedAndSat() ? both : either)->setChecked(true);
    connect(jokerYes, &QRadioButton::toggled, this, [this](bool on) { rules_.clickPlayJoker(on); });
    connect(both, &QRadioButton::toggled, this, [this](bool on) { rules_.clickWedAndSat(on); });

    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(theme::gap / 2);
    for (QRadioButton *option : {either, both})
        layout->addWidget(option);
    layout->addSpacing(theme::gap);
    for (QRadioButton *option : {jokerNo, jokerYes})
        layout->addWidget(option);
    return frame;
}

QWidget *GridPreviewDialog::makeSubscription() {
    auto *side = new QWidget(this);
    chkAbon = new QCheckBox(QStringLiteral("A&bonnement"), side);
    chkAbon->setObjectName(QStringLiteral("chkAbon"));
    connect(chkAbon, &QCheckBox::toggled, this, [this](bool on) { rules_.clickAbon(on); });
    frameAbon = new QGroupBox(side);
    frameAbon->setObjectName(QStringLiteral("frameAbon"));
    auto *weeks = new QVBoxLayout(frameAbon);
    weeks->setSpacing(theme::gap / 2);
    for (std::size_t i = 0; i < optWeek.size(); ++i) {
        optWeek[i] = makeOption(QStringLiteral("optWeek_%1").arg(i),
                                QStringLiteral("&%1 Semaines").arg(i + 2), frameAbon);
        optWeek[i]->setAutoExclusive(false); // all four are off without a subscription
        connect(optWeek[i], &QRadioButton::clicked, this, [this, i] { rules_.clickWeek(i); });
        weeks->addWidget(optWeek[i]);
    }
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap / 2);
    layout->addWidget(chkAbon);
    layout->addWidget(frameAbon, 1);
    return side;
}

QWidget *GridPreviewDialog::makeStatusBar() {
    auto *bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("StatusBar"));
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2 * theme::margin);
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel(bar);
        panels_[i]->setObjectName(QStringLiteral("StatusBar_%1").arg(i + 1));
        layout->addWidget(panels_[i]);
    }
    layout->addStretch();
    return bar;
}

void GridPreviewDialog::refresh() {
    const auto show = [](QSpinBox *box, const upDown &counter) {
        const QSignalBlocker quiet(box);
        box->setRange(counter.min(), counter.max());
        box->setValue(counter.value());
    };
    show(updnBeg, rules_.updnBeg);
    show(updnEnd, rules_.updnEnd);
    chkAbon->setChecked(rules_.chkAbon());
    frameAbon->setEnabled(rules_.frameAbonEnabled());
    for (std::size_t i = 0; i < optWeek.size(); ++i)
        optWeek[i]->setChecked(rules_.optWeek(i));
    panels_[0]->setText(toQt(rules_.statusPanel1()));
    panels_[1]->setText(toQt(rules_.statusPanel2()));
    picGrid->update();
    if (rules_.hidden())
        hide();
}

void GridPreviewDialog::reject() {
    constexpr int cancel = 4;
    rules_.clickToolbar(cancel);
}

} // namespace boulix
