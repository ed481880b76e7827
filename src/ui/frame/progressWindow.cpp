// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/progressWindow.h"

#include "sill/frmProgress.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace boulix {

namespace {

constexpr int barSteps = 1000; // finer than any bar is wide

} // namespace

ProgressWindow::ProgressWindow(frmProgress &progress, QWidget *parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      progress_(progress), lblInfo(new QLabel(this)),
      ProgressBar2(
          makeBar(QStringLiteral("ProgressBar2"), QStringLiteral("Avancement des étapes"))),
      ProgressBar(makeBar(QStringLiteral("ProgressBar"), QStringLiteral("Avancement"))),
      cmdCancel(new QPushButton(QStringLiteral("&Annuler"), this)) {
    setObjectName(QStringLiteral("frmProgress"));
    lblInfo->setObjectName(QStringLiteral("lblInfo"));
    lblInfo->setWordWrap(true);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(cmdCancel, &QPushButton::clicked, this, &ProgressWindow::cancel);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(2 * theme::margin, 2 * theme::margin, 2 * theme::margin,
                               theme::margin);
    column->setSpacing(theme::margin);
    column->addWidget(lblInfo);
    column->addWidget(ProgressBar2);
    column->addWidget(ProgressBar);
    column->addStretch();
    column->addWidget(cmdCancel, 0, Qt::AlignRight);
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    // The main window is disabled while this one is up; it must not inherit that.
    setEnabled(true);
    refresh();
}

QProgressBar *ProgressWindow::makeBar(const QString &name, const QString &meaning) {
    auto *bar = new QProgressBar(this);
    bar->setAccessibleName(meaning);
    bar->setObjectName(name);
    bar->setRange(0, barSteps);
    return bar;
}

void ProgressWindow::refresh() {
    const QString caption = toQt(progress_.caption);
    if (windowTitle() != caption)
        setWindowTitle(caption);
    lblInfo->setText(linesToQt(progress_.lblInfo));
    showBar(*ProgressBar2, progress_.ProgressBar2);
    showBar(*ProgressBar, progress_.ProgressBar);
    cmdCancel->setVisible(progress_.cancelVisible);
    cmdCancel->setEnabled(!progress_.cancelled());
}

void ProgressWindow::showBar(QProgressBar &bar, const progressBar &state) {
    const auto span = static_cast<double>(state.max - state.min);
    const double part = span > 0 ? static_cast<double>(state.value - state.min) / span : 0.0;
    bar.setVisible(state.visible);
    bar.setValue(static_cast<int>(std::clamp(part, 0.0, 1.0) * barSteps));
}

void ProgressWindow::cancel() {
    if (!progress_.cancelVisible)
        return;
    progress_.clickCancel();
    refresh();
}

void ProgressWindow::closeEvent(QCloseEvent *event) {
    event->ignore();
    cancel();
}

void ProgressWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape)
        cancel();
    else
        QWidget::keyPressEvent(event);
}

} // namespace boulix
