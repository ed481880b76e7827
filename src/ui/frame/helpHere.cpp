// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/helpHere.h"

#include "sill/help.h"
#include "ui/widgets/qtText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTabWidget>

namespace boulix {

std::vector<std::string> placeOfUser() {
    std::vector<std::string> names;
    const QWidget *window = QApplication::activeWindow();
    const QWidget *inner = QApplication::focusWidget();
    for (const QWidget *part = inner ? inner : window; part; part = part->parentWidget())
        if (!part->objectName().isEmpty())
            names.push_back(fromQt(part->objectName()));
    const auto *tabs =
        window ? window->findChild<QTabWidget *>(QStringLiteral("TabStrip")) : nullptr;
    if (tabs && tabs->currentWidget())
        names.push_back(fromQt(tabs->currentWidget()->objectName()));
    return names;
}

void showHelpHere() {
    help::showPageOf(placeOfUser());
}

bool asksForHelp(const QObject &receiver, const QEvent &event) {
    if (event.type() != QEvent::KeyPress || !receiver.isWidgetType())
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

} // namespace boulix
