// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/frmRandomComb.h"
#include "support/lottery.h"
#include "ui/style/theme.h"
#include "ui/support/gameScreenTest.h"
#include "ui/support/tabOrder.h"
#include "ui/widgets/numberBall.h"
#include "ui/winnings/chanceBars.h"
#include "winnings/rapport.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace boulix {
namespace {

/// The winnings of a game of seven grids: all sixes of the numbers 1 to 7.
class WinningsPanelsTest : public GameScreenTest {
  protected:
    WinningsPanelsTest() {
        for (std::int16_t rank = 0; rank < rapport::size; ++rank)
            gRapport->Value(rank, static_cast<float>(rank + 1));
        mainWindow->winnings.showPrizes();
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({10, 20, 30, 40, 41, 42, 43});
        addDraw({1, 2, 30, 40, 41, 42, 43});
        mainWindow->frmUpdateDBList();
        makeSevenGrids();
    }
    std::string label(const std::string &name) {
        return control<QLabel>(window, name.c_str()).text().toStdString();
    }
    QLineEdit &price(int rank) {
        return control<QLineEdit>(window, ("txtRapPrice_" + std::to_string(rank)).c_str());
    }
    QPushButton &dates(int rank) {
        return control<QPushButton>(window, ("cmdPerfDate_" + std::to_string(rank)).c_str());
    }
    bool labelsShowOn(const char *name, int side) {
        const auto &frame =
            control<QWidget>(window, ("frameGameTab_" + std::to_string(side)).c_str());
        return frame.isAncestorOf(&control<QLabel>(window, name));
    }
};

TEST_F(WinningsPanelsTest, TheLabelsFollowTheSubTabs) {
    for (const int side : {winningsPage::verification, winningsPage::performance}) {
        goToSide(side);
        for (const char *name : {"lblVerWinTitle_0", "lblVerComb_10", "lblVerPrice_5"}) {
            EXPECT_TRUE(labelsShowOn(name, side)) << name;
            QApplication::processEvents();
            EXPECT_TRUE(control<QLabel>(window, name).isVisible()) << name;
        }
    }
    goToSide(winningsPage::report);
    EXPECT_TRUE(labelsShowOn("lblVerWinTitle_0", winningsPage::report));
    EXPECT_TRUE(labelsShowOn("lblVerComb_0", winningsPage::performance)) << "only titles follow";
    EXPECT_EQ(label("lblVerWinTitle_1"), "1 numéro + complémentaire");
}

TEST_F(WinningsPanelsTest, EachDrawIsVerifiedByItsPosition) {
    goToSide(winningsPage::verification);
    EXPECT_EQ(control<QLineEdit>(window, "txtVerifComb").text().toStdString(), "3");
    EXPECT_EQ(label("lblVerComb_2"), "5") << "grids with both the 1 and the 2";
    EXPECT_EQ(label("lblVerifComb"), "Tirage n° 1 du 03-01-2000");
    click(*control<QWidget>(window, "updVerifComb").findChildren<QToolButton *>().back());
    EXPECT_EQ(control<QLineEdit>(window, "txtVerifComb").text().toStdString(), "2");
    EXPECT_EQ(label("lblVerComb_2"), "0");
    EXPECT_EQ(label("lblVerWinTot"), "0");
    auto &draw = control<QLineEdit>(window, "txtVerifComb");
    draw.setFocus();
    draw.clear();
    QTest::keyClicks(&draw, QStringLiteral("1"));
    QTest::keyClick(&draw, Qt::Key_Return);
    EXPECT_EQ(label("lblVerComb_10"), "1");
    EXPECT_EQ(control<QAbstractButton>(window, "lblVerifNum_0").text().toStdString(), "1");
    EXPECT_EQ(control<QAbstractButton>(window, "lblVerifCompl").text().toStdString(), "7");
}

TEST_F(WinningsPanelsTest, TheBaseIsCheckedAndTheDatesOfTheWinsAreListed) {
    goToSide(winningsPage::performance);
    EXPECT_FALSE(dates(2).isEnabled());
    EXPECT_EQ(label("lblVerComb_2"), "");
    press("tbarPerfo_1");
    EXPECT_TRUE(window.isEnabled());
    EXPECT_EQ(label("lblVerComb_2"), "5");
    EXPECT_TRUE(dates(2).isEnabled());
    robot.in("frmWinDate", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Date des gains");
        const auto &wins = control<ReportView>(dialog, "lvwWinDate");
        EXPECT_EQ(wins.model()->rowCount(), 1);
        EXPECT_EQ(rowText(wins, 1), "03-01-2000 1 1 2 30 40 41 42 43 5");
        click(control<QPushButton>(dialog, "cmdExit"));
    });
    click(dates(2));
}

TEST_F(WinningsPanelsTest, RandomDrawsHaveNoDates) {
    goToSide(winningsPage::performance);
    press("tbarPerfo_1");
    robot.in("frmRandomComb", [this](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Générateur de combinaisons aléatoires");
        EXPECT_TRUE(window.isEnabled()) << "no check runs yet";
        QTest::keyClicks(&control<QLineEdit>(dialog, "txtnComb"), QStringLiteral("12"));
        click(control<QPushButton>(dialog, "cmdCompute"));
        EXPECT_EQ(control<ReportView>(dialog, "lvWComb").model()->rowCount(), 12);
        click(control<QPushButton>(dialog, "CMD_OK"));
    });
    press("tbarPerfo_2");
    EXPECT_EQ(randomDraws.size(), 12U);
    EXPECT_FALSE(dates(2).isEnabled());
    EXPECT_TRUE(window.isEnabled());
}

