// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/frame/mainWindow.h"

#include "core/globals.h"
#include "printing/modPrinter.h"
#include "sill/appInfo.h"
#include "sill/help.h"
#include "sill/reports.h"
#include "sill/undo.h"
#include "ui/frame/frmAbout.h"
#include "ui/frame/helpHere.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/widgets/elidedLabel.h"
#include "ui/widgets/fittingTabs.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <utility>

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
    if (main_.visiblePage() == 0)
        findChild<QWidget *>(QStringLiteral("lvwDBcomb"))->setFocus();
    setAcceptDrops(true);
    const QSize room = screen()->availableGeometry().size() - frameRoom;
    resize((sizeInTwips * pixelsPerTwip).boundedTo(room));
    openAsLeft();
}

/// As large and in the place of the last run, as far as the screens of today allow it.
void MainWindow::openAsLeft() {
    for (const auto &[list, widths] : main_.memory.columns)
        if (auto *view = findChild<ReportView *>(toQt(list)))
            view->setUserWidths(widths);
    if (main_.memory.window) {
        std::vector<Area> rooms;
        for (const QScreen *one : QGuiApplication::screens()) {
            const QRect room = one->availableGeometry();
            rooms.push_back({room.left(), room.top(), room.width() - frameRoom.width(),
                             room.height() - frameRoom.height()});
        }
        const Area place = onScreens(*main_.memory.window, rooms);
        resize(place.width, place.height);
        move(place.left, place.top);
    }
    if (main_.memory.maximised)
        setWindowState(windowState() | Qt::WindowMaximized);
}

void MainWindow::keepMemory() {
    const QSize size = normalGeometry().isValid() ? normalGeometry().size() : this->size();
    main_.memory.maximised = isMaximized();
    if (!isMaximized() || !main_.memory.window)
        main_.memory.window = Area{x(), y(), size.width(), size.height()};
    for (const char *list : Memory::lists)
        if (const auto *view = findChild<ReportView *>(QLatin1String(list)))
            if (const auto widths = view->userWidths(); !widths.empty())
                main_.memory.columns[list] = widths;
    main_.keepMemory();
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
    connect(file, &QMenu::aboutToShow, this, [this, file] { showRecentGames(*file); });

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

    QMenu *questions = menuBar()->addMenu(QStringLiteral("&?"));
    questions->setObjectName(QStringLiteral("mnuHlp"));
    QAction *pages = addEntry(*questions, QStringLiteral("mnuHelp"), QStringLiteral("&Aide"),
                              QStringLiteral("help"));
    connect(pages, &QAction::triggered, this, [this] { runCommand([this] { main_.showHelp(); }); });
    QAction *about = addEntry(*questions, QStringLiteral("mnuAbout"), QStringLiteral("A &propos"),
                              QStringLiteral("about"));
    connect(about, &QAction::triggered, this, &MainWindow::showAbout);
    QAction *here = addEntry(*questions, QStringLiteral("mnuHelpHere"),
                             QStringLiteral("Aide de cette pa&ge"), QStringLiteral("help"));
    here->setShortcut(QKeySequence(Qt::Key_F1));
    connect(here, &QAction::triggered, this, [] { runCommand(showHelpHere); });
    QAction *keys = addEntry(*questions, QStringLiteral("mnuKeys"),
                             QStringLiteral("&Touches du clavier"), QStringLiteral("list"));
    connect(keys, &QAction::triggered, this,
            [] { runCommand([] { help::showPageOf({"keys"}); }); });
}

/// The game files last used, behind the other entries.
void MainWindow::showRecentGames(QMenu &file) {
    for (QAction *entry :
         file.findChildren<QAction *>(QRegularExpression(QStringLiteral("^mnuRecent_"))))
        delete entry;
    if (!main_.memory.recentGames.empty())
        file.addSeparator()->setObjectName(QStringLiteral("mnuRecent_0"));
    int number = 0;
    for (const std::string &game : main_.memory.recentGames) {
        ++number;
        const QFileInfo info(toQt(game));
        const QString name = info.fileName().replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction *entry =
            addEntry(file, QStringLiteral("mnuRecent_%1").arg(number),
                     QStringLiteral("&%1  %2").arg(number).arg(name), QStringLiteral("game"));
        entry->setToolTip(info.filePath());
        connect(entry, &QAction::triggered, this, [this, game] { openFiles({toQt(game)}); });
    }
    file.setToolTipsVisible(true);
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

void MainWindow::goToSide(int side) {
    if (auto *sides = findChild<QTabWidget *>(QStringLiteral("TabGame")))
        sides->setCurrentIndex(side);
}

/// Whether a command may be given: no dialog and no long job is up.
bool MainWindow::isFree() const {
    return isEnabled() && !QApplication::activeModalWidget();
}

void MainWindow::openFiles(const QStringList &fullNames) {
    const bool idle = waiting_.isEmpty();
    waiting_ += fullNames;
    if (idle && !waiting_.isEmpty())
        QTimer::singleShot(0, this, &MainWindow::openWaiting);
}

void MainWindow::openWaiting() {
    constexpr int untilNextTry = 200; // milliseconds
    if (!isFree()) {
        QTimer::singleShot(untilNextTry, this, &MainWindow::openWaiting);
        return;
    }
    std::vector<std::string> files;
    for (const QString &file : std::exchange(waiting_, {}))
        files.push_back(fromQt(file));
    runCommand([&] { main_.openFiles(files); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    const auto isFile = [](const QUrl &url) { return url.isLocalFile(); };
    if (isFree() && std::any_of(urls.begin(), urls.end(), isFile))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event) {
    QStringList files;
    for (const QUrl &url : event->mimeData()->urls())
        if (url.isLocalFile())
            files << QDir::toNativeSeparators(url.toLocalFile());
    event->acceptProposedAction();
    openFiles(files); // later: whoever drags waits for the answer
}

void MainWindow::showAbout() {
    frmAbout(*gAppInfo, this).exec();
}

void MainWindow::closeEvent(QCloseEvent *event) {
    // While a long job is under way the window is disabled, but its close box is not.
    bool mayClose = false;
    if (isEnabled())
        runCommand([&] { mayClose = main_.queryClose(); });
    if (mayClose)
        keepMemory();
    event->setAccepted(mayClose);
}

} // namespace boulix
