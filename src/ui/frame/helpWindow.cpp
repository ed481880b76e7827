// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/helpWindow.h"

#include "sill/help.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/toolbar.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

namespace boulix {

HelpWindow::HelpWindow(QWidget *parent)
    : QWidget(parent, Qt::Window), browser_(new QTextBrowser(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(QStringLiteral("Aide"));
    browser_->setObjectName(QStringLiteral("txtHelp"));
    browser_->setFrameShape(QFrame::NoFrame);
    browser_->document()->setDocumentMargin(2 * theme::margin);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    makeToolbar();
    column->addWidget(browser_);
    resize(760, 620);
}

void HelpWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void HelpWindow::makeToolbar() {
    const std::vector<ToolbarButton> buttons = {
        {QStringLiteral("&Précédent"), QStringLiteral("Revenir à la page précédente"),
         QStringLiteral("previous"), QKeySequence(QKeySequence::Back)},
        {QStringLiteral("&Suivant"), QStringLiteral("Aller à la page suivante"),
         QStringLiteral("next"), QKeySequence(QKeySequence::Forward)},
        {QStringLiteral("So&mmaire"), QStringLiteral("Aller à la première page de l'aide"),
         QStringLiteral("list"), QKeySequence()},
    };
    QToolBar *bar = boulix::makeToolbar(
        QStringLiteral("tbarHelp"), buttons,
        [this](int button) {
            if (button == 1)
                browser_->backward();
            else if (button == 2)
                browser_->forward();
            else
                browser_->setSource(contents_);
        },
        this);
    const QList<QAction *> actions = bar->actions();
    actions[0]->setEnabled(false);
    actions[1]->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, actions[0], &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, actions[1], &QAction::setEnabled);
    layout()->addWidget(bar);
}

QString HelpWindow::pageFor(const std::string &target, std::optional<std::int32_t> context) {
    const QString file = toQt(target).section(QLatin1Char('>'), 0, 0);
    const QString page = context ? toQt(help::pageName(*context)) : QStringLiteral("index");
    return QFileInfo(file).absolutePath() + QStringLiteral("/help/") + page +
           QStringLiteral(".html");
}

void HelpWindow::showPage(const QString &file) {
    contents_ = QUrl::fromLocalFile(QFileInfo(file).absolutePath() + QStringLiteral("/index.html"));
    browser_->setSource(QUrl::fromLocalFile(file));
    show();
    raise();
    activateWindow();
}

} // namespace boulix
