// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "games/game.h"
#include "support/files.h"
#include "tour/chapters.h"
#include "tour/tour.h"
#include "ui/widgets/reportView.h"
#include "winnings/rapport.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QtTest/QTest>

namespace boulix {

namespace {

void prizes(Tour &tour) {
    tour.turnTo("TabStrip", 4);
    tour.turnTo("TabGame", winningsPage::report);
    constexpr std::array<const char *, winningsPage::ranks> amounts = {
        "0", "0", "0", "0", "2.1", "4.2", "25", "50", "1036.5", "9100", "520000"};
    for (std::size_t rank = 0; rank < amounts.size(); ++rank)
        Tour::type(tour.window(), "txtRapPrice_" + std::to_string(rank), amounts[rank]);
    tour.press("tbarRapp_3");
    EXPECT_TRUE(testing_support::fileExists(tour.inFolder("defrapp.rap")));
    EXPECT_EQ(gRapport->Value(8), 1036.5F);
    tour.picture("rapports-par-defaut");
}

void drawByDraw(Tour &tour) {
    tour.turnTo("TabGame", winningsPage::verification);
    EXPECT_EQ(tour.label("lblVerifComb"), "Tirage n° 2 du 19/11/2003");
    tour.picture("verification-du-dernier-tirage");
    auto *earlier =
        control<QWidget>(tour.window(), "updVerifComb").findChildren<QToolButton *>().back();
    click(*earlier);
    EXPECT_EQ(tour.label("lblVerifComb"), "Tirage n° 2 du 15/11/2003");
    tour.picture("verification-du-tirage-precedent");
}

void overTheBase(Tour &tour) {
    tour.turnTo("TabGame", winningsPage::performance);
    tour.press("tbarPerfo_1");
    EXPECT_NE(tour.label("lblVerComb_4"), "0") << "six hundred draws, three numbers";
    tour.picture("performances-sur-la-base");
    tour.player().in("frmWinDate", [&tour](QWidget &dialog) {
        EXPECT_GT(control<ReportView>(dialog, "lvwWinDate").model()->rowCount(), 0);
        tour.picture("dates-des-gains");
        click(control<QPushButton>(dialog, "cmdExit"));
    });
    click(control<QPushButton>(tour.window(), "cmdPerfDate_4"));
}

void overRandomDraws(Tour &tour) {
    tour.player().in("frmRandomComb", [&tour](QWidget &dialog) {
        Tour::type(dialog, "txtnComb", "500");
        click(control<QPushButton>(dialog, "cmdCompute"));
        EXPECT_EQ(control<ReportView>(dialog, "lvWComb").model()->rowCount(), 500);
        tour.picture("tirages-aleatoires");
        click(control<QPushButton>(dialog, "CMD_OK"));
    });
    tour.press("tbarPerfo_2");
    EXPECT_FALSE(control<QPushButton>(tour.window(), "cmdPerfDate_4").isEnabled());
    tour.picture("performances-sur-des-tirages-aleatoires");
}

void chances(Tour &tour) {
    tour.player().in("frmChances", [&tour](QWidget &dialog) {
        EXPECT_EQ(control<ReportView>(dialog, "lvwRanks").model()->rowCount(), 12);
        tour.picture("chances-du-jeu");
        click(control<QPushButton>(dialog, "cmdExit"));
    });
    tour.press("tbarPerfo_3");
}

void forecast(Tour &tour) {
    tour.turnTo("TabStrip", 5);
    constexpr std::array<const char *, 4> n = {"20", "6", "8", "3"};
    constexpr std::array<const char *, 4> points = {"3", "2", "1", "4"};
    for (std::size_t rule = 0; rule < n.size(); ++rule) {
        Tour::type(tour.window(), "txtN_" + std::to_string(rule), n[rule]);
        Tour::type(tour.window(), "txtPoints_" + std::to_string(rule), points[rule]);
    }
    Tour::type(tour.window(), "txtP_0", "5");
    Tour::type(tour.window(), "txtP_3", "15");
    tour.press("tBarPronos_3");
    ReportView &list = tour.list("lvwPronoResults");
    const QPoint header(list.header()->sectionViewportPosition(1) + 5, 5);
    for (int press = 0; press < 2; ++press) // the second one brings the best to the top
        QTest::mouseClick(list.header()->viewport(), Qt::LeftButton, {}, header);
    const auto pointsAt = [&list](int row) {
        return list.model()->index(row, 1).data().toString();
    };
    EXPECT_GT(pointsAt(0), pointsAt(48));
    for (int row = 1; row <= 8; ++row) {
        Tour::clickRow(list, row);
        QTest::keyClick(&list, Qt::Key_Space);
    }
    EXPECT_EQ(mainWindow->forecasts.tickedNumbers().size(), 8U);
    tour.picture("pronostique-calcule");
}

void testOnThePast(Tour &tour) {
    tour.player().in("frmTestProno", [&tour](QWidget &dialog) {
        Tour::type(dialog, "txtNumTir", "500");
        Tour::type(dialog, "txtTirBefore", "5");
        Tour::type(dialog, "txtTirAfter", "20");
        Tour::type(dialog, "txtNbrCount", "8");
        control<QAction>(dialog, "toolBar_1").trigger();
        EXPECT_EQ(control<ReportView>(dialog, "lvWResult").model()->rowCount(), 26);
        tour.picture("test-du-pronostique");
        control<QAction>(dialog, "toolBar_2").trigger();
    });
    tour.press("tBarPronos_4");
}

/// The ticked numbers become a game.
void gameFromForecast(Tour &tour) {
    tour.turnTo("TabStrip", 4);
    tour.turnTo("TabGame", 3);
    tour.turnTo("tabGameDesign", gameDesign::selectorsTab);
    click(control<QCheckBox>(tour.window(), "chkSelect_0"));
    click(control<QCheckBox>(tour.window(), "chkSelect_2"));
    tour.turnTo("tabGameDesign", gameDesign::manualTab);
    tour.player().box("Etes-vous sûr de vouloir effacer le jeu sans l'ajouter?",
                      "Effacement du jeu en construction", QMessageBox::Question, QMessageBox::Yes);
    tour.press("tbarGameDef_3");
    tour.player().in("frmNbrSelector", [&tour](QWidget &dialog) {
        tour.picture("numeros-issus-du-pronostique");
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    tour.press("tbarGameDef_2");
    tour.press("tbarGameDef_4");
    EXPECT_EQ(tour.list("lvwGameDef").model()->rowCount(), 28) << "all sixes of eight numbers";
    const std::int32_t before = currentGame->Count();
    tour.press("tbarGameDef_1");
    EXPECT_EQ(currentGame->Count(), before + 28);
    tour.picture("jeu-du-pronostique");
}

} // namespace

void winningsChapter(Tour &tour) {
    prizes(tour);
    drawByDraw(tour);
    overTheBase(tour);
    overRandomDraws(tour);
    chances(tour);
    forecast(tour);
    testOnThePast(tour);
    gameFromForecast(tour);
}

} // namespace boulix
