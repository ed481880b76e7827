// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/lottery.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/reportView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWindow>
#include <QtTest/QTest>

namespace boulix {
namespace {

class ForecastTabTest : public ScreenTest {
  protected:
    ForecastTabTest() : window(start()) { mainWindow->clickTab(6); }

    ReportView &list() { return control<ReportView>(window, "lvwPronoResults"); }
    QLineEdit &box(const std::string &name) { return control<QLineEdit>(window, name.c_str()); }
    void press(int button) {
        control<QAction>(window, ("tBarPronos_" + std::to_string(button)).c_str()).trigger();
    }
    void type(const std::string &name, const char *text) {
        box(name).clear();
        QTest::keyClicks(&box(name), QString::fromLatin1(text));
    }
    std::string cell(int row, int column) {
        return list().model()->index(row - 1, column).data().toString().toStdString();
    }
    static QPoint middleOf(const ReportView &view, int row, int column) {
        return view.visualRect(view.model()->index(row - 1, column)).center();
    }

    MainWindow &window;
    std::mt19937 random{7};
};

TEST_F(ForecastTabTest, TheRulesAreShownWithTheBoxesThatTheyUse) {
    EXPECT_EQ(control<QLabel>(window, "lblPronoTitle_1").text().toStdString(),
              "Le numéro n'est pas sorti depuis plus de N tirages");
    for (const char *shown : {"txtN_0", "txtP_0", "txtN_1", "txtN_2", "txtN_3", "txtP_3",
                              "txtPoints_0", "txtPoints_1", "txtPoints_2", "txtPoints_3"})
        EXPECT_TRUE(box(shown).isVisible()) << shown;
    for (const char *hidden : {"txtP_1", "txtP_2"})
        EXPECT_FALSE(box(hidden).isVisible()) << hidden;
    EXPECT_FALSE(control<QLabel>(window, "lblP_1").isVisible());
    EXPECT_EQ(list().model()->rowCount(), 49);
    EXPECT_EQ(cell(7, 0), "07");
}

TEST_F(ForecastTabTest, WhatIsTypedReachesThePage) {
    type("txtN_0", "12");
    type("txtP_3", "5");
    type("txtPoints_2", "7");
    EXPECT_EQ(mainWindow->forecasts.txtN[0], "12");
    EXPECT_EQ(mainWindow->forecasts.txtP[3], "5");
    EXPECT_EQ(mainWindow->forecasts.txtPoints[2], "7");
}

TEST_F(ForecastTabTest, TheButtonComputesAndTheHeaderBringsTheBestNumbersToTheTop) {
    addRandomDraws(60, random);
    for (const char *name : {"txtN_0", "txtN_1", "txtN_2", "txtN_3", "txtP_3"})
        type(name, "9");
    type("txtP_0", "2");
    for (int rule = 0; rule < 4; ++rule)
        type("txtPoints_" + std::to_string(rule), "3");
    press(forecastPage::computePoints);
    EXPECT_EQ(cell(1, 1).size(), 4U);
    QHeaderView &header = *list().header();
    const QPoint points(header.sectionViewportPosition(1) + 5, 5);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, points);
    EXPECT_LE(cell(1, 1), cell(49, 1));
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, points);
    EXPECT_GT(cell(1, 1), cell(49, 1));
}

TEST_F(ForecastTabTest, ATickedLineIsANumberForTheSelection) {
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, middleOf(list(), 4, 1));
    QTest::keyClick(&list(), Qt::Key_Space);
    EXPECT_EQ(mainWindow->forecasts.tickedNumbers(), (std::vector<std::int16_t>{4}));
}

TEST_F(ForecastTabTest, ASavedForecastComesBackIntoTheBoxes) {
    type("txtN_0", "12");
    robot.chooseFile(file("soir.pro"));
    press(forecastPage::saveRules);
    type("txtN_0", "99");
    robot.chooseFile(file("soir.pro"));
    press(forecastPage::loadRules);
    EXPECT_EQ(box("txtN_0").text().toStdString(), "12");
}

TEST_F(ForecastTabTest, WhileTheTestWindowIsOpenNoDrawCanBeAdded) {
    addRandomDraws(60, random);
    mainWindow->clickTab(1);
    auto &add = control<QAction>(window, "tbarDB_2");
    int added = 0;
    QObject::connect(&add, &QAction::triggered, [&added] { ++added; });
    robot.in("frmTestProno", [this](QWidget &dialog) {
        EXPECT_TRUE(dialog.isModal());
        for (QWidget *child : control<QWidget>(window, "tbarDB").findChildren<QToolButton *>())
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                              child->mapTo(&window, child->rect().center()));
        QTest::keySequence(window.windowHandle(), QKeySequence(QKeySequence::New));
        dialog.close();
    });
    press(forecastPage::testOnPast);
    EXPECT_EQ(added, 0);
    EXPECT_EQ(gDbCombs->Count(), 60);
}

TEST_F(ForecastTabTest, TheTestWindowStepsThroughTheDrawsAndListsTheResult) {
    addRandomDraws(60, random);
    robot.in("frmTestProno", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Test de Pronostiques");
        auto &draw = control<QLineEdit>(dialog, "txtNumTir");
        EXPECT_EQ(draw.text().toStdString(), "60");
        QWidget &arrows = control<QWidget>(dialog, "spnTir");
        click(*arrows.findChildren<QToolButton *>().front());
        EXPECT_EQ(draw.text().toStdString(), "1") << "behind the last draw comes the first";
        QTest::keyClick(&arrows, Qt::Key_Down);
        QTest::keyClick(&arrows, Qt::Key_Down);
        EXPECT_EQ(draw.text().toStdString(), "59");
        EXPECT_NE(control<QLabel>(dialog, "lblDescTir").text(), QString());
        draw.clear();
        QTest::keyClicks(&draw, QStringLiteral("30"));
        for (const auto &[name, text] :
             {std::pair{"txtTirBefore", "4"}, std::pair{"txtTirAfter", "5"},
              std::pair{"txtNbrCount", "49"}})
            QTest::keyClicks(&control<QLineEdit>(dialog, name), QString::fromLatin1(text));
        control<QAction>(dialog, "toolBar_1").trigger();
        const auto &result = control<ReportView>(dialog, "lvWResult");
        ASSERT_EQ(result.model()->rowCount(), 10);
        EXPECT_EQ(result.model()->index(0, 1).data().toString().toStdString(), "7");
        control<QAction>(dialog, "toolBar_2").trigger();
        EXPECT_FALSE(dialog.isVisible());
    });
    for (int rule = 0; rule < 4; ++rule)
        for (const char *name : {"txtN_", "txtPoints_"})
            type(name + std::to_string(rule), "9");
    type("txtP_0", "2");
    type("txtP_3", "20");
    press(forecastPage::computePoints);
    press(forecastPage::testOnPast);
}

} // namespace
} // namespace boulix
