// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The statistics page, its graph window and the analysis page in a running program.

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "stats/graphSettings.h"
#include "support/numberScript.h"
#include "ui/stats/plotView.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/numberBall.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/reportView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolBar>
#include <QtTest/QTest>

#include <algorithm>

namespace boulix {
namespace {

/// The program on a base of twenty draws, on its statistics page.
class StatisticsTabTest : public ScreenTest {
  protected:
    StatisticsTabTest() : window(start()) {
        for (int i = 1; i <= 20; ++i) {
            lotoComb comb;
            for (int k = 1; k <= lotoComb::size; ++k)
                comb.num(k, static_cast<std::int16_t>((i * 5 + k * 7) % 49 + 1));
            comb.compl_(static_cast<std::int16_t>((i * 5) % 49 + 1));
            gDbCombs->Add(dateOf({2001, 1, i}), 1, comb, false, "");
        }
        mainWindow->frmUpdateDBList();
        control<QTabWidget>(window, "TabStrip").setCurrentIndex(1);
    }

    QAction &button(int number) {
        return control<QAction>(window, ("tbarStats_" + std::to_string(number)).c_str());
    }
    void press(int number) {
        click(*control<QToolBar>(window, "tbarStats").widgetForAction(&button(number)));
    }
    void pick(int type) {
        control<QAction>(window, ("mnuStatTypes_" + std::to_string(type)).c_str()).trigger();
    }
    std::string label(const char *name) const {
        return control<QLabel>(window, name).text().toStdString();
    }
    ReportView &list() const { return control<ReportView>(window, "lvwStatsResult"); }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) const {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, keys,
                          list().visualRect(list().model()->index(row - 1, 0)).center());
    }

    MainWindow &window;
};

TEST_F(StatisticsTabTest, TheMenuHasTheSeventeenTypesAndComputesNothingWhenOneIsPicked) {
    const auto &menu = control<QMenu>(window, "mnuStatTypes");
    EXPECT_EQ(menu.actions().size(), 17);
    EXPECT_TRUE(menu.actions()[0]->isChecked());
    pick(6);
    EXPECT_EQ(label("lblStatType"),
              "Fréquence de sortie par somme des numéros (Sans complémentaire)");
    EXPECT_EQ(list().model()->rowCount(), 0);
    EXPECT_TRUE(menu.actions()[5]->isChecked());
}

TEST_F(StatisticsTabTest, ComputingFillsTheListAndTheSentence) {
    press(statisticsPage::computeType);
    EXPECT_EQ(list().model()->rowCount(), 49);
    EXPECT_EQ(list().model()->index(0, 0).data().toString().toStdString(), "01");
    EXPECT_EQ(label("lblStatsStatus").rfind("Numéro le plus sorti: ", 0), 0U);
}

TEST_F(StatisticsTabTest, SelectedRowsJoinTheBoardAndTheStatusBarCountsThem) {
    press(statisticsPage::computeType);
    clickRow(3);
    clickRow(5, Qt::ControlModifier);
    EXPECT_EQ(label("StatusBar_2"), "2 numéros sélectionés");
    auto &board = control<NumberBoardView>(window, "grdStatNbrSelector");
    QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(3).center().toPoint());
    EXPECT_EQ(label("StatusBar_2"), "1 numéro sélectioné");
    press(statisticsPage::erase);
    EXPECT_EQ(label("StatusBar_2"), "0 numéro sélectioné");
}

