// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/games/optimiserDialog.h"

#include "sill/reports.h"
#include "ui/games/gridCurve.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "workbench/frmOptimiser.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

namespace {

struct Figure {
    const char *name;
    const char *title;
    std::string frmOptimiser::*text;
};

constexpr std::array<Figure, 7> figures = {{
    {"lblGrids", "Système trouvé", &frmOptimiser::lblGrids},
    {"lblCost", "Prix", &frmOptimiser::lblCost},
    {"lblTold", "Calcul itératif", &frmOptimiser::lblTold},
    {"lblSaved", "Économie", &frmOptimiser::lblSaved},
    {"lblRecord", "Record publié", &frmOptimiser::lblRecord},
    {"lblBound", "Borne inférieure", &frmOptimiser::lblBound},
    {"lblTime", "Temps", &frmOptimiser::lblTime},
}};

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace

OptimiserDialog::OptimiserDialog(frmOptimiser &rules, QWidget *parent)
    : QDialog(parent), rules_(rules) {
    setObjectName(QStringLiteral("frmOptimiser"));
    setWindowTitle(QString::fromUtf8(frmOptimiser::caption));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::margin);
    column->addWidget(makeQuestion());
    column->addWidget(makeFigures());
    curve_ = new GridCurve(rules, this);
    curve_->setObjectName(QStringLiteral("curve"));
    column->addWidget(curve_, 1);
    lblState = new QLabel(this);
    lblState->setObjectName(QStringLiteral("lblState"));
    lblState->setWordWrap(true);
    column->addWidget(lblState);
    column->addLayout(makeButtons());
    rules_.changed = [this] { refresh(); };
    refresh();
    cmdStart->setFocus();
}

OptimiserDialog::~OptimiserDialog() {
    rules_.changed = nullptr;
}

QWidget *OptimiserDialog::makeQuestion() {
    auto *question = new QWidget(this);
    cmbGuarantee = new QComboBox(question);
    cmbGuarantee->setObjectName(QStringLiteral("cmbGuarantee"));
    cmbGuarantee->setToolTip(QStringLiteral("Ce que le système garantit"));
    for (const std::string &text : rules_.cmbGuarantee())
        cmbGuarantee->addItem(toQt(text));
    connect(cmbGuarantee, &QComboBox::activated, this,
            [this](int index) { runCommand([&] { rules_.chooseGuarantee(index); }); });
    auto *title = new QLabel(QStringLiteral("&Garantie"), question);
    title->setBuddy(cmbGuarantee);
    auto *row = new QHBoxLayout(question);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::gap);
    row->addWidget(title);
    row->addWidget(cmbGuarantee, 1);
    return question;
}

QWidget *OptimiserDialog::makeFigures() {
    auto *widget = new QWidget(this);
    auto *form = new QFormLayout(widget);
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(2 * theme::margin);
    form->setVerticalSpacing(theme::gap / 2);
    for (std::size_t i = 0; i < figures.size(); ++i) {
        figures_[i] = new QLabel(widget);
        figures_[i]->setObjectName(QString::fromLatin1(figures[i].name));
        figures_[i]->setFont(i < 2 ? bold(font()) : font());
        // The window keeps its width while the figures change.
        figures_[i]->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
        form->addRow(QString::fromUtf8(figures[i].title), figures_[i]);
    }
    return widget;
}

QPushButton *OptimiserDialog::makeButton(const char *name, const char *caption,
                                         const char *toolTip) {
    auto *button = new QPushButton(QString::fromUtf8(caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QString::fromUtf8(toolTip));
    return button;
}

QHBoxLayout *OptimiserDialog::makeButtons() {
    cmdStart = makeButton("cmdStart", "&Démarrer", "Chercher un système plus petit, une minute");
    cmdStop =
        makeButton("cmdStop", "&Arrêter", "Arrêter la recherche et garder le meilleur système");
    cmdUse = makeButton("cmdUse", "&Utiliser", "Prendre ce système dans la page");
    auto *cmdExit = makeButton("cmdExit", "&Quitter", "Fermer cette fenêtre");
    cmdStart->setDefault(true);
    connect(cmdStart, &QPushButton::clicked, this,
            [this] { runCommand([this] { rules_.clickStart(); }); });
    connect(cmdStop, &QPushButton::clicked, this, [this] { rules_.clickStop(); });
    connect(cmdUse, &QPushButton::clicked, this,
            [this] { runCommand([this] { rules_.clickUse(); }); });
    connect(cmdExit, &QPushButton::clicked, this, &OptimiserDialog::reject);
    auto *row = new QHBoxLayout;
    row->setSpacing(theme::gap);
    row->addWidget(cmdStart);
    row->addWidget(cmdStop);
    row->addStretch();
    row->addWidget(cmdUse);
    row->addWidget(cmdExit);
    return row;
}

void OptimiserDialog::refresh() {
    for (std::size_t i = 0; i < figures.size(); ++i) {
        const QString text = toQt(rules_.*figures[i].text);
        figures_[i]->setText(text);
        figures_[i]->setAccessibleName(QString::fromUtf8(figures[i].title) + QStringLiteral(" : ") +
                                       text);
    }
    lblState->setText(toQt(rules_.lblState));
    curve_->refresh();
    cmbGuarantee->setCurrentIndex(rules_.guarantee());
    cmbGuarantee->setEnabled(!rules_.running());
    cmdStart->setText(rules_.curve().empty() ? QStringLiteral("&Démarrer")
                                             : QStringLiteral("&Continuer"));
    // The one that is about to be switched off hands the keyboard to the other one.
    const bool startHadFocus = cmdStart->hasFocus();
    const bool stopHadFocus = cmdStop->hasFocus();
    cmdStop->setEnabled(rules_.running());
    cmdStart->setEnabled(rules_.canStart());
    if (startHadFocus && rules_.running())
        cmdStop->setFocus();
    else if (stopHadFocus && !rules_.running())
        (rules_.canStart() ? cmdStart : cmdUse)->setFocus();
    cmdUse->setEnabled(rules_.canUse());
    if (rules_.hidden() && !rules_.running())
        accept();
}

void OptimiserDialog::reject() {
    rules_.clickQuit();
}

} // namespace boulix
