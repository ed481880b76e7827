// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/mainWindow.h"

#include "core/globals.h"
#include "printing/modPrinter.h"
#include "sill/appInfo.h"
#include "sill/reports.h"
#include "sill/undo.h"
#include "ui/frame/frmAbout.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/elidedLabel.h"
#include "ui/widgets/fittingTabs.h"
#include "ui/widgets/qtText.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

namespace boulix {

namespace {

/// A twentieth of a point on the screen, enlarged for today's fonts and toolbars.
constexpr double pixelsPerTwip = 1.5 / 15;
constexpr QSize sizeInTwips{8685, 7560};
/// What the window manager puts around a window: nobody knows before it is shown.
constexpr QSize frameRoom{16, 40};

/// The captions of the tabs with their mnemonics, and their icons.
struct TabLook {
    QString caption;
    QString icon;
};

std::array<TabLook, frmMain::tabCount> tabLooks() {
    return {{{QStringLiteral("&Base de données"), QStringLiteral("database")},
             {QStringLiteral("S&tatistiques"), QStringLiteral("statistics")},
             {QStringLiteral("A&nalyse par tirage"), QStringLiteral("analysis")},
             {QStringLiteral("&Eliminateurs"), QStringLiteral("eliminate")},
             {QStringLiteral("&Jeux"), QStringLiteral("game")},
             {QStringLiteral("Pr&onostiques"), QStringLiteral("forecast")}}};
}

} // namespace

MainWindow::MainWindow(frmMain &main, const MainParts &parts)
    : main_(main), parts_(parts), TabStrip(new FittingTabs(this)) {
    setObjectName(QStringLiteral("frmMain"));
    setCentralWidget(TabStrip);
    makePages();
    makeMenus();
    makeStatusBar();
    main_.view(this);
    refresh();
    findChild<QWidget *>(QStringLiteral("lvwDBcomb"))->setFocus();
    const QSize room = screen()->availableGeometry().size() - frameRoom;
    resize((sizeInTwips * pixelsPerTwip).boundedTo(room));
}

MainWindow::~MainWindow() {
    gUndo->changed = nullptr;
    main_.view(nullptr);
}

void MainWindow::makePages() {
    TabStrip->setObjectName(QStringLiteral("TabStrip"));
    TabStrip->setDocumentMode(true);
    TabStrip->setIconSize({18, 18});
    const auto looks = tabLooks();
    for (std::size_t i = 0; i < looks.size(); ++i) {
        QWidget *page = parts_.pages[i](main_, TabStrip);
        page->setObjectName(QStringLiteral("frameTab_%1").arg(i));
        const int tab = TabStrip->addTab(page, loadIcon(looks[i].icon), looks[i].caption);
        TabStrip->setTabToolTip(tab, QString::fromUtf8(frmMain::tabs[i].toolTip));
    }
    connect(TabStrip, &QTabWidget::currentChanged, this,
            [this](int index) { runCommand([&] { main_.clickTab(index + 1); }); });
}

QAction *MainWindow::addEntry(QMenu &menu, const QString &name, const QString &caption,
                              const QString &icon) {
    QAction *entry = menu.addAction(loadIcon(icon), caption);
    entry->setObjectName(name);
    return entry;
}

void MainWindow::makeMenus() {
    QMenu *file = menuBar()->addMenu(QStringLiteral("&Fichier"));
    file->setObjectName(QStringLiteral("mnuFile"));
    QAction *canvas = addEntry(*file, QStringLiteral("mnuPrintCanvas"),
                               QStringLiteral("&Imprimer le canevas"), QStringLiteral("grid-slip"));
    file->addSeparator();
    QAction *quit = addEntry(*file, QStringLiteral("mnuExit"), QStringLiteral("&Quitter"),
                             QStringLiteral("quit"));
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &QWidget::close);

    makeEditMenu();