TEST_F(StatisticsTabTest, SeveralRowsAreSelectedAndCopiedTogether) {
    using Rows = std::vector<std::int64_t>;
    const auto copied = [this] {
        control<QAction>(list(), "copySelected").trigger();
        return QApplication::clipboard()->text().toStdString();
    };
    press(statisticsPage::computeType);
    clickRow(3);
    clickRow(5, Qt::ShiftModifier);
    EXPECT_EQ(list().selectedRows(), (Rows{3, 4, 5}));
    clickRow(8, Qt::ControlModifier);
    EXPECT_EQ(list().selectedRows(), (Rows{3, 4, 5, 8}));
    std::string lines;
    for (const int row : {3, 4, 5, 8})
        for (const int column : {0, 1})
            lines += list().model()->index(row - 1, column).data().toString().toStdString() +
                     (column == 0 ? "\t" : "\n");
    EXPECT_EQ(copied(), lines);
    QTest::keyClick(&list(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(list().selectedRows().size(), 49U);
    const std::string all = copied();
    EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 49);
}

TEST_F(StatisticsTabTest, OnlyAClickSpaceAndReturnAddNumbersToTheBoard) {
    const NumberBoard &board = mainWindow->statistics.grdStatNbrSelector;
    press(statisticsPage::computeType);
    clickRow(2);
    EXPECT_EQ(testing_support::markedNumbers(board), (std::vector<std::int16_t>{2}));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_4, Qt::Key_Home})
        QTest::keyClick(&list(), key);
    QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::mouseClick(list().viewport(), Qt::RightButton, {},
                      list().visualRect(list().model()->index(6, 0)).center());
    EXPECT_EQ(testing_support::markedNumbers(board), (std::vector<std::int16_t>{2}));
    QTest::keyClick(&list(), Qt::Key_Space);
    EXPECT_EQ(testing_support::markedNumbers(board), (std::vector<std::int16_t>{2, 7}));
    QTest::keyClick(&list(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(testing_support::markedNumbers(board), (std::vector<std::int16_t>{2, 7, 8}));
    EXPECT_EQ(label("StatusBar_2"), "3 numéros sélectionés");
}

TEST_F(StatisticsTabTest, AClickOnAHeaderSortsAndANewResultStandsInComputedOrder) {
    press(statisticsPage::computeType);
    mainWindow->statistics.clickHeader(1);
    EXPECT_NE(list().model()->index(0, 0).data().toString().toStdString(), "01");
    press(statisticsPage::computeType);
    EXPECT_EQ(list().model()->index(0, 0).data().toString().toStdString(), "01");
}

TEST_F(StatisticsTabTest, TypedRangesAreBroughtBetweenTheLimitsAndLettersAreUndone) {
    auto &start = control<QLineEdit>(window, "txtStatStart");
    auto &end = control<QLineEdit>(window, "txtStatEnd");
    const auto type = [](QLineEdit &box, const char *text) {
        box.selectAll();
        QTest::keyClicks(&box, QString::fromLatin1(text));
        QTest::keyClick(&box, Qt::Key_Return);
    };
    type(end, "12");
    type(start, "0");
    EXPECT_EQ(start.text().toStdString(), "1");
    type(start, "30000");
    EXPECT_EQ(start.text().toStdString(), "12");
    type(start, "99999");
    EXPECT_EQ(start.text().toStdString(), "12");
    type(start, "abc");
    EXPECT_EQ(start.text().toStdString(), "12");
    EXPECT_EQ(label("lblStatStartDate"), "12-01-2001 (1)");
    QTest::keyClick(&start, Qt::Key_Down);
    EXPECT_EQ(start.text().toStdString(), "11");
}

TEST_F(StatisticsTabTest, TheGraphButtonOpensTheWindowAndTheNextResultIsDrawn) {
    press(statisticsPage::computeType);
    press(statisticsPage::showGraph);
    EXPECT_TRUE(button(statisticsPage::showGraph).isChecked());
    QWidget *graph = visibleWindow(QStringLiteral("frmGraph"));
    ASSERT_NE(graph, nullptr);
    const auto &plot = control<PlotView>(*graph, "PlotPane");
    EXPECT_EQ(plot.valueAt(7.2).toStdString().rfind("N° 7 : fréquence ", 0), 0U);
    EXPECT_EQ(plot.valueAt(120).toStdString(), "");
    press(statisticsPage::showGraph);
    EXPECT_FALSE(button(statisticsPage::showGraph).isChecked());
    EXPECT_EQ(visibleWindow(QStringLiteral("frmGraph")), nullptr);
}

TEST_F(StatisticsTabTest, TheGraphWindowComesBackWhereItWasClosed) {
    press(statisticsPage::showGraph);
    visibleWindow(QStringLiteral("frmGraph"))->setGeometry(120, 80, 500, 360);
    press(statisticsPage::showGraph);
    press(statisticsPage::showGraph);
    EXPECT_EQ(visibleWindow(QStringLiteral("frmGraph"))->geometry(), QRect(120, 80, 500, 360));
}

TEST_F(StatisticsTabTest, ClosingTheGraphWindowItselfBringsItsButtonUp) {
    press(statisticsPage::showGraph);
    visibleWindow(QStringLiteral("frmGraph"))->close();
    QApplication::processEvents();
    EXPECT_FALSE(button(statisticsPage::showGraph).isChecked());
    EXPECT_EQ(mainWindow->statistics.graphButton(), 0);
}

TEST_F(StatisticsTabTest, ATypeWithoutAGraphClosesTheWindowAndGreysTheButtonThatStaysPressed) {
    press(statisticsPage::computeType);
    press(statisticsPage::showGraph);
    pick(11);
    EXPECT_EQ(visibleWindow(QStringLiteral("frmGraph")), nullptr);
    EXPECT_FALSE(button(statisticsPage::showGraph).isEnabled());
    EXPECT_TRUE(button(statisticsPage::showGraph).isChecked());
    pick(1);
    EXPECT_TRUE(button(statisticsPage::showGraph).isEnabled());
    press(statisticsPage::computeType);
    EXPECT_NE(visibleWindow(QStringLiteral("frmGraph")), nullptr);
}

TEST_F(StatisticsTabTest, TheGraphWindowsControlsReachTheCurve) {
    press(statisticsPage::computeType);
    press(statisticsPage::showGraph);
    QWidget *graph = visibleWindow(QStringLiteral("frmGraph"));
    control<QComboBox>(*graph, "cmbGraphType").setCurrentIndex(3);
    EXPECT_EQ(modStats::graphType, 3);
    control<QCheckBox>(*graph, "chkShowGrid").click();
    EXPECT_FALSE(modStats::graphShowGrid);
    EXPECT_FALSE(control<QGroupBox>(*graph, "frameManualRange").isEnabled());
    control<QRadioButton>(*graph, "optManualRange").click();
    EXPECT_TRUE(control<QGroupBox>(*graph, "frameManualRange").isEnabled());
    auto &yMax = control<QLineEdit>(*graph, "txtYMax");
    yMax.selectAll();
    QTest::keyClicks(&yMax, QStringLiteral("77"));
    QTest::keyClick(&yMax, Qt::Key_Return);
    EXPECT_EQ(modStats::graphYMax, 77);
}

TEST_F(StatisticsTabTest, ADismissedSelectionLeavesAPairStatisticEmpty) {
    pick(2);
    robot.clickIn("frmNbrSelector", "cmdCancel");
    press(statisticsPage::computeType);
    EXPECT_EQ(list().model()->rowCount(), 0);
}

/// The analysis page over the same base.
class DrawAnalysisTabTest : public StatisticsTabTest {
  protected:
    DrawAnalysisTabTest() { control<QTabWidget>(window, "TabStrip").setCurrentIndex(2); }
    ReportView &answers() const { return control<ReportView>(window, "lvwTirStat"); }
};

TEST_F(DrawAnalysisTabTest, TheNewestDrawStandsThereAndNoAnalysisIsSelected) {
    EXPECT_EQ(label("lblTirInfo"), "Tirage N° 1 du 20-01-2001");
    EXPECT_EQ(control<NumberBall>(window, "lblNumTir_1").text().toStdString(), "10");
    EXPECT_EQ(answers().model()->rowCount(), 0);
}

TEST_F(DrawAnalysisTabTest, AllEightAnalysesGiveSeventyOneRows) {
    auto &analyses = control<QListWidget>(window, "lstStatTirType");
    ASSERT_EQ(analyses.count(), 8);
    for (int row : {7, 0, 3, 5, 1, 2, 6, 4})
        analyses.item(row)->setSelected(true);
    EXPECT_EQ(answers().model()->rowCount(), 71);
    EXPECT_EQ(answers().model()->index(0, 0).data().toString().toStdString(),
              "Somme des numéros de la combinaison sans complémentaire");
}

TEST_F(DrawAnalysisTabTest, AClickOnABallMarksItsNumberOnTheBoardAndNotTheStatusBar) {
    click(control<NumberBall>(window, "lblNumTir_1"));
    EXPECT_TRUE(mainWindow->statistics.grdStatNbrSelector.isSelected(10));
    EXPECT_EQ(label("StatusBar_2"), "");
    click(control<NumberBall>(window, "lblNumTir_1"));
    EXPECT_FALSE(mainWindow->statistics.grdStatNbrSelector.isSelected(10));
}

TEST_F(DrawAnalysisTabTest, TheArrowsAndTheBoxMoveFromDrawToDraw) {
    auto &box = control<QLineEdit>(window, "txtTirNbr");
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(label("lblTirInfo"), "Tirage N° 1 du 19-01-2001");
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("3"));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(label("lblTirInfo"), "Tirage N° 1 du 03-01-2001");
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("xyz"));
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.text().toStdString(), "3");
}

