// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "tour/chapters.h"
#include "tour/tour.h"
#include "ui/widgets/numberBall.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QtTest/QTest>

namespace boulix {

namespace {

void pickType(Tour &tour, int type) {
    control<QAction>(tour.window(), ("mnuStatTypes_" + std::to_string(type)).c_str()).trigger();
}

int rows(Tour &tour) {
    return tour.list("lvwStatsResult").model()->rowCount();
}

void frequencies(Tour &tour) {
    tour.turnTo("TabStrip", 1);
    tour.picture("page-statistiques");
    tour.press("tbarStats_1");
    EXPECT_EQ(rows(tour), 49);
    EXPECT_EQ(tour.label("lblStatsStatus").rfind("Numéro le plus sorti: ", 0), 0U);
    ReportView &list = tour.list("lvwStatsResult");
    for (const int row : {3, 8, 13})
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list.visualRect(list.model()->index(row - 1, 0)).center());
    EXPECT_EQ(tour.label("StatusBar_2"), "3 numéros sélectionés");
    tour.picture("frequences-et-numeros-choisis");
}

void graphOfFrequencies(Tour &tour) {
    tour.press("tbarStats_2");
    QWidget *graph = visibleWindow(QStringLiteral("frmGraph"));
    ASSERT_NE(graph, nullptr);
    tour.picture("graphe-en-barres");
    control<QComboBox>(*graph, "cmbGraphType").setCurrentIndex(0);
    tour.picture("graphe-en-lignes");
    tour.press("tbarStats_2");
    EXPECT_EQ(visibleWindow(QStringLiteral("frmGraph")), nullptr);
}

/// Computes a type that asks for one number.
void computeWithSeven(Tour &tour, int type, const char *picture) {
    pickType(tour, type);
    tour.player().in("frmNbrSelector", [&tour, picture](QWidget &dialog) {
        Tour::clickNumbers(control<NumberBoardView>(dialog, "grd"), {7});
        tour.picture(picture);
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    tour.press("tbarStats_1");
}

void couples(Tour &tour) {
    computeWithSeven(tour, 2, "couple-avec-le-7");
    EXPECT_GT(rows(tour), 0);
    EXPECT_EQ(tour.label("lblStatsStatus").rfind("Couple le plus sorti: 07 - ", 0), 0U);
    tour.picture("couples");
}

void periodsAndTheirGraph(Tour &tour) {
    computeWithSeven(tour, 13, "absences-du-7");
    EXPECT_GT(rows(tour), 0);
    EXPECT_EQ(tour.label("lblStatsStatus").rfind("Absence maxi pour le numéro 7: ", 0), 0U);
    tour.picture("periodes-sans-sortir");
    tour.press("tbarStats_2");
    EXPECT_NE(visibleWindow(QStringLiteral("frmGraph")), nullptr);
    tour.picture("graphe-des-periodes");
    tour.press("tbarStats_2");
}

/// One statistic of each further family, and what its sentence begins with.
void otherFamilies(Tour &tour) {
    struct Family {
        int type;
        const char *picture;
        const char *sentence;
    };
    constexpr Family families[] = {
        {6, "sommes", "Somme la plus fréquente: "},
        {7, "retards", "Numéro le plus en retard: "},
        {8, "repetitions", "Numéro le plus en répété: "},
        {9, "records-d-absence", "Numéro avec le record de retard: "},
        {10, "records-de-repetition", "Numéro avec le record de répétition: "},
        {17, "numeros-pairs", "Meilleur compromis avec "},
    };
    for (const Family &family : families) {
        pickType(tour, family.type);
        tour.press("tbarStats_1");
        EXPECT_GT(rows(tour), 0);
        EXPECT_EQ(tour.label("lblStatsStatus").rfind(family.sentence, 0), 0U);
        tour.picture(family.picture);
    }
    pickType(tour, 11);
    tour.press("tbarStats_1");
    EXPECT_EQ(tour.label("lblStatsStatus"), std::to_string(rows(tour)) + " triplets non sortis");
    tour.picture("triplets-non-sortis");
}

void exportAndPrint(Tour &tour) {
    pickType(tour, 1);
    tour.press("tbarStats_3");
    tour.player().chooseFile(tour.inFolder("frequences.txt"));
    tour.press("tbarStats_4");
    const std::string text = testing_support::readBytes(tour.inFolder("frequences.txt"));
    EXPECT_EQ(text.rfind("Fichier de statistiques g\xE9n\xE9r\xE9 par boulix Version 4.0.3\r\n", 0),
              0U);
    tour.nextDocument("rapport-de-statistique");
    tour.press("tbarStats_5");
}

void analysisOfTheLastDraw(Tour &tour) {
    tour.turnTo("TabStrip", 2);
    EXPECT_EQ(tour.label("lblTirInfo"), "Tirage N° 2 du 19/11/2003");
    auto &analyses = control<QListWidget>(tour.window(), "lstStatTirType");
    analyses.selectAll();
    EXPECT_EQ(tour.list("lvwTirStat").model()->rowCount(), 71);
    click(control<NumberBall>(tour.window(), "lblNumTir_3"));
    EXPECT_TRUE(mainWindow->statistics.grdStatNbrSelector.isSelected(23));
    tour.picture("analyse-du-dernier-tirage");
}

} // namespace

void statisticsChapter(Tour &tour) {
    frequencies(tour);
    graphOfFrequencies(tour);
    couples(tour);
    otherFamilies(tour);
    periodsAndTheirGraph(tour);
    exportAndPrint(tour);
    analysisOfTheLastDraw(tour);
}

} // namespace boulix
