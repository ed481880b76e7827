// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "eliminators/eliminators.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/numberBoardView.h"
#include "workbench/frmMain.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>

namespace boulix {
namespace {

class EliminatorTabTest : public ScreenTest {
  protected:
    EliminatorTabTest() : window(start()) { mainWindow->clickTab(4); }

    QCheckBox &rule(int index) {
        return control<QCheckBox>(window, ("chkEliminator_" + std::to_string(index)).c_str());
    }
    QLineEdit &value(int index) {
        return control<QLineEdit>(window, ("txtEliminator_" + std::to_string(index)).c_str());
    }
    QPushButton &listButton() { return control<QPushButton>(window, "btnSelectList"); }
    void press(int button) {
        control<QAction>(window, ("tBarEliminator_" + std::to_string(button)).c_str()).trigger();
    }
    void tick(int index) { QTest::keyClick(&rule(index), Qt::Key_Space); }

    MainWindow &window;
};

TEST_F(EliminatorTabTest, TheEightRulesAreShownAndOff) {
    for (int index = 0; index < eliminatorPage::ruleCount; ++index) {
        EXPECT_EQ(rule(index).text().toStdString(), gEliminators->Item(index + 1).label());
        EXPECT_FALSE(rule(index).isChecked());
    }
    for (int index = 0; index < eliminatorPage::valueCount; ++index)
        EXPECT_FALSE(value(index).isEnabled());
    EXPECT_FALSE(listButton().isEnabled());
}

TEST_F(EliminatorTabTest, ATickedRuleOpensItsBoxAndTheLastOneItsList) {
    for (int index = 0; index < eliminatorPage::valueCount; ++index) {
        tick(index);
        EXPECT_TRUE(value(index).isEnabled());
        EXPECT_TRUE(mainWindow->elimination.ticked(index));
    }
    EXPECT_FALSE(listButton().isEnabled());
    tick(7);
    EXPECT_TRUE(listButton().isEnabled());
    tick(7);
    EXPECT_FALSE(listButton().isEnabled());
}

TEST_F(EliminatorTabTest, WhatIsTypedReachesThePage) {
    tick(2);
    QTest::keyClicks(&value(2), QStringLiteral("120"));
    EXPECT_EQ(mainWindow->elimination.txtEliminator[2], "120");
}

TEST_F(EliminatorTabTest, TheListIsChosenOnTheBoard) {
    tick(7);
    robot.in("frmNbrSelector", [](QWidget &dialog) {
        auto &board = control<NumberBoardView>(dialog, "grd");
        for (const std::int16_t n : std::initializer_list<std::int16_t>{7, 49})
            QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(n).center().toPoint());
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    click(listButton());
    const eliminator &list = gEliminators->Item(eliminators::listRule);
    EXPECT_EQ(list.eliminNbr(7), eliminator::on);
    EXPECT_EQ(list.eliminNbr(8), eliminator::off);
    EXPECT_EQ(list.eliminNbr(49), eliminator::on);
}

TEST_F(EliminatorTabTest, SavedRulesComeBackIntoBoxesAndTicks) {
    tick(0);
    QTest::keyClicks(&value(0), QStringLiteral("3"));
    robot.chooseFile(file("soir.elm"));
    press(eliminatorPage::saveRules);
    tick(0);
    tick(1);
    value(0).clear();
    robot.chooseFile(file("soir.elm"));
    press(eliminatorPage::loadRules);
    EXPECT_TRUE(rule(0).isChecked());
    EXPECT_FALSE(rule(1).isChecked());
    EXPECT_EQ(value(0).text().toStdString(), "3");
}

TEST_F(EliminatorTabTest, ABoxTellsItsRangeAndWhyItIsOff) {
    EXPECT_EQ(value(0).placeholderText().toStdString(), "2 à 6");
    EXPECT_EQ(value(3).placeholderText().toStdString(), "21 à 279");
    EXPECT_EQ(value(3).toolTip().toStdString(),
              "Valeur de l'éliminateur, 21 à 279\nCochez la règle pour donner sa valeur");
    tick(3);
    EXPECT_EQ(value(3).toolTip().toStdString(), "Valeur de l'éliminateur, 21 à 279");
}

TEST_F(EliminatorTabTest, TheNumbersOfTheListStandBesideItsButton) {
    const auto &numbers = control<QLabel>(window, "lblList");
    EXPECT_EQ(numbers.text().toStdString(), "Aucun numéro dans la liste");
    EXPECT_FALSE(numbers.isEnabled());
    tick(7);
    robot.in("frmNbrSelector", [](QWidget &dialog) {
        auto &board = control<NumberBoardView>(dialog, "grd");
        for (const std::int16_t n : {std::int16_t{13}, std::int16_t{7}})
            QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(n).center().toPoint());
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    click(listButton());
    EXPECT_EQ(numbers.text().toStdString(), "7, 13");
    EXPECT_TRUE(numbers.isEnabled());
}

} // namespace
} // namespace boulix
