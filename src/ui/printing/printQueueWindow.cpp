// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/printQueueWindow.h"

#include "ui/printing/printQueue.h"
#include "ui/style/theme.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace boulix {

PrintQueueWindow::PrintQueueWindow(PrintQueue &queue)
    : QWidget(nullptr, Qt::Dialog), queue_(queue), lblInfo(new QLabel(this)),
      cmdGiveUp(new QPushButton(QStringLiteral("&Abandonner ce document"), this)),
      cmdStay(new QPushButton(QStringLiteral("&Ne pas quitter"), this)) {
    setObjectName(QStringLiteral("printQueueWindow"));
    setWindowTitle(QStringLiteral("Impression en cours..."));
    setAttribute(Qt::WA_QuitOnClose, false);
    lblInfo->setObjectName(QStringLiteral("lblPrintInfo"));
    lblInfo->setTextFormat(Qt::PlainText);
    lblInfo->setWordWrap(true);
    cmdGiveUp->setObjectName(QStringLiteral("cmdGiveUp"));
    cmdStay->setObjectName(QStringLiteral("cmdStay"));
    auto *bar = new QProgressBar(this);
    bar->setRange(0, 0); // nobody knows how long
    bar->setTextVisible(false);
    bar->setAccessibleName(QStringLiteral("Impression en cours"));
    connect(cmdGiveUp, &QPushButton::clicked, &queue_, &PrintQueue::giveUpCurrent);
    connect(cmdStay, &QPushButton::clicked, this, &PrintQueueWindow::staying);
    connect(&queue_, &PrintQueue::changed, this, &PrintQueueWindow::refresh);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdGiveUp);
    buttons->addWidget(cmdStay);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(2 * theme::margin, 2 * theme::margin, 2 * theme::margin,
                               theme::margin);
    column->setSpacing(theme::margin);
    column->addWidget(lblInfo);
    column->addWidget(bar);
    column->addStretch();
    column->addLayout(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    refresh();
}

void PrintQueueWindow::waitForEnd(bool waits) {
    waitsForEnd_ = waits;
    hide();
    setWindowModality(waits ? Qt::ApplicationModal : Qt::NonModal);
    refresh();
    if (waits)
        show();
}

void PrintQueueWindow::refresh() {
    const HandOver *document = queue_.current();
    cmdStay->setVisible(waitsForEnd_);
    cmdGiveUp->setEnabled(document && document->canBeGivenUp());
    if (!document) {
        if (!waitsForEnd_)
            hide();
        return;
    }
    QString text = QStringLiteral("Le document « %1 » est remis à l'imprimante %2.")
                       .arg(document->title(), document->printer());
    if (queue_.waiting() == 1)
        text += QStringLiteral("\nUn autre document attend.");
    else if (queue_.waiting() > 1)
        text += QStringLiteral("\n%1 autres documents attendent.").arg(queue_.waiting());
    if (waitsForEnd_)
        text += QStringLiteral("\nLe programme se fermera ensuite.");
    lblInfo->setText(text);
}

void PrintQueueWindow::closeEvent(QCloseEvent *event) {
    if (!waitsForEnd_)
        return;
    event->ignore();
    emit staying();
}

void PrintQueueWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace boulix
