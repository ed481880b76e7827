// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/upDownField.h"

#include "sill/reports.h"
#include "sill/upDown.h"
#include "ui/widgets/typedText.h"
#include "ui/widgets/upDownView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>

namespace boulix {

UpDownField::UpDownField(upDown &control, const QString &boxName, const QString &arrowsName,
                         QWidget *parent)
    : QWidget(parent), control_(control), box_(new QLineEdit(this)), arrows_(new UpDownView(this)) {
    box_->setObjectName(boxName);
    box_->setAlignment(Qt::AlignRight);
    box_->setFixedWidth(fontMetrics().averageCharWidth() * 11);
    box_->installEventFilter(this);
    arrows_->setObjectName(arrowsName);
    arrows_->setFocusPolicy(Qt::NoFocus); // the arrow keys step in the box itself
    setFocusProxy(box_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    whenLeft(*box_, [this](const QString &text) { emit boxLeft(text); });
    connect(arrows_, &UpDownView::valueChanged, this,
            [this](int value) { runCommand([&] { control_.set(value); }); });

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(box_);
    row->addWidget(arrows_);
}

void UpDownField::refresh(const QString &text) {
    const QSignalBlocker quiet(arrows_);
    arrows_->setRange(control_.min(), control_.max());
    arrows_->setValue(control_.value());
    setEnabled(control_.enabled);
    box_->setToolTip(
        control_.enabled
            ? QStringLiteral("Un nombre entier de %1 à %2").arg(control_.min()).arg(control_.max())
            : QString());
    if (!box_->isModified()) // what is being typed is not written over
        box_->setText(text);
}

void UpDownField::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    static const QRegularExpression mnemonic(QStringLiteral("&(?=.)"));
    for (const QLabel *label : parentWidget()->findChildren<QLabel *>())
        if (label->buddy() == this) {
            const QString name = label->text().remove(mnemonic);
            box_->setAccessibleName(name);
            arrows_->setAccessibleName(name);
        }
}

bool UpDownField::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            runCommand([&] { control_.step(key == Qt::Key_Up ? 1 : -1); });
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace boulix
