// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/handsOff.h"

#include <QApplication>

namespace boulix {

HandsOff::HandsOff(QWidget &window)
    : window_(&window), focusInWindow_(window.focusWidget()), focus_(QApplication::focusWidget()) {
    window.setEnabled(false);
}

HandsOff::~HandsOff() {
    if (window_)
        window_->setEnabled(true);
    for (const QPointer<QWidget> &before : {focusInWindow_, focus_})
        if (before)
            before->setFocus();
}

} // namespace boulix
