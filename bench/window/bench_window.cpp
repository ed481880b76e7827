// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How long until a window is on the screen. Each run is a process of its own, timed from outside
// by compare_window.py:
//   bench_window prepare FOLDER HISTORY   imports the history into FOLDER
//   bench_window program FOLDER           the whole program on FOLDER, until its window is painted
//   bench_window empty                    a Qt window with one empty list, until it is painted

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "sill/appInfo.h"
#include "sill/modMain.h"
#include "ui/frame/application.h"
#include "ui/frame/qtDesktop.h"
#include "ui/frame/qtPlatform.h"
#include "ui/printing/qtPrintWindows.h"
#include "ui/printing/qtPrinterSystem.h"
#include "ui/workbench/mainParts.h"
#include "winnings/rapport.h"

#include <QMainWindow>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

#include <cstdio>

using namespace boulix;

namespace {

/// Ends the program at the turn of the event queue behind the first exposure of a window, which
/// is when it has been painted.
class EndWhenOnScreen : public QObject {
  public:
    explicit EndWhenOnScreen(QWindow &window) {
        window.installEventFilter(this);
        if (window.isExposed())
            end();
    }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Expose)
            end();
        return QObject::eventFilter(watched, event);
    }

  private:
    static void end() {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    }
};

class FolderPlatform : public QtPlatform {
  public:
    FolderPlatform(int argc, char **argv) : QtPlatform(1, argv), folder_(argc > 2 ? argv[2] : "") {}
    std::string applicationFolder() const override { return folder_; }

  private:
    std::string folder_;
};

/// Answers the import's question for a file.
class AnsweringDesktop : public QtDesktop {
  public:
    using QtDesktop::QtDesktop;
    std::string history;
    std::string openFile(const FileQuestion &) override { return history; }
};

int prepare(AnsweringDesktop &desktop, const char *history) {
    desktop.history = history;
    gAppInfo->init("", "", "", 2003); // its name goes into the files' headers
    gDbCombs->dbFile().path(platform().applicationFolder());
    gDbCombs->dbFile().name("tirages.dbl");
    const bool merged = gDbCombs->ImportFdjFile();
    gRapport->save(platform().applicationFolder() + "/defrapp.rap");
    return merged ? 0 : 1;
}

int showProgram(QtDesktop &desktop) {
    modMain::Main();
    if (!desktop.mainWidget())
        return 1;
    const EndWhenOnScreen end(*desktop.mainWidget()->windowHandle());
    return Application::exec();
}

int showEmpty() {
    QMainWindow window;
    window.setCentralWidget(new QTreeWidget(&window));
    window.show();
    const EndWhenOnScreen end(*window.windowHandle());
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv) {
    const QByteArray mode(argc > 1 ? argv[1] : "");
    if (mode == "empty") {
        const QApplication application(argc, argv);
        return showEmpty();
    }
    FolderPlatform platform(argc, argv);
    setPlatform(&platform);
    Application application(argc, argv);
    AnsweringDesktop desktop(mainParts());
    setDesktop(&desktop);
    QtPrinterSystem printers;
    setPrinterSystem(&printers);
    QtPrintWindows printWindows;
    setPrintWindows(&printWindows);
    if (mode == "prepare" && argc > 3)
        return prepare(desktop, argv[3]);
    if (mode == "program" && argc > 2)
        return showProgram(desktop);
    std::fputs("usage: bench_window prepare FOLDER HISTORY | program FOLDER | empty\n", stderr);
    return 64;
}
