// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/modGame.h"
#include "support/files.h"
#include "ui/support/gameScreenTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace boulix {
namespace {

const std::string clearTitle = "Effacement du jeu courant";
const std::string clearQuestion = "Etes-vous sûr de vouloir effacer le jeu?";

class GameTabTest : public GameScreenTest {};

TEST_F(GameTabTest, TheButtonsAreNamedAndExplained) {
    makeSevenGrids();
    clickRow(list("lvwGame"), 1); // all of them can act
    for (int button = 1; button <= 6; ++button) {
        const auto &action =
            control<QAction>(window, ("tbarGame_" + std::to_string(button)).c_str());
        const ControlText &told = gamePage::tbarGame[static_cast<std::size_t>(button - 1)];
        EXPECT_EQ(action.text().remove(QLatin1Char('&')).toStdString(), told.caption);
        EXPECT_EQ(action.toolTip().toStdString(), told.toolTip);
        EXPECT_FALSE(action.icon().isNull());
    }
}

TEST_F(GameTabTest, TheTabsAreNamedAndExplained) {
    const auto &methods = control<QTabBar>(window, "tabGameDesign");
    for (int tab = 0; tab < methods.count(); ++tab) {
        const ControlText &told = gameDesign::tabGameDesign[static_cast<std::size_t>(tab)];
        EXPECT_EQ(methods.tabText(tab).toStdString(), told.caption);
        EXPECT_EQ(methods.tabToolTip(tab).toStdString(), told.toolTip);
    }
    const auto &sides = control<QTabWidget>(window, "TabGame");
    for (int side = 0; side < sides.count(); ++side)
        EXPECT_EQ(sides.tabText(side).remove(QLatin1Char('&')).toStdString(),
                  gamePage::TabGame[static_cast<std::size_t>(side)]);
}

TEST_F(GameTabTest, EachMethodShowsItsControls) {
    struct Shown {
        gameDesign::Tab tab;
        bool toolbar, board, list, systems, count, sources, maker;
    };
    const std::vector<Shown> all = {
        {gameDesign::reducedTab, true, true, true, true, false, false, false},
        {gameDesign::fixedTab, true, true, true, true, false, false, false},
        {gameDesign::manualTab, true, true, true, false, false, false, false},
        {gameDesign::randomTab, true, true, true, false, true, false, false},
        {gameDesign::selectorsTab, false, false, false, false, false, true, false},
        {gameDesign::createTab, false, false, true, false, false, false, true},
    };
    for (const Shown &shown : all) {
        goTo(shown.tab);
        const auto visible = [this](const char *name) {
            return control<QWidget>(window, name).isVisible();
        };
        EXPECT_EQ(visible("tbarGameDef"), shown.toolbar) << shown.tab;
        EXPECT_EQ(visible("grdGameDef"), shown.board) << shown.tab;
        EXPECT_EQ(visible("lvwGameDef"), shown.list) << shown.tab;
        EXPECT_EQ(visible("cmbGameType"), shown.systems) << shown.tab;
        EXPECT_EQ(visible("txtNrandomGrid"), shown.count) << shown.tab;
        EXPECT_EQ(visible("chkSelect_0"), shown.sources) << shown.tab;
        EXPECT_EQ(visible("tbarCreateGame"), shown.maker) << shown.tab;
        EXPECT_EQ(visible("lblCost"), shown.maker) << shown.tab;
    }
}

TEST_F(GameTabTest, InAWideWindowTheListStaysBesideTheBoard) {
    window.resize(1900, 1000);
    QApplication::processEvents();
    for (const int tab : {gameDesign::reducedTab, gameDesign::manualTab, gameDesign::randomTab}) {
        goTo(tab);
        QApplication::processEvents();
        const QRect board = control<NumberBoardView>(window, "grdGameDef").geometry();
        const QRect grids = list("lvwGameDef").geometry();
        EXPECT_LT(grids.left() - board.right(), 40) << tab;
        EXPECT_LT(board.width(), 2 * grids.width()) << tab;
    }
}

TEST_F(GameTabTest, AReducedGameComesFromTheChosenSystemAndTheSelectedNumbers) {
    auto &systems = control<QComboBox>(window, "cmbGameType");
    ASSERT_EQ(systems.count(), static_cast<int>(mainWindow->games.design.cmbGameType().size()));
    systems.setCurrentIndex(1);
    EXPECT_EQ(mainWindow->games.design.gameType(), 1);
    select(modGame::reducedGames[2].nSelect());
    EXPECT_EQ(mainWindow->games.design.grdGameDef.selectedCount(),
              modGame::reducedGames[2].nSelect());
    press("tbarGameDef_4");
    EXPECT_EQ(rows("lvwGameDef"), modGame::reducedGames[2].nComb());
    press("tbarGameDef_1");
    EXPECT_EQ(rows("lvwGame"), modGame::reducedGames[2].nComb());
}

TEST_F(GameTabTest, AManualGameIsAddedAndAClearedOneLeavesItsList) {
    makeSevenGrids();
    EXPECT_EQ(rows("lvwGame"), 7);
    EXPECT_EQ(rowText(list("lvwGame"), 1), "1) 1 2 3 4 5 6");
    robot.box("Etes-vous sûr de vouloir effacer le jeu sans l'ajouter?",
              "Effacement du jeu en construction", QMessageBox::Question, QMessageBox::Yes);
    press("tbarGameDef_3");
    EXPECT_EQ(rows("lvwGameDef"), 0);
    EXPECT_EQ(rows("lvwGame"), 7);
}

TEST_F(GameTabTest, ARandomGameHasAsManyGridsAsTyped) {
    goTo(gameDesign::randomTab);
    select(20);
    QTest::keyClicks(&control<QLineEdit>(window, "txtNrandomGrid"), QStringLiteral("15"));
    press("tbarGameDef_4");
    EXPECT_EQ(rows("lvwGameDef"), 15);
}

TEST_F(GameTabTest, TheTickedSourcesReachThePage) {
    goTo(gameDesign::selectorsTab);
    for (const std::size_t i : {0U, 1U, 2U}) {
        auto &box = control<QCheckBox>(window, ("chkSelect_" + std::to_string(i)).c_str());
        EXPECT_EQ(box.text().toStdString(), gameDesign::chkSelectTexts[i]);
        click(box);
        EXPECT_TRUE(mainWindow->games.design.chkSelect[i]);
    }
}

TEST_F(GameTabTest, ASystemIsComputedFromTheThreeNumbersWithItsCost) {
    goTo(gameDesign::createTab);
    auto &win = control<QLineEdit>(window, "txtWinNbr");
    win.clear();
    QTest::keyClicks(&win, QStringLiteral("2"));
    auto &chosen = control<QLineEdit>(window, "txtChoosenNbr");
    chosen.clear();
    QTest::keyClicks(&chosen, QStringLiteral("8"));
    press("tbarCreateGame_3"); // what was typed counts although no box was left
    EXPECT_GT(rows("lvwGameDef"), 0);
    EXPECT_EQ(control<QLabel>(window, "lblnGameDefComb").text().toStdString(),
              std::to_string(rows("lvwGameDef")) + " combinaisons");
    EXPECT_FALSE(control<QLabel>(window, "lblCost").text().isEmpty());
}

TEST_F(GameTabTest, TheArrowsKeepTheFixedNumbersBelowTheWinningOnes) {
    goTo(gameDesign::createTab);
    const auto up = [this](const char *name) {
        click(*control<QWidget>(window, name).findChildren<QToolButton *>().front());
    };
    up("updnNFixed");
    EXPECT_EQ(control<QLineEdit>(window, "txtNFixedNbr").text().toStdString(), "1");
    EXPECT_EQ(control<QLineEdit>(window, "txtWinNbr").text().toStdString(), "2");
    QTest::keyClick(&control<QLineEdit>(window, "txtWinNbr"), Qt::Key_Down);
    EXPECT_EQ(control<QLineEdit>(window, "txtWinNbr").text().toStdString(), "1");
    EXPECT_EQ(control<QLineEdit>(window, "txtNFixedNbr").text().toStdString(), "0");
    up("updnNChoosen");
    EXPECT_EQ(control<QLineEdit>(window, "txtChoosenNbr").text().toStdString(), "8");
}

TEST_F(GameTabTest, AValueBeyondItsLimitIsBroughtBackWhenTheBoxIsLeft) {
    goTo(gameDesign::createTab);
    auto &chosen = control<QLineEdit>(window, "txtChoosenNbr");
    chosen.setFocus();
    chosen.clear();
    QTest::keyClicks(&chosen, QStringLiteral("99"));
    QTest::keyClick(&chosen, Qt::Key_Return);
    EXPECT_EQ(chosen.text().toStdString(), "49");
}

TEST_F(GameTabTest, TheListIsKeptOnlyWhileItsBoxIsTicked) {
    auto &box = control<QCheckBox>(window, "chkUpdateList");
    EXPECT_TRUE(box.isChecked());
    click(box);
    makeSevenGrids();
    EXPECT_EQ(rows("lvwGame"), 0);
    EXPECT_EQ(currentGame->Count(), 7);
    click(box);
    EXPECT_EQ(rows("lvwGame"), 7);
}

TEST_F(GameTabTest, TheSelectedRowIsRemovedAfterTheQuestion) {
    makeSevenGrids();
    clickRow(list("lvwGame"), 2);
    robot.in("messageBox", [](QWidget &box) {
        click(*dynamic_cast<QMessageBox &>(box).button(QMessageBox::Yes));
    });
    press("tbarGame_3");
    EXPECT_EQ(rows("lvwGame"), 6);
    EXPECT_EQ(rowText(list("lvwGame"), 2), "2) 1 2 3 4 6 7") << "the third grid moved up";
}

TEST_F(GameTabTest, TheGameIsClearedAfterTheQuestionOnly) {
    makeSevenGrids();
    robot.box(clearQuestion, clearTitle, QMessageBox::Question, QMessageBox::No);
    press("tbarGame_2");
    EXPECT_EQ(rows("lvwGame"), 7);
    robot.box(clearQuestion, clearTitle, QMessageBox::Question, QMessageBox::Yes);
    press("tbarGame_2");
    EXPECT_EQ(rows("lvwGame"), 0);
}

TEST_F(GameTabTest, TheEliminatorsThinTheGame) {
    makeSevenGrids();
    mainWindow->elimination.tick(2, true);
    mainWindow->elimination.txtEliminator[2] = "22";
    robot.in("messageBox", [](QWidget &box) {
        EXPECT_EQ(dynamic_cast<QMessageBox &>(box).text().toStdString(),
                  "5 combinaisons restantes.");
        click(*dynamic_cast<QMessageBox &>(box).button(QMessageBox::Ok));
    });
    press("tbarGame_4");
    EXPECT_EQ(rows("lvwGame"), 5);
}

TEST_F(GameTabTest, ASavedGameIsLoadedAgain) {
    makeSevenGrids();
    robot.chooseFile(file("soir.lst"));
    press("tbarGame_5");
    EXPECT_TRUE(testing_support::fileExists(file("soir.lst")));
    currentGame->clear();
    mainWindow->games.refill();
    robot.chooseFile(file("soir.lst"));
    press("tbarGame_1");
    EXPECT_EQ(rows("lvwGame"), 7);
}

TEST_F(GameTabTest, ThePrintButtonOpensAMenuOfThree) {
    const auto &menu = control<QWidget>(window, "mnuPrintGame");
    ASSERT_EQ(menu.actions().size(), 3);
    for (int entry = 0; entry < 3; ++entry) {
        EXPECT_EQ(menu.actions()[entry]->text().toStdString(),
                  gamePage::printMenu[static_cast<std::size_t>(entry)]);
    }
}

TEST_F(GameTabTest, AButtonWithNothingToActOnIsOffAndItsToolTipSaysWhy) {
    const auto button = [this](const char *name) -> QAction & {
        return control<QAction>(window, name);
    };
    EXPECT_FALSE(button("tbarGame_2").isEnabled());
    EXPECT_EQ(button("tbarGame_2").toolTip().toStdString(),
              std::string(gamePage::tbarGame[1].toolTip) + "\nLe jeu est vide.");
    EXPECT_FALSE(button("tbarGameDef_3").isEnabled());
    EXPECT_TRUE(button("tbarGameDef_1").isEnabled()) << "it has its message";
    makeSevenGrids();
    EXPECT_TRUE(button("tbarGame_2").isEnabled());
    EXPECT_TRUE(button("tbarGameDef_3").isEnabled());
    EXPECT_FALSE(button("tbarGame_3").isEnabled()) << "no row is selected";
    clickRow(list("lvwGame"), 2);
    EXPECT_TRUE(button("tbarGame_3").isEnabled());
    mainWindow->undo();
    EXPECT_FALSE(button("tbarGame_3").isEnabled());
}

TEST_F(GameTabTest, CountPriceAndFileStandUnderTheGame) {
    const auto text = [this](const char *name) {
        return control<QLabel>(window, name).text().toStdString();
    };
    EXPECT_EQ(text("lblGameCount"), "0 grille, 0 euro");
    EXPECT_EQ(text("lblGameFile"), "");
    makeSevenGrids();
    EXPECT_EQ(text("lblDesignCount"), "7 grilles, 4,20 euros");
    EXPECT_EQ(text("lblGameCount"), "7 grilles, 4,20 euros");
    EXPECT_EQ(text("lblGameFile"), "\u25cf Jeu non enregistré");
    robot.chooseFile(file("soir.lst"));
    press("tbarGame_5");
    EXPECT_EQ(text("lblGameFile"), "soir.lst");
    EXPECT_EQ(text("announcement"), "Jeu enregistré dans soir.lst : 7 grilles");
    robot.in("frmGridParam", [](QWidget &dialog) {
        control<QLineEdit>(dialog, "txtPrice").setText(QStringLiteral("2.2"));
        click(control<QPushButton>(dialog, "CMD_OK"));
    });
    press("mnuGrid");
    EXPECT_EQ(text("lblGameCount"), "7 grilles, 15,40 euros");
    EXPECT_EQ(text("lblDesignCount"), "7 grilles, 15,40 euros");
}

TEST_F(GameTabTest, AFailureInABoxOfAnotherPageLeadsThere) {
    makeSevenGrids();
    mainWindow->elimination.tick(0, true);
    mainWindow->elimination.txtEliminator[0] = "1";
    robot.in("messageBox", [](QWidget &box) {
        click(*dynamic_cast<QMessageBox &>(box).button(QMessageBox::Ok));
    });
    press("tbarGame_4");
    EXPECT_EQ(mainWindow->visiblePage(), 3);
    EXPECT_EQ(window.focusWidget(), &control<QLineEdit>(window, "txtEliminator_0"));
}

} // namespace
} // namespace boulix
