// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "games/game.h"
#include "games/modGame.h"
#include "support/files.h"
#include "tour/chapters.h"
#include "tour/tour.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QtTest/QTest>

namespace boulix {

namespace {

int rows(Tour &tour, const char *list) {
    return tour.list(list).model()->rowCount();
}

/// Clicks on the board until `count` numbers are marked, leaving those that already are.
void fillUpTo(QWidget &dialog, const NumberBoard &marked, int count) {
    auto &board = control<NumberBoardView>(dialog, "grd");
    int left = count - marked.selectedCount();
    for (std::int16_t n = 4; n <= NumberBoard::lastNumber && left > 0; n += 3)
        if (!marked.isSelected(n)) {
            Tour::clickNumbers(board, {n});
            --left;
        }
}

/// Empties the game under construction, which every calculation only adds to.
void beginAnew(Tour &tour) {
    tour.player().box("Etes-vous sûr de vouloir effacer le jeu sans l'ajouter?",
                      "Effacement du jeu en construction", QMessageBox::Question, QMessageBox::Yes);
    tour.press("tbarGameDef_3");
}

void reducedGame(Tour &tour) {
    tour.turnTo("TabStrip", 4);
    tour.turnTo("tabGameDesign", gameDesign::selectorsTab);
    click(control<QCheckBox>(tour.window(), "chkSelect_0"));
    tour.picture("source-des-numeros");
    tour.turnTo("tabGameDesign", gameDesign::reducedTab);
    const gameDef &system = modGame::reducedGames[1];
    const NumberBoard &fromStatistics = mainWindow->statistics.grdStatNbrSelector;
    ASSERT_GT(fromStatistics.selectedCount(), 0) << "the statistics were to leave marked numbers";
    tour.player().in("frmNbrSelector", [&](QWidget &dialog) {
        tour.picture("numeros-venus-des-statistiques");
        fillUpTo(dialog, fromStatistics, system.nSelect());
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    tour.press("tbarGameDef_2");
    tour.press("tbarGameDef_4");
    EXPECT_EQ(rows(tour, "lvwGameDef"), system.nComb());
    tour.picture("jeu-reduit-calcule");
    tour.press("tbarGameDef_1");
    EXPECT_EQ(rows(tour, "lvwGame"), system.nComb());
    tour.picture("jeu-reduit-ajoute");
}

void manualGame(Tour &tour) {
    const int before = rows(tour, "lvwGame");
    tour.turnTo("tabGameDesign", gameDesign::manualTab);
    beginAnew(tour);
    tour.player().in("frmNbrSelector", [](QWidget &dialog) {
        click(control<QPushButton>(dialog, "cmdClear"));
        Tour::clickNumbers(control<NumberBoardView>(dialog, "grd"),
                           {3, 11, 19, 24, 30, 38, 42, 47});
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    tour.press("tbarGameDef_2");
    tour.press("tbarGameDef_4");
    EXPECT_EQ(rows(tour, "lvwGameDef"), 28);
    tour.press("tbarGameDef_1");
    EXPECT_EQ(rows(tour, "lvwGame"), before + 28);
    tour.picture("jeu-manuel");
}

void randomGame(Tour &tour) {
    const int before = rows(tour, "lvwGame");
    tour.turnTo("tabGameDesign", gameDesign::randomTab);
    beginAnew(tour);
    tour.player().in("frmNbrSelector", [](QWidget &dialog) {
        click(control<QPushButton>(dialog, "cmdClear"));
        for (std::int16_t n = 2; n <= NumberBoard::lastNumber; n += 2)
            Tour::clickNumbers(control<NumberBoardView>(dialog, "grd"), {n});
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    tour.press("tbarGameDef_2");
    Tour::type(tour.window(), "txtNrandomGrid", "25");
    tour.press("tbarGameDef_4");
    EXPECT_EQ(rows(tour, "lvwGameDef"), 25);
    tour.press("tbarGameDef_1");
    EXPECT_EQ(rows(tour, "lvwGame"), before + 25);
    tour.picture("jeu-aleatoire");
}

void ownSystem(Tour &tour) {
    tour.turnTo("tabGameDesign", gameDesign::createTab);
    Tour::type(tour.window(), "txtWinNbr", "3");
    Tour::type(tour.window(), "txtChoosenNbr", "10");
    tour.press("tbarCreateGame_3");
    EXPECT_GT(rows(tour, "lvwGameDef"), 0);
    EXPECT_EQ(tour.label("lblnGameDefComb"),
              std::to_string(rows(tour, "lvwGameDef")) + " combinaisons");
    tour.picture("systeme-calcule");
    tour.player().in("inputBox", [&tour](QWidget &box) {
        box.findChild<QLineEdit *>()->setText(QStringLiteral("Dix numéros du vendredi"));
        tour.picture("nom-du-systeme");
        dynamic_cast<QDialog &>(box).accept();
    });
    tour.press("tbarCreateGame_1");
    EXPECT_EQ(modGame::nReducedGames(), modGame::nPredefReduced + 1);
}

void pressIn(const QWidget &dialog, const char *action) {
    control<QAction>(dialog, action).trigger();
}

void listOfSystems(Tour &tour) {
    tour.player().in("frmGameList", [&tour](QWidget &dialog) {
        Tour::clickRow(control<ReportView>(dialog, "lvwGame"), 1);
        tour.picture("liste-des-systemes");
        tour.player()
            .in("frmDisplayGame",
                [&tour](QWidget &grids) {
                    tour.picture("grilles-du-systeme");
                    click(control<QPushButton>(grids, "cmdExit"));
                })
            .in("frmGameList", [](QWidget &back) { pressIn(back, "tbar_6"); });
        pressIn(dialog, "tbar_5");
    });
    tour.press("tbarCreateGame_2");
    tour.player().finish();
}

void smallerSystem(Tour &tour) {
    Tour::type(tour.window(), "txtWinNbr", "4");
    Tour::type(tour.window(), "txtChoosenNbr", "12");
    tour.player().in("frmOptimiser", [&tour](QWidget &dialog) {
        EXPECT_EQ(control<QLabel>(dialog, "lblGrids").text().toStdString(), "56 grilles");
        auto &stop = control<QPushButton>(dialog, "cmdStop");
        const auto &grids = control<QLabel>(dialog, "lblGrids");
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &dialog, [&] {
            if (grids.text() == QStringLiteral("41 grilles"))
                click(stop);
        });
        watch.start(50);
        click(control<QPushButton>(dialog, "cmdStart"));
        tour.picture("systeme-optimise");
        click(control<QPushButton>(dialog, "cmdUse"));
    });
    tour.press("tbarCreateGame_4");
    EXPECT_EQ(rows(tour, "lvwGameDef"), 41);
    EXPECT_EQ(tour.label("lblnGameDefComb"), "41 combinaisons");
    tour.picture("systeme-utilise");
}

void elimination(Tour &tour) {
    tour.turnTo("TabStrip", 3);
    click(control<QCheckBox>(tour.window(), "chkEliminator_4"));
    Tour::type(tour.window(), "txtEliminator_4", "5");
    tour.picture("eliminateurs");
    tour.turnTo("TabStrip", 4);
    const int before = rows(tour, "lvwGame");
    tour.player().in("messageBox", [&tour](QWidget &box) {
        tour.picture("combinaisons-restantes");
        click(*dynamic_cast<QMessageBox &>(box).button(QMessageBox::Ok));
    });
    tour.press("tbarGame_4");
    EXPECT_LT(rows(tour, "lvwGame"), before);
    EXPECT_GT(rows(tour, "lvwGame"), 0);
    EXPECT_EQ(rows(tour, "lvwGame"), currentGame->Count());
}

void saveGame(Tour &tour) {
    tour.player().chooseFile(tour.inFolder("vendredi.lst"));
    tour.press("tbarGame_5");
    EXPECT_TRUE(testing_support::fileExists(tour.inFolder("vendredi.lst")));
}

/// Prints slips through the preview, which is kept as a picture where it has a name.
void printSlips(Tour &tour, const char *entry, int direction, const char *preview) {
    const std::string option = "optPrintDir_" + std::to_string(direction);
    tour.player().in("frmPrintGridPreview", [&tour, option, preview](QWidget &dialog) {
        tour.player()
            .in("frmPrint",
                [option](QWidget &settings) {
                    click(control<QRadioButton>(settings, option.c_str()));
                    click(control<QPushButton>(settings, "cmdOK"));
                })
            .in("frmPrintGridPreview", [&tour, preview](QWidget &back) {
                if (preview)
                    tour.picture(preview);
                pressIn(back, "tbarPrint_3");
            });
        pressIn(dialog, "tbarPrint_5");
    });
    control<QAction>(tour.window(), entry).trigger();
    tour.player().finish();
}

void printing(Tour &tour) {
    tour.nextDocument("liste-des-combinaisons");
    control<QAction>(tour.window(), "mnuPrintGame_1").trigger();
    constexpr std::array<const char *, 4> documents = {
        "bulletins-par-la-gauche", "bulletins-par-la-droite", "bulletins-par-le-haut",
        "bulletins-par-le-bas"};
    for (std::size_t direction = 0; direction < documents.size(); ++direction) {
        tour.nextDocument(documents[direction]);
        printSlips(tour, "mnuPrintGame_2", static_cast<int>(direction),
                   direction == 0 ? "apercu-des-bulletins" : nullptr);
    }
    tour.nextDocument("bulletins-sur-canevas");
    printSlips(tour, "mnuPrintGame_3", 0, nullptr);
}

} // namespace

void gamesChapter(Tour &tour) {
    reducedGame(tour);
    manualGame(tour);
    randomGame(tour);
    ownSystem(tour);
    listOfSystems(tour);
    smallerSystem(tour);
    elimination(tour);
    saveGame(tour);
    printing(tour);
}

} // namespace boulix
