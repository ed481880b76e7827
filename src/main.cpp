// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/folderClaim.h"
#include "sill/modMain.h"
#include "sill/reports.h"
#include "ui/frame/application.h"
#include "ui/frame/folderLock.h"
#include "ui/frame/qtDesktop.h"
#include "ui/frame/qtPlatform.h"
#include "ui/printing/qtPrintWindows.h"
#include "ui/printing/qtPrinterSystem.h"
#include "ui/workbench/mainParts.h"

int main(int argc, char **argv) {
    boulix::QtPlatform platform(argc, argv);
    boulix::setPlatform(&platform);
    boulix::Application application(argc, argv);
    boulix::QtDesktop desktop(boulix::mainParts());
    boulix::setDesktop(&desktop);
    boulix::QtPrinterSystem printers;
    boulix::setPrinterSystem(&printers);
    boulix::QtPrintWindows printWindows;
    boulix::setPrintWindows(&printWindows);

    boulix::FolderLock folder(boulix::Application::applicationDirPath());
    folder.called = [&desktop] { desktop.comeToFront(); };
    folder.handed = [&desktop](const QStringList &files) { desktop.openFiles(files); };
    folder.files = boulix::Application::namedFiles();
    if (!boulix::claimFolder(folder))
        return 0;

    boulix::runCommand(boulix::modMain::Main);
    const bool onScreen = desktop.startEnded();
    desktop.openFiles(folder.files);
    return onScreen ? boulix::Application::exec() : 1;
}
