// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/forecasts/testPronoDialog.h"

#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/toolbar.h"
#include "ui/widgets/upDownView.h"
#include "workbench/frmTestProno.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

TestPronoDialog::TestPronoDialog(frmTestProno &rules, QWidget *parent)
    : QDialog(parent), rules_(rules), txtNumTir(makeBox(QStringLiteral("txtNumTir"))),
      spnTir(new UpDownView(this)), lblDescTir(new QLabel(this)),
      txtTirBefore(makeBox(QStringLiteral("txtTirBefore"))),
      txtTirAfter(makeBox(QStringLiteral("txtTirAfter"))),
      txtNbrCount(makeBox(QStringLiteral("txtNbrCount"))),
      lvWResult(new ReportView(rules.lvWResult, this)) {
    setObjectName(QStringLiteral("frmTestProno"));
    setWindowTitle(QString::fromUtf8(frmTestProno::caption));
    makeToolbar();
    lvWResult->setObjectName(QStringLiteral("lvWResult"));
    lvWResult->setAccessibleName(QStringLiteral("Résultats du test"));

    auto *below = new QVBoxLayout;
    below->setContentsMargins(theme::margin, theme::gap, theme::margin, theme::margin);
    below->setSpacing(theme::margin);
    below->addWidget(makeQuestions());
    below->addWidget(lvWResult, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(toolBar);
    column->addLayout(below, 1);
    connectControls();
    rules_.changed = [this] { refresh(); };
    refresh();
    txtTirBefore->setFocus();
}

TestPronoDialog::~TestPronoDialog() {
    rules_.changed = nullptr;
}

void TestPronoDialog::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("Ca&lculer"), QStringLiteral("Tester le pronostique"),
         QStringLiteral("compute"), QKeySequence(Qt::Key_F5)},
        {QStringLiteral("&Quitter"),
         QStringLiteral("Fermer cette fenêtre"),
         QStringLiteral("quit"),
         {}},
    };
    toolBar = boulix::makeToolbar(
        QStringLiteral("toolBar"), buttons,
        [this](int button) {
            if (button == 1)
                rules_.clickCompute();
            else
                close();
        },
        this);
}

QLineEdit *TestPronoDialog::makeBox(const QString &name) {
    auto *box = new QLineEdit(this);
    box->setObjectName(name);
    box->setFixedWidth(fontMetrics().averageCharWidth() * 12);
    return box;
}

QWidget *TestPronoDialog::makeQuestions() {
    lblDescTir->setObjectName(QStringLiteral("lblDescTir"));
    lblDescTir->setTextFormat(Qt::PlainText);
    lblDescTir->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("Tirage N° 000 du & 00/00/0000")));
    spnTir->setObjectName(QStringLiteral("spnTir"));
    spnTir->setAccessibleName(QStringLiteral("Tirage suivant ou précédent"));
    spnTir->setEndless();

    auto *questions = new QWidget(this);
    const auto label = [questions](const char *text, QWidget *buddy) {
        auto *made = new QLabel(QString::fromUtf8(text), questions);
        made->setBuddy(buddy);
        return made;
    };
    auto *grid = new QGridLayout(questions);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::gap);
    grid->setVerticalSpacing(theme::gap);
    grid->addWidget(label("Etablir le pronostique sur la base du &tirage", txtNumTir), 0, 0);
    grid->addWidget(txtNumTir, 0, 1);
    auto *draw = new QHBoxLayout;
    draw->setSpacing(theme::gap);
    draw->addWidget(spnTir);
    draw->addWidget(lblDescTir, 1);
    grid->addLayout(draw, 0, 2);
    grid->addWidget(new QLabel(QStringLiteral("Tester le pronostique pour"), questions), 1, 0);
    grid->addWidget(txtTirBefore, 1, 1);
    grid->addWidget(label("tirages a&vant ce tirage", txtTirBefore), 1, 2);
    grid->addWidget(txtTirAfter, 2, 1);
    grid->addWidget(label("tirages a&près ce tirage", txtTirAfter), 2, 2);
    grid->addWidget(new QLabel(QStringLiteral("Considérer les "), questions), 3, 0);
    grid->addWidget(txtNbrCount, 3, 1);
    grid->addWidget(label("&meilleurs numéros issus du pronostique", txtNbrCount), 3, 2);
    grid->setColumnStretch(2, 1);
    txtNumTir->setToolTip(QStringLiteral("Position dans la base : un nombre entier de 1 à %1")
                              .arg(toQt(rules_.txtNumTir())));
    txtTirBefore->setToolTip(QString::fromUtf8(frmTestProno::countHolds));
    txtTirAfter->setToolTip(QString::fromUtf8(frmTestProno::countHolds));
    txtNbrCount->setToolTip(QStringLiteral("Un nombre entier de 1 à 49"));
    setTabStops({toolBar, txtNumTir, spnTir, txtTirBefore, txtTirAfter, txtNbrCount, lvWResult});
    return questions;
}

void TestPronoDialog::connectControls() {
    connect(txtNumTir, &QLineEdit::textEdited, this,
            [this](const QString &text) { rules_.editNumTir(fromQt(text)); });
    connect(txtNumTir, &QLineEdit::returnPressed, this, [this] { rules_.leaveNumTir(); });
    txtNumTir->installEventFilter(this);
    connect(spnTir, &UpDownView::stepped, this, [this](int by) {
        if (by > 0)
            rules_.stepUp();
        else
            rules_.stepDown();
    });
    connect(txtTirBefore, &QLineEdit::textEdited, this,
            [this](const QString &text) { rules_.txtTirBefore = fromQt(text); });
    connect(txtTirAfter, &QLineEdit::textEdited, this,
            [this](const QString &text) { rules_.txtTirAfter = fromQt(text); });
    connect(txtNbrCount, &QLineEdit::textEdited, this,
            [this](const QString &text) { rules_.editNbrCount(fromQt(text)); });
    connect(lvWResult, &ReportView::headerClicked, this,
            [this](int column) { rules_.clickHeader(column); });
}

/// The box is left with or without a new text in it. Its context menu is a part of it.
bool TestPronoDialog::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusOut &&
        static_cast<const QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
        rules_.leaveNumTir();
    return QDialog::eventFilter(watched, event);
}

void TestPronoDialog::refresh() {
    const auto show = [](QLineEdit *box, const std::string &text) {
        if (box->text() != toQt(text)) // the cursor of somebody who types stays where it is
            box->setText(toQt(text));
    };
    show(txtNumTir, rules_.txtNumTir());
    show(txtTirBefore, rules_.txtTirBefore);
    show(txtTirAfter, rules_.txtTirAfter);
    show(txtNbrCount, rules_.txtNbrCount());
    lblDescTir->setText(toQt(rules_.lblDescTir()));
}

} // namespace boulix
