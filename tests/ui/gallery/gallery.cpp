// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of every window, for the eye: `boulix_gallery FOLDER [dark] [WIDTHxHEIGHT]`, with a size
// those of the pages alone. QT_SCALE_FACTOR and QT_QPA_PLATFORM=offscreen are the environment's
// to set.

#include "core/globals.h"
#include "core/platform.h"
#include "draws/dbCombs.h"
#include "keep.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/frmNbrSelector.h"
#include "sill/frmProgress.h"
#include "sill/reportList.h"
#include "support/files.h"
#include "support/locations.h"
#include "ui/frame/application.h"
#include "ui/frame/creditPicture.h"
#include "ui/frame/frmAbout.h"
#include "ui/frame/frmSelDate.h"
#include "ui/frame/frmSplash.h"
#include "ui/frame/helpWindow.h"
#include "ui/frame/mainWindow.h"
#include "ui/frame/numberDialog.h"
#include "ui/frame/progressWindow.h"
#include "ui/frame/qtDesktop.h"
#include "ui/frame/qtPlatform.h"
#include "ui/style/theme.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/qtText.h"
#include "ui/widgets/reportView.h"
#include "ui/workbench/mainParts.h"
#include "workbench/frmMain.h"

#include <QDir>
#include <QLineEdit>
#include <QPixmap>

#include <initializer_list>

using namespace boulix;
namespace support = boulix::testing_support;

void keep(QWidget &window, const QString &name) {
    window.show();
    QApplication::processEvents();
    QApplication::processEvents();
    window.grab().save(name + QStringLiteral(".png"));
    window.hide();
}

namespace {

/// Imports the sample history without asking, and keeps the data in a folder of its own.
class GalleryDesktop : public QtDesktop {
  public:
    using QtDesktop::QtDesktop;

  private:
    std::string openFile(const FileQuestion &) override {
        return support::operatorHistory().value_or(support::sampleHistory()).string();
    }
};

class GalleryPlatform : public QtPlatform {
  public:
    using QtPlatform::QtPlatform;
    std::string applicationFolder() const override { return folder_.path(); }

  private:
    support::TemporaryFolder folder_;
};

void mark(NumberBoard &board, std::initializer_list<std::int16_t> numbers, std::int16_t compl_) {
    for (const std::int16_t n : numbers)
        board.selectNumber(n);
    if (compl_ != 0)
        board.selectComplementary(compl_);
}

void keepBoards() {
    NumberBoard board;
    mark(board, {31, 15, 33, 27, 36, 48}, 34);
    NumberBoardView view(board);
    view.resize(230, 300);
    keep(view, QStringLiteral("board-open-small"));
    view.resize(400, 560);
    keep(view, QStringLiteral("board-open-large"));
    board.editable(false);
    view.resize(320, 420);
    keep(view, QStringLiteral("board-closed"));
}

void keepDialogs() {
    frmNbrSelector selector;
    selector.grd.maxSelected(7);
    selector.grd.complementaryAt(7);
    selector.minimum = 7;
    selector.lastIsComplementary = true;
    mark(selector.grd, {3, 9, 17, 28, 40, 12}, 0);
    NumberDialog numbers(selector);
    keep(numbers, QStringLiteral("frmNbrSelector"));
    selector.grd.click(49);
    selector.grd.click(1);
    keep(numbers, QStringLiteral("frmNbrSelector-full"));
    frmSelDate date;
    keep(date, QStringLiteral("frmSelDate"));
    frmSelDate changed(DrawDate{dateOf({2003, 3, 15}), 2});
    keep(changed, QStringLiteral("frmSelDate-changed"));

    frmProgress progress;
    progress.caption = "Importation des tirages...";
    progress.lblInfo = "Lecture du fichier historique-exemple.txt";
    progress.ProgressBar.value = 42;
    progress.ProgressBar2.value = 75;
    ProgressWindow window(progress);
    keep(window, QStringLiteral("frmProgress"));
}

void keepIdentity() {
    appInfo &info = *gAppInfo;
    info.init("Attention!!! Ce logiciel constitue une aide au jeu mais ne saurait en aucun cas "
              "garantir les gains. L'auteur décline toute responsabilité en cas de pertes d'argent "
              "qui auraient pu être dues à l'utilisation de ce produit. En revanche, en cas de "
              "gros gains, pensez à lui!!!",
              "Marcel Quillon", "Quillon Logiciels", 2003);
    frmAbout about(info);
    for (int i = 0; i < 20; ++i)
        about.tick();
    keep(about, QStringLiteral("frmAbout"));

    frmSplash splash({"Version " + info.version(), info.name(), info.company(), "(c) 2003",
                      "Windows 98, ME, NT, 2000, XP", info.disclaimer()});
    keep(splash, QStringLiteral("frmSplash"));
    splash.offerToClose();
    keep(splash, QStringLiteral("frmSplash-failed"));
}

void keepHelp() {
    HelpWindow help;
    for (const char *name : {"index", "base", "statistiques", "eliminateurs", "jeux"}) {
        const auto page = support::checkoutFolder() / "help" / (std::string(name) + ".html");
        help.showPage(toQt(page.string()));
        keep(help, QStringLiteral("frmHelp-") + QLatin1String(name));
    }
}

void keepList() {
    reportList list;
    list.columns({{"Date", " 00/00/0000 ", false}, {"T", " 000 ", true}, {"1", " 000 ", true}});
    list.rows(14'000'000, [](std::int64_t row, int column) {
        return column == 0 ? std::string("19/05/1976") : std::to_string((row + column) % 49 + 1);
    });
    ReportView view(list);
    view.resize(view.fullWidth(), 300);
    view.setCurrentIndex(view.model()->index(3, 0));
    keep(view, QStringLiteral("list"));
}

void keepMainWindow() {
    gDbCombs->dbFile().path(platform().applicationFolder());
    gDbCombs->dbFile().name("tirages.dbl");
    gDbCombs->ImportFdjFile();
    mainWindow->load();
    MainWindow window(*mainWindow, mainParts());
    keep(window, QStringLiteral("frmMain"));
    window.findChild<QLineEdit *>(QStringLiteral("txtFind"))->setText(QStringLiteral("7 13"));
    keep(window, QStringLiteral("frmMain-search"));
    window.resize(window.minimumSizeHint());
    keep(window, QStringLiteral("frmMain-smallest"));
}

} // namespace

int main(int argc, char **argv) {
    GalleryPlatform platform(argc, argv);
    setPlatform(&platform);
    Application application(argc, argv);
    GalleryDesktop desktop(mainParts());
    setDesktop(&desktop);
    const QStringList arguments = Application::arguments();
    if (arguments.size() < 2 || !QDir().mkpath(arguments[1]) || !QDir::setCurrent(arguments[1]))
        return 64;
    if (arguments.contains(QStringLiteral("dark")))
        Application::setPalette(theme::darkPalette());
    const QStringList size = arguments.last().split(QLatin1Char('x'));
    const bool sized = size.size() == 2 && size[0].toInt() > 0 && size[1].toInt() > 0;
    keepMainWindow();
    if (sized) {
        keepPlacesAt({size[0].toInt(), size[1].toInt()});
        resetGlobals();
        return 0;
    }
    keepBoards();
    keepDialogs();
    keepIdentity();
    keepHelp();
    keepList();
    keepStatistics();
    keepForecasts();
    keepGames();
    keepPrintWindows();
    keepGraph();
    resetGlobals();
}
