// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "support/locations.h"
#include "tour/chapters.h"
#include "tour/tour.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/upDownView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>

#include <filesystem>

namespace boulix {

namespace {

const std::string noPrizes = "Erreur lors de l'accès au fichier defrapp.rap.";
const std::string noPrizesTitle = "boulix: Erreur N° 4204";

void firstStart(Tour &tour) {
    tour.player().in("messageBox", [&tour](QWidget &box) {
        EXPECT_EQ(dynamic_cast<QMessageBox &>(box).text().toStdString(), noPrizes);
        tour.picture("premier-demarrage-sans-rapport");
        click(*box.findChild<QPushButton *>());
    });
    tour.startProgram();
    EXPECT_EQ(tour.list("lvwDBcomb").model()->rowCount(), 0);
    EXPECT_EQ(tour.label("StatusBar_1"), "0 combinaisons dans la base de données");
    tour.picture("base-vide");
}

/// The player has put the file beside the program, where the dialog opens.
void importHistory(Tour &tour) {
    const std::filesystem::path sample = testing_support::sampleHistory();
    const std::string name = sample.filename().string();
    std::filesystem::copy_file(sample, tour.inFolder(name));
    tour.player()
        .in("comDiag",
            [&](QWidget &dialog) {
                control<QLineEdit>(dialog, "fileNameEdit").setText(QString::fromStdString(name));
                tour.picture("choix-du-fichier-a-importer");
            })
        .chooseFile(tour.inFolder(name));
    tour.press("tbarDB_1");
    const ReportView &list = tour.list("lvwDBcomb");
    EXPECT_EQ(list.model()->rowCount(), 600);
    EXPECT_EQ(Tour::rowText(list, 1), "03/01/2001 1 13 10 24 36 35 1 2");
    EXPECT_EQ(Tour::rowText(list, 600), "15/11/2003 2 1 12 33 7 46 13 2");
    EXPECT_EQ(tour.label("StatusBar_1"), "600 combinaisons dans la base de données");
    EXPECT_EQ(tour.label("lblDBCombDesc"), "Tirage n° 2 du 15/11/2003");
    tour.picture("historique-importe");
}

void lookAtADraw(Tour &tour) {
    Tour::clickRow(tour.list("lvwDBcomb"), 2);
    EXPECT_EQ(tour.label("lblDBCombDesc"), "Tirage n° 2 du 03/01/2001");
    const NumberBoard &board = mainWindow->database.grdDB;
    EXPECT_EQ(board.selectedCount(), 7);
    EXPECT_TRUE(board.isComplementary(48));
    tour.picture("tirage-choisi");
}

void addADraw(Tour &tour) {
    tour.player()
        .in("frmNbrSelector",
            [&tour](QWidget &dialog) {
                Tour::clickNumbers(control<NumberBoardView>(dialog, "grd"),
                                   {4, 11, 23, 29, 37, 42, 8});
                tour.picture("numeros-du-nouveau-tirage");
                click(control<QPushButton>(dialog, "cmdOK"));
            })
        .in("frmSelDate", [&tour](QWidget &dialog) {
            tour.picture("date-du-nouveau-tirage");
            click(control<QPushButton>(dialog, "cmdOK"));
        });
    tour.press("tbarDB_2");
    const ReportView &list = tour.list("lvwDBcomb");
    EXPECT_EQ(list.model()->rowCount(), 601);
    EXPECT_EQ(Tour::rowText(list, 601), "19/11/2003 1 4 11 23 29 37 42 8");
    EXPECT_EQ(tour.label("StatusBar_1"), "601 combinaisons dans la base de données");
    tour.picture("tirage-ajoute");
}

void changeTheDraw(Tour &tour) {
    Tour::clickRow(tour.list("lvwDBcomb"), 601);
    tour.player()
        .in("frmNbrSelector",
            [&tour](QWidget &dialog) {
                auto &board = control<NumberBoardView>(dialog, "grd");
                Tour::clickNumbers(board, {42, 8, 43, 8}); // 43 in place of 42, 8 stays the last
                tour.picture("numeros-a-modifier");
                click(control<QPushButton>(dialog, "cmdOK"));
            })
        .in("frmSelDate", [&tour](QWidget &dialog) {
            QTest::keyClick(&control<UpDownView>(dialog, "updTirage"), Qt::Key_Up);
            tour.picture("tirage-du-jour");
            click(control<QPushButton>(dialog, "cmdOK"));
        });
    tour.press("tbarDB_3");
    const ReportView &list = tour.list("lvwDBcomb");
    EXPECT_EQ(list.model()->rowCount(), 601);
    EXPECT_EQ(Tour::rowText(list, 601), "19/11/2003 2 4 11 23 29 37 43 8");
    tour.picture("tirage-modifie");
}

void deleteADraw(Tour &tour) {
    Tour::clickRow(tour.list("lvwDBcomb"), 1);
    tour.press("tbarDB_4");
    const ReportView &list = tour.list("lvwDBcomb");
    EXPECT_EQ(list.model()->rowCount(), 600);
    EXPECT_EQ(Tour::rowText(list, 1), "03/01/2001 2 7 30 35 22 4 12 48");
    EXPECT_EQ(tour.label("StatusBar_1"), "600 combinaisons dans la base de données");
    tour.picture("tirage-supprime");
}

void quitAndStartAgain(Tour &tour) {
    const std::string question = "Etes-vous sûr de vouloir quitter boulix?";
    tour.player().box(question, "boulix", QMessageBox::Question, QMessageBox::No);
    control<QAction>(tour.window(), "mnuExit").trigger();
    EXPECT_TRUE(tour.window().isVisible());

    tour.player().in("messageBox", [&](QWidget &box) {
        EXPECT_EQ(dynamic_cast<QMessageBox &>(box).text().toStdString(), question);
        tour.picture("quitter");
        click(*dynamic_cast<QMessageBox &>(box).button(QMessageBox::Yes));
    });
    control<QAction>(tour.window(), "mnuExit").trigger();
    EXPECT_FALSE(tour.window().isVisible());
    tour.endProgram();

    tour.player().box(noPrizes, noPrizesTitle, QMessageBox::Information);
    tour.startProgram();
    const ReportView &list = tour.list("lvwDBcomb");
    EXPECT_EQ(list.model()->rowCount(), 600);
    EXPECT_EQ(Tour::rowText(list, 1), "03/01/2001 2 7 30 35 22 4 12 48");
    EXPECT_EQ(Tour::rowText(list, 600), "19/11/2003 2 4 11 23 29 37 43 8");
    tour.picture("second-demarrage");
}

} // namespace

void baseChapter(Tour &tour) {
    firstStart(tour);
    importHistory(tour);
    lookAtADraw(tour);
    addADraw(tour);
    changeTheDraw(tour);
    deleteADraw(tour);
    quitAndStartAgain(tour);
}

} // namespace boulix