TEST_F(StatisticsTabTest, MarkedNumbersAreTakenToTheGamesWithTheirSourceTicked) {
    QAction &play = button(statisticsPage::playNumbers);
    EXPECT_FALSE(play.isEnabled());
    EXPECT_EQ(play.toolTip().toStdString(),
              "Passer aux jeux avec les numéros sélectionnés ici comme source\n"
              "Cochez d'abord des numéros sur la grille ou dans la liste.");
    press(statisticsPage::computeType);
    clickRow(3);
    EXPECT_TRUE(play.isEnabled());
    control<QTabWidget>(window, "TabGame").setCurrentIndex(0);
    press(statisticsPage::playNumbers);
    EXPECT_EQ(control<QTabWidget>(window, "TabStrip").currentIndex(), 4);
    EXPECT_EQ(control<QTabWidget>(window, "TabGame").currentIndex(), 3);
    auto &source = control<QCheckBox>(window, "chkSelect_0");
    EXPECT_TRUE(source.isVisible());
    EXPECT_TRUE(source.isChecked());
    control<QTabWidget>(window, "TabStrip").setCurrentIndex(1);
    press(statisticsPage::erase);
    EXPECT_FALSE(play.isEnabled());
}

TEST_F(StatisticsTabTest, AResultOfAnEarlierChoiceIsSaidToBeOne) {
    press(statisticsPage::computeType);
    EXPECT_EQ(label("lblStatsNote"), "Moyenne de la liste : 2,4 (le trait dans chaque ligne)");
    pick(7);
    EXPECT_EQ(label("lblStatsNote"),
              "Ce résultat est celui d'avant : cliquez sur « Type » pour calculer.");
    EXPECT_TRUE(mainWindow->statistics.lvwStatsResult.outdated());
    pick(1);
    EXPECT_FALSE(mainWindow->statistics.lvwStatsResult.outdated());
}

} // namespace
} // namespace boulix
