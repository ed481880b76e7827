// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/frmSplash.h"

#include "sill/desktop.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace boulix {

namespace {

constexpr QSize pictureSize{480, 200};

} // namespace

frmSplash::frmSplash(const SplashTexts &texts)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      cmdClose(new QPushButton(QStringLiteral("&Fermer"), this)) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(toQt(texts.lblProductName));
    // The picture brings a light ground along, in either palette.
    QPalette onPaper = theme::lightPalette();
    onPaper.setColor(QPalette::Window, theme::paper);
    onPaper.setColor(QPalette::WindowText, theme::ink);
    setPalette(onPaper);
    setAttribute(Qt::WA_QuitOnClose);

    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->hide();
    connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
    layOut(texts);
    takeSize();
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

QLabel *frmSplash::makeLabel(const QString &name, const std::string &text, qreal size, bool bold) {
    auto *label = new QLabel(linesToQt(text), this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

void frmSplash::layOut(const SplashTexts &texts) {
    auto *picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("imgLogo"));
    picture->setPixmap(
        loadPicture(QStringLiteral("boulix-splash"), pictureSize, devicePixelRatioF()));

    auto *title = new QHBoxLayout;
    title->addWidget(makeLabel(QStringLiteral("lblProductName"), texts.lblProductName, 2.2, true));
    title->addStretch();
    title->addWidget(makeLabel(QStringLiteral("lblVersion"), texts.lblVersion, 1.1), 0,
                     Qt::AlignBottom);

    auto *maker = new QHBoxLayout;
    maker->addWidget(makeLabel(QStringLiteral("lblCopyright"), texts.lblCopyright, 1.0));
    maker->addWidget(makeLabel(QStringLiteral("lblCompany"), texts.lblCompany, 1.0));
    maker->addStretch();

    auto *warning = makeLabel(QStringLiteral("lblWarning"), texts.lblWarning, 0.85);
    warning->setWordWrap(true);

    auto *words = new QVBoxLayout;
    words->setContentsMargins(2 * theme::margin, theme::gap, 2 * theme::margin, 2 * theme::margin);
    words->setSpacing(theme::gap);
    words->addLayout(title);
    words->addLayout(maker);
    words->addWidget(makeLabel(QStringLiteral("lblPlatform"), texts.lblPlatform, 0.9));
    words->addSpacing(theme::gap / 2);
    words->addWidget(warning);
    words->addWidget(cmdClose, 0, Qt::AlignRight);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(1, 1, 1, 1);
    column->setSpacing(0);
    column->addWidget(picture);
    column->addLayout(words);
}

/// As wide as the picture and the longest line, as high as the wrapped warning needs.
void frmSplash::takeSize() {
    layout()->activate();
    const int width = layout()->minimumSize().width();
    setFixedSize(width, layout()->totalHeightForWidth(width));
}

void frmSplash::offerToClose() {
    cmdClose->show();
    takeSize();
    cmdClose->setFocus();
}

void frmSplash::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setPen(theme::blend(theme::paper, theme::ink, 0.35));
    painter.setBrush(theme::paper);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void frmSplash::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && cmdClose->isVisible())
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace boulix
