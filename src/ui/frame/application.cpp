// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/application.h"

#include "sill/reports.h"
#include "ui/style/iconLoader.h"
#include "ui/style/programStyle.h"
#include "ui/style/theme.h"
#include "ui/widgets/accessibility.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace boulix {

Application::Application(int &argc, char **argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("boulix"));
    if (QLocale::system().language() == QLocale::C)
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    speakFrench();
    ProgramStyle::dress();
    installAccessibility();
    setWindowIcon(logoIcon());
}

bool Application::notify(QObject *receiver, QEvent *event) {
    if (event->type() == QEvent::ThemeChange && receiver->isWindowType())
        theme::followDesktop();
    bool handled = true;
    runCommand([&] {
        if (!typedText_.takeBefore(*receiver, *event))
            handled = QApplication::notify(receiver, event);
    });
    return handled;
}

/// The program speaks French whatever the system speaks, and so must Qt's own buttons.
void Application::speakFrench() {
    auto *translator = new QTranslator(this);
    const QString name = QStringLiteral("qtbase_fr");
    const QString beside = applicationDirPath() + QStringLiteral("/translations");
    if (translator->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        translator->load(name, beside))
        installTranslator(translator);
}

} // namespace boulix
