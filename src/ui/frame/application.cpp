// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/application.h"

#include "sill/reports.h"
#include "ui/frame/helpHere.h"
#include "ui/style/iconLoader.h"
#include "ui/style/programStyle.h"
#include "ui/style/theme.h"
#include "ui/widgets/accessibility.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QUrl>
#include <QWidget>

#include <algorithm>

namespace boulix {

namespace {

/// No dialog is narrower than its title, which the window manager would cut off.
void giveTitleRoom(QWidget &window) {
    if (window.windowType() != Qt::Dialog || window.minimumWidth() == window.maximumWidth())
        return;
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    const QFontMetrics metrics(font);
    const int buttons = 6 * metrics.height(); // and the icon
    const int title = metrics.horizontalAdvance(window.windowTitle()) + buttons;
    if (title > std::max(window.minimumWidth(), window.minimumSizeHint().width()))
        window.setMinimumWidth(std::min(title, window.maximumWidth()));
}

} // namespace

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
    if (event->type() == QEvent::Show && receiver->isWidgetType())
        giveTitleRoom(*static_cast<QWidget *>(receiver));
    bool handled = true;
    runCommand([&] {
        if (asksForHelp(*receiver, *event))
            return showHelpHere();
        if (!typedText_.takeBefore(*receiver, *event))
            handled = QApplication::notify(receiver, event);
    });
    return handled;
}

QStringList Application::namedFiles() {
    QStringList files;
    QStringList words = arguments().mid(1);
    if (!words.isEmpty() && words.constFirst() == QLatin1String("-debug"))
        words.removeFirst();
    for (const QString &word : words) {
        const QUrl url(word);
        const QString name = url.isLocalFile() ? url.toLocalFile() : word;
        files << QDir::toNativeSeparators(QFileInfo(name).absoluteFilePath());
    }
    return files;
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
