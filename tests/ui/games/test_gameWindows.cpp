// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/xFile.h"
#include "games/modGame.h"
#include "support/files.h"
#include "ui/support/gameScreenTest.h"
#include "workbench/frmGameList.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>

namespace boulix {
namespace {

/// The window of the user's systems, opened from the game page.
class GameListTest : public GameScreenTest {
  protected:
    GameListTest() { goTo(gameDesign::createTab); }
    ~GameListTest() override {
        forget();
        modGame::init();
    }

    void type(const char *name, const char *text) {
        auto &box = control<QLineEdit>(window, name);
        box.clear();
        QTest::keyClicks(&box, QString::fromLatin1(text));
        QTest::keyClick(&box, Qt::Key_Return);
    }
    /// Computes a system and keeps it under `name`.
    void makeSystem(const char *name) {
        type("txtWinNbr", "2");
        type("txtChoosenNbr", "8");
        press("tbarCreateGame_3");
        robot.in("inputBox", [name](QWidget &box) {
            box.findChild<QLineEdit *>()->setText(QString::fromUtf8(name));
            dynamic_cast<QDialog &>(box).accept();
        });
        press("tbarCreateGame_1");
    }
    void manage(const testing_support::Robot::Step &step) {
        robot.in("frmGameList", step);
        press("tbarCreateGame_2");
    }
    static void pressIn(const QWidget &dialog, int button) {
        control<QAction>(dialog, ("tbar_" + std::to_string(button)).c_str()).trigger();
    }
};

TEST_F(GameListTest, ASavedSystemIsListedAndDescribed) {
    makeSystem("Mon système");
    const std::string rowsOfIt = std::to_string(rows("lvwGameDef"));
    manage([&](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Gestion des jeux créés");
        auto &systems = control<ReportView>(dialog, "lvwGame");
        ASSERT_EQ(systems.model()->rowCount(), 1);
        EXPECT_EQ(systems.model()->index(0, 0).data().toString().toStdString(), "Mon système");
        clickRow(systems, 1);
        EXPECT_EQ(control<QLabel>(dialog, "lblnGrid").text().toStdString(), rowsOfIt);
        EXPECT_EQ(control<QLabel>(dialog, "lblnWin").text().toStdString(), "2");
        EXPECT_EQ(control<QLabel>(dialog, "lblnFixed").text().toStdString(), "0");
        EXPECT_EQ(control<QLabel>(dialog, "lblnSelected").text().toStdString(), "8");
        pressIn(dialog, frmGameList::quit);
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(GameListTest, ASystemIsShownRowByRow) {
    makeSystem("Mon système");
    const int rowsOfIt = rows("lvwGameDef");
    robot.in("frmGameList", [&](QWidget &dialog) {
        clickRow(control<ReportView>(dialog, "lvwGame"), 1);
        robot
            .in("frmDisplayGame",
                [rowsOfIt](QWidget &grids) {
                    const auto &shown = control<ReportView>(grids, "lvwGame");
                    EXPECT_EQ(shown.model()->rowCount(), rowsOfIt);
                    EXPECT_EQ(rowText(shown, 1).substr(0, 8), "01 01 02");
                    click(control<QPushButton>(grids, "cmdExit"));
                })
            .in("frmGameList", [](QWidget &back) { pressIn(back, frmGameList::quit); });
        pressIn(dialog, frmGameList::displayGame);
    });
    press("tbarCreateGame_2");
    robot.finish();
}

TEST_F(GameListTest, TheButtonRemovesTheFileOfTheSystem) {
    makeSystem("Mon système");
    const std::string kept = modGame::reducedGames.back().file()->name();
    ASSERT_TRUE(testing_support::fileExists(file(kept)));
    manage([](QWidget &dialog) {
        clickRow(control<ReportView>(dialog, "lvwGame"), 1);
        pressIn(dialog, frmGameList::removeGame);
        pressIn(dialog, frmGameList::quit);
    });
    EXPECT_FALSE(testing_support::fileExists(file(kept)));
}

TEST_F(GameListTest, WithoutASelectedRowTheButtonsDoNothing) {
    manage([](QWidget &dialog) {
        for (int button = frmGameList::removeGame; button <= frmGameList::displayGame; ++button)
            pressIn(dialog, button);
        EXPECT_TRUE(dialog.isVisible());
        pressIn(dialog, frmGameList::quit);
    });
}

TEST_F(GameListTest, WithoutASelectedRowTheButtonsAreOffAndSayWhy) {
    makeSystem("Mon système");
    manage([](QWidget &dialog) {
        for (int button = frmGameList::removeGame; button <= frmGameList::displayGame; ++button) {
            const auto &action =
                control<QAction>(dialog, ("tbar_" + std::to_string(button)).c_str());
            EXPECT_FALSE(action.isEnabled());
            EXPECT_EQ(action.toolTip().section(QLatin1Char('\n'), 1).toStdString(),
                      "Cliquez d'abord sur un jeu de la liste.");
        }
        clickRow(control<ReportView>(dialog, "lvwGame"), 1);
        for (int button = frmGameList::removeGame; button <= frmGameList::quit; ++button)
            EXPECT_TRUE(
                control<QAction>(dialog, ("tbar_" + std::to_string(button)).c_str()).isEnabled());
        pressIn(dialog, frmGameList::quit);
    });
}

TEST_F(GameListTest, TheButtonsAreNamedAndExplained) {
    makeSystem("Mon système");
    manage([](QWidget &dialog) {
        clickRow(control<ReportView>(dialog, "lvwGame"), 1); // all of them can act
        for (int button = 1; button <= 6; ++button) {
            const auto &action =
                control<QAction>(dialog, ("tbar_" + std::to_string(button)).c_str());
            const auto &told = frmGameList::tbar[static_cast<std::size_t>(button - 1)];
            EXPECT_EQ(action.text().remove(QLatin1Char('&')).toStdString(), told.caption);
            EXPECT_EQ(action.toolTip().toStdString(), told.toolTip);
        }
        pressIn(dialog, frmGameList::quit);
    });
}

} // namespace
} // namespace boulix