TEST_F(WinningsPanelsTest, ACancelledRandomRunLeavesTheResultsAndTheDates) {
    goToSide(winningsPage::performance);
    press("tbarPerfo_1");
    robot.clickIn("frmRandomComb", "CMD_Cancel");
    press("tbarPerfo_2");
    EXPECT_EQ(label("lblVerComb_2"), "5");
    EXPECT_TRUE(dates(2).isEnabled());
}

TEST_F(WinningsPanelsTest, TheChancesOfTheGameOpenInAWindowOfTheirOwn) {
    goToSide(winningsPage::performance);
    robot.in("frmChances", [this](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Chances du jeu");
        EXPECT_TRUE(window.isEnabled()) << "the count is over";
        const auto &ranks = control<ReportView>(dialog, "lvwRanks");
        EXPECT_EQ(ranks.model()->rowCount(), 12);
        EXPECT_EQ(ranks.model()->index(10, 3).data().toString().toStdString(), "301");
        EXPECT_EQ(control<ReportView>(dialog, "lvwGuarantees").model()->rowCount(), 6);
        const auto &bars = control<QWidget>(dialog, "chanceBars");
        EXPECT_TRUE(bars.accessibleDescription().contains(QStringLiteral("6 numéros : 0,0000501")))
            << bars.accessibleDescription().toStdString();
        for (const char *name : {"lvwRanks", "lvwGuarantees"})
            EXPECT_FALSE(control<QWidget>(dialog, name).accessibleName().isEmpty()) << name;
        EXPECT_EQ(testing_support::tabOrder(dialog),
                  (std::vector<std::string>{"lvwRanks", "lvwGuarantees", "cmdExit"}));
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    press("tbarPerfo_3");
}

TEST_F(WinningsPanelsTest, ASmallerChanceHasAShorterBar) {
    ChanceBars bars({{"un", 1, "toujours"}, {"deux", 0.01, ""}, {"trois", 0.0001, ""}});
    bars.resize(bars.sizeHint());
    EXPECT_NEAR(bars.barOf(1).width(), bars.barOf(0).width() / 2, 0.001)
        << "half the powers of ten";
    EXPECT_NEAR(bars.barOf(2).width(), 0, 0.001);
    EXPECT_GT(bars.barOf(1).top(), bars.barOf(0).bottom());
    const QImage picture = bars.grab().toImage();
    EXPECT_EQ(picture.pixelColor(bars.barOf(1).center().toPoint()), theme::accent);
    EXPECT_NE(picture.pixelColor(bars.barOf(1).topRight().toPoint() + QPoint(9, 9)), theme::accent);
}

TEST_F(WinningsPanelsTest, LongResultsLeaveThePanelAsWideAsItIs) {
    const auto narrowest = [this] {
        for (int level = 0; level < 3; ++level)
            QApplication::processEvents(); // a new size travels outwards, strip by strip
        return control<QWidget>(window, "frameGameTab_1").minimumSizeHint().width();
    };
    goToSide(winningsPage::performance);
    const int width = narrowest();
    mainWindow->winnings.lblVerComb.fill("13983816");
    mainWindow->winnings.lblVerPrice.fill("-148028.9");
    mainWindow->winnings.leaveVerifComb(""); // shows what is set
    EXPECT_EQ(narrowest(), width);
}

TEST_F(WinningsPanelsTest, APrizeTypedIsPaidOnTheNextSubTab) {
    goToSide(winningsPage::report);
    EXPECT_EQ(price(2).text().toStdString(), "3");
    price(2).clear();
    QTest::keyClicks(&price(2), QStringLiteral("2.5"));
    goToSide(winningsPage::performance);
    EXPECT_EQ(gRapport->Value(2), 2.5F);
    press("tbarPerfo_1");
    EXPECT_EQ(label("lblVerPrice_2"), "12.5");
}

TEST_F(WinningsPanelsTest, APrizeTableIsSavedLoadedAndKeptAsDefault) {
    goToSide(winningsPage::report);
    price(0).clear();
    QTest::keyClicks(&price(0), QStringLiteral("9"));
    robot.chooseFile(file("soir.rap"));
    press("tbarRapp_2");
    price(0).clear();
    QTest::keyClicks(&price(0), QStringLiteral("8"));
    press("tbarRapp_3");
    robot.chooseFile(file("soir.rap"));
    press("tbarRapp_1");
    EXPECT_EQ(price(0).text().toStdString(), "9");
    gRapport->loadDefFile();
    EXPECT_EQ(gRapport->Value(0), 8.0F);
}

TEST(NumberBall, WithoutANumberIsAnEmptyRing) {
    QWidget page;
    NumberBall ball(&page);
    ball.resize(ball.sizeHint());
    const QColor ground(1, 2, 3);
    const auto middle = [&] {
        const QImage picture = page.grab().toImage();
        return picture.pixelColor(ball.geometry().center() + QPoint(0, ball.height() / 4));
    };
    ball.show(QString(), ground, false);
    EXPECT_EQ(middle(), page.palette().color(QPalette::Window));
    ball.show(QStringLiteral("7"), ground, false);
    EXPECT_EQ(middle(), ground);
}

} // namespace
} // namespace boulix
