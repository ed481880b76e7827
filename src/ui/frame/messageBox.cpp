// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/messageBox.h"

#include "ui/widgets/qtText.h"

#include <QPushButton>

#include <algorithm>
#include <vector>

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
                                          QMessageBox::StandardButtons buttons,
                                          QMessageBox::StandardButton enter) {
    QMessageBox box(qtIcon(icon), toQt(title), linesToQt(text), buttons, parent);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(enter);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

std::size_t runChoiceBox(QWidget *parent, const std::string &text, Icon icon,
                         const std::string &title, const std::vector<std::string> &answers) {
    QMessageBox box(qtIcon(icon), toQt(title), linesToQt(text), QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setTextFormat(Qt::PlainText);
    std::vector<QPushButton *> buttons;
    for (const std::string &answer : answers)
        buttons.push_back(box.addButton(QLatin1Char('&') + toQt(answer), QMessageBox::ActionRole));
    box.setDefaultButton(buttons.back());
    box.setEscapeButton(buttons.back());
    box.exec();
    const auto chosen = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return static_cast<std::size_t>(chosen - buttons.begin());
}

} // namespace boulix
