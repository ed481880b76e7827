// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/printDialog.h"

#include "printing/frmPrint.h"
#include "printing/modPrinter.h"
#include "sill/reports.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace boulix {

PrintDialog::PrintDialog(frmPrint &rules, QWidget *parent)
    : QDialog(parent), rules_(rules), cmbPrinter(new QComboBox(this)),
      optPrintDir(new QButtonGroup(this)),
      txtOffsetX(makeOffset(QStringLiteral("txtOffsetX"), rules.txtOffsetX)),
      txtOffsetY(makeOffset(QStringLiteral("txtOffsetY"), rules.txtOffsetY)) {
    setObjectName(QStringLiteral("frmPrint"));
    setWindowTitle(QString::fromUtf8(frmPrint::caption));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::margin);
    column->addWidget(makePrinterRow());
    column->addWidget(makeDirectionFrame());
    column->addWidget(makeOffsetFrame());
    column->addStretch();
    column->addWidget(makeButtons());
}

QLineEdit *PrintDialog::makeOffset(const QString &name, const std::string &value) {
    auto *box = new QLineEdit(toQt(value), this);
    box->setObjectName(name);
    box->setToolTip(QString::fromUtf8(frmPrint::offsetHolds));
    box->setPlaceholderText(QStringLiteral("0"));
    box->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
    return box;
}

QWidget *PrintDialog::makePrinterRow() {
    cmbPrinter->setObjectName(QStringLiteral("cmbPrinter"));
    cmbPrinter->setToolTip(QStringLiteral("Sélectionnez votre imprimante ici"));
    cmbPrinter->setMinimumContentsLength(28);
    for (const std::string &printer : rules_.cmbPrinter)
        cmbPrinter->addItem(toQt(printer));
    if (!rules_.cmbPrinter.empty())
        cmbPrinter->addItem(QString::fromUtf8(modPrinter::pdfEntry));
    cmbPrinter->setCurrentIndex(rules_.cmbPrinterIndex);

    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap);
    auto *title = new QLabel(QStringLiteral("I&mprimante"), row);
    title->setBuddy(cmbPrinter);
    layout->addWidget(title);
    layout->addWidget(cmbPrinter, 1);
    return row;
}

QWidget *PrintDialog::makeDirectionFrame() {
    const std::array<QString, 4> captions = {
        QStringLiteral("Impression par la &gauche"), QStringLiteral("Impression par la &droite"),
        QStringLiteral("Impression par le &haut"), QStringLiteral("Impression par le &bas")};
    auto *frame = new QGroupBox(QStringLiteral("Direction de l'impression du bulletin"), this);
    auto *layout = new QVBoxLayout(frame);
    layout->setSpacing(theme::gap / 2);
    layout->addWidget(
        new QLabel(QStringLiteral("Sélectionnez le sens d'impression du bulletin"), frame));
    for (std::size_t i = 0; i < captions.size(); ++i) {
        auto *option = new QRadioButton(captions[i], frame);
        option->setObjectName(QStringLiteral("optPrintDir_%1").arg(i));
        optPrintDir->addButton(option, static_cast<int>(i));
        // The Tab key stops at the one that is on only.
        const bool isOn = static_cast<int>(i) == rules_.optPrintDir;
        option->setFocusPolicy(isOn ? Qt::StrongFocus : Qt::ClickFocus);
        layout->addWidget(option);
    }
    optPrintDir->button(rules_.optPrintDir)->setChecked(true);
    return frame;
}

QWidget *PrintDialog::makeOffsetFrame() {
    auto *frame = new QGroupBox(QStringLiteral("Paramètres pour l'impression des grilles"), this);
    auto *layout = new QFormLayout(frame);
    layout->setSpacing(theme::gap);
    auto *lblOffsetX = new QLabel(QStringLiteral("Décalage h&orizontal (mm)"), frame);
    auto *lblOffsetY = new QLabel(QStringLiteral("Décalage &vertical (mm)"), frame);
    lblOffsetX->setObjectName(QStringLiteral("lblOffsetX"));
    lblOffsetY->setObjectName(QStringLiteral("lblOffsetY"));
    lblOffsetX->setBuddy(txtOffsetX);
    lblOffsetY->setBuddy(txtOffsetY);
    layout->addRow(lblOffsetX, txtOffsetX);
    layout->addRow(lblOffsetY, txtOffsetY);
    setTabOrder(optPrintDir->button(rules_.optPrintDir), txtOffsetX);
    setTabOrder(txtOffsetX, txtOffsetY);
    return frame;
}

QWidget *PrintDialog::makeButtons() {
    auto *row = new QWidget(this);
    auto *cmdOK = new QPushButton(QStringLiteral("OK"), row);
    auto *cmdCancel = new QPushButton(QStringLiteral("&Annuler"), row);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    cmdOK->setEnabled(rules_.cmdOKEnabled);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &PrintDialog::confirm);
    connect(cmdCancel, &QPushButton::clicked, this, &PrintDialog::reject);

    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::gap);
    layout->addStretch();
    layout->addWidget(cmdOK);
    layout->addWidget(cmdCancel);
    return row;
}

void PrintDialog::confirm() {
    rules_.cmbPrinterIndex = cmbPrinter->currentIndex();
    rules_.optPrintDir = optPrintDir->checkedId();
    rules_.txtOffsetX = fromQt(txtOffsetX->text());
    rules_.txtOffsetY = fromQt(txtOffsetY->text());
    runCommand([this] { rules_.clickOK(); });
    if (rules_.closed())
        accept();
}

void PrintDialog::reject() {
    rules_.clickCancel();
    QDialog::reject();
}

} // namespace boulix
