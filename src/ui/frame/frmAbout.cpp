// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/frmAbout.h"

#include "sill/appInfo.h"
#include "ui/frame/creditPicture.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/qtText.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace boulix {

namespace {

constexpr int tickMilliseconds = 40;
constexpr int climb = 2; // pixels a tick: 30 twentieths of a point at 96 dots per inch
constexpr QSize creditSize{340, 220};
constexpr int logoSize = 128;

} // namespace

frmAbout::frmAbout(const appInfo &info, QWidget *parent)
    : QDialog(parent), frameInfo(new QFrame(this)),
      CMD_OK(new QPushButton(QStringLiteral("OK"), this)), Timer(new QTimer(this)) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("A propos de ") + toQt(info.name()));
    frameInfo->setObjectName(QStringLiteral("frameInfo"));
    CMD_OK->setObjectName(QStringLiteral("CMD_OK"));
    Timer->setObjectName(QStringLiteral("Timer"));
    makeCredits(info);
    layOut();
    connect(CMD_OK, &QPushButton::clicked, this, &QDialog::accept);
    connect(Timer, &QTimer::timeout, this, &frmAbout::tick);
    Timer->start(tickMilliseconds);
}

void frmAbout::makeCredits(const appInfo &info) {
    const QColor red(255, 0, 0);
    const QColor blue(0, 0, 200);
    const QColor brightBlue(0, 0, 255);
    const QString copyright =
        QStringLiteral("(c) %1 %2").arg(QString::number(info.copyright()), toQt(info.company()));
    const QList<CreditLine> lines = {
        {toQt(info.fullName()), red, 14},
        {QStringLiteral("développé par ") + toQt(info.author()), blue, 10},
        {copyright, blue, 10},
        {toQt(info.disclaimer()), brightBlue, 10},
    };
    frameInfo->setFixedSize(creditSize);
    for (std::size_t i = 0; i < picInfo_.size(); ++i) {
        auto *picture = new CreditPicture(lines, creditSize.width(), frameInfo);
        picture->setObjectName(QStringLiteral("picInfo_%1").arg(i));
        // A box lower than the frame would leave a hole when both have climbed.
        picture->resize(creditSize.width(), std::max(picture->textHeight(), creditSize.height()));
        picInfo_[i] = picture;
    }
    placeFollower();
}

void frmAbout::layOut() {
    auto *logo = new QLabel(this);
    logo->setObjectName(QStringLiteral("picLogo"));
    logo->setPixmap(
        loadPicture(QStringLiteral("boulix"), {logoSize, logoSize}, devicePixelRatioF()));

    auto *top = new QHBoxLayout;
    top->setSpacing(2 * theme::margin);
    top->addWidget(logo, 0, Qt::AlignTop);
    top->addWidget(frameInfo);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(2 * theme::margin, 2 * theme::margin, 2 * theme::margin,
                               theme::margin);
    column->setSpacing(theme::margin);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addLayout(top);
    column->addWidget(CMD_OK, 0, Qt::AlignRight);
}

void frmAbout::tick() {
    CreditPicture *climbing = picInfo_[active_];
    climbing->move(0, climbing->y() - climb);
    placeFollower();
    if (climbing->y() + climbing->height() <= 0)
        active_ = 1 - active_;
}

void frmAbout::placeFollower() {
    const CreditPicture *climbing = picInfo_[active_];
    picInfo_[1 - active_]->move(0, climbing->y() + climbing->height());
}

} // namespace boulix
