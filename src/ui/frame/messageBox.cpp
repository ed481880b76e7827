// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/messageBox.h"

#include "ui/widgets/qtText.h"

namespace boulix {

namespace {

QMessageBox::Icon qtIcon(Icon icon) {
    switch (icon) {
    case Icon::information:
        return QMessageBox::Information;
    case Icon::question:
        return QMessageBox::Question;
    case Icon::critical:
        return QMessageBox::Critical;
    case Icon::none:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

QMessageBox::StandardButton runMessageBox(QWidget *parent, const std::string &text, Icon icon,
                                          const std::string &title,
                                          QMessageBox::StandardButtons buttons) {
    QMessageBox box(qtIcon(icon), toQt(title), linesToQt(text), buttons, parent);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace boulix