    QMenu *config = menuBar()->addMenu(QStringLiteral("&Configuration"));
    config->setObjectName(QStringLiteral("mnuConfig"));
    QAction *printer =
        addEntry(*config, QStringLiteral("mnuPrinter"), QStringLiteral("Paramètres d'&impression"),
                 QStringLiteral("printer"));
    QAction *grid =
        addEntry(*config, QStringLiteral("mnuGrid"), QStringLiteral("Paramètres des &grilles"),
                 QStringLiteral("grid-slip"));
    QAction *graph =
        addEntry(*config, QStringLiteral("mnuGraphParam"),
                 QStringLiteral("Paramètres des g&raphiques"), QStringLiteral("chart"));
    connect(canvas, &QAction::triggered, this, [] { runCommand(modPrinter::printCanvas); });
    connect(printer, &QAction::triggered, this, [] { runCommand(modPrinter::printerDialog); });
    connect(grid, &QAction::triggered, this, [this] { parts_.runGridParam(this); });
    connect(graph, &QAction::triggered, this, [this] { parts_.runGraphParam(this); });

    QMenu *help = menuBar()->addMenu(QStringLiteral("&?"));
    help->setObjectName(QStringLiteral("mnuHlp"));
    QAction *pages =
        addEntry(*help, QStringLiteral("mnuHelp"), QStringLiteral("&Aide"), QStringLiteral("help"));
    pages->setShortcut(QKeySequence(Qt::Key_F1));
    connect(pages, &QAction::triggered, this, [this] { runCommand([this] { main_.showHelp(); }); });
    QAction *about = addEntry(*help, QStringLiteral("mnuAbout"), QStringLiteral("A &propos"),
                              QStringLiteral("about"));
    connect(about, &QAction::triggered, this, &MainWindow::showAbout);
}

void MainWindow::makeEditMenu() {
    QMenu *edit = menuBar()->addMenu(QStringLiteral("E&dition"));
    edit->setObjectName(QStringLiteral("mnuEdit"));
    undo_ = addEntry(*edit, QStringLiteral("mnuUndo"), {}, QStringLiteral("undo"));
    undo_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    connect(undo_, &QAction::triggered, this, [this] { main_.undo(); });
    redo_ = addEntry(*edit, QStringLiteral("mnuRedo"), {}, QStringLiteral("redo"));
    redo_->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    connect(redo_, &QAction::triggered, this, [this] { main_.redo(); });
    gUndo->changed = [this] { showUndo(); };
    showUndo();
}

/// The entries name what they would take back or do again.
void MainWindow::showUndo() {
    const auto show = [](QAction &entry, const QString &verb, const std::string &command) {
        entry.setText(command.empty() ? verb : verb + QStringLiteral(" « %1 »").arg(toQt(command)));
        entry.setEnabled(!command.empty());
    };
    show(*undo_, QStringLiteral("&Annuler"), gUndo->undoName());
    show(*redo_, QStringLiteral("&Rétablir"), gUndo->redoName());
}

void MainWindow::announce(const QString &text) {
    announcement_->setText(text);
}

void MainWindow::makeStatusBar() {
    auto *bar = new QStatusBar(this);
    bar->setObjectName(QStringLiteral("StatusBar"));
    setStatusBar(bar);
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i] = new QLabel(bar);
        panels_[i]->setObjectName(QStringLiteral("StatusBar_%1").arg(i + 1));
        panels_[i]->setContentsMargins(theme::gap, 0, theme::gap, 0);
        bar->addWidget(panels_[i]);
    }
    announcement_ = new ElidedLabel(bar);
    announcement_->setObjectName(QStringLiteral("announcement"));
    bar->addWidget(announcement_, 1);
}

void MainWindow::refresh() {
    setWindowTitle(toQt(main_.caption));
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        panels_[i]->setText(toQt(main_.StatusBar[i]));
        panels_[i]->setVisible(!main_.StatusBar[i].empty());
    }
    TabStrip->setCurrentIndex(main_.visiblePage());
}

void MainWindow::showAbout() {
    frmAbout(*gAppInfo, this).exec();
}

void MainWindow::closeEvent(QCloseEvent *event) {
    // While a long job is under way the window is disabled, but its close box is not.
    bool mayClose = false;
    if (isEnabled())
        runCommand([&] { mayClose = main_.queryClose(); });
    event->setAccepted(mayClose);
}

} // namespace boulix
