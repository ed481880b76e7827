// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/frmRandomComb.h"
#include "games/modGame.h"
#include "ui/games/displayGameDialog.h"
#include "ui/games/gameListDialog.h"
#include "ui/games/randomCombDialog.h"
#include "ui/support/gameScreenTest.h"
#include "ui/support/tabOrder.h"
#include "workbench/frmDisplayGame.h"
#include "workbench/frmGameList.h"

#include <QCheckBox>

namespace boulix {
namespace {

using testing_support::tabOrder;

using Names = std::vector<std::string>;

Names operator+(Names one, const Names &other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

Names numbered(const std::string &name, int first, int last) {
    Names names;
    for (int i = first; i <= last; ++i)
        names.push_back(name + std::to_string(i));
    return names;
}

class GameTabOrderTest : public GameScreenTest {
  protected:
    const Names tabs{"qt_tabwidget_tabbar"};
    const Names game =
        tabs + numbered("tbarGame_", 1, 6) + Names{"lvwGame", "chkUpdateList"} + tabs;
};

TEST_F(GameTabOrderTest, EachMethodIsReachedBehindTheGameFromItsTabDownToItsResult) {
    makeSevenGrids();
    clickRow(list("lvwGame"), 1); // every button can act
    const Names design = game + Names{"tabGameDesign"};
    const Names compute = design + numbered("tbarGameDef_", 1, 4);
    const Names link{"emptyPlace"}; // to the grids made elsewhere
    const Names result{"grdGameDef", "lvwGameDef"};
    const std::pair<int, Names> methods[] = {
        {gameDesign::reducedTab, compute + Names{"cmbGameType"} + result + link},
        {gameDesign::fixedTab, compute + Names{"cmbGameType"} + result + link},
        {gameDesign::manualTab, compute + result},
        {gameDesign::randomTab, compute + Names{"txtNrandomGrid"} + result + link},
        {gameDesign::selectorsTab, design + numbered("chkSelect_", 0, 2)},
        {gameDesign::createTab,
         design + numbered("tbarCreateGame_", 1, 4) +
             Names{"txtNFixedNbr", "txtWinNbr", "txtChoosenNbr", "lvwGameDef"}},
    };
    for (const auto &[tab, controls] : methods) {
        goTo(tab);
        EXPECT_EQ(tabOrder(window), controls) << tab;
    }
}

TEST_F(GameTabOrderTest, EachRuleIsReachedInItsOrderWithItsBoxBehindIt) {
    mainWindow->clickTab(4);
    const Names toolbar = tabs + numbered("tBarEliminator_", 1, 2);
    EXPECT_EQ(tabOrder(window), toolbar + numbered("chkEliminator_", 0, 7));
    Names controls = toolbar;
    for (int rule = 0; rule < 8; ++rule) {
        const Names box = numbered("chkEliminator_", rule, rule);
        click(control<QCheckBox>(window, box[0].c_str()));
        controls = controls + box;
        controls.push_back(rule < 7 ? "txtEliminator_" + std::to_string(rule) : "btnSelectList");
    }
    EXPECT_EQ(tabOrder(window), controls);
}

TEST_F(GameTabOrderTest, TheWindowOfTheSystemsGoesFromItsButtonsToItsList) {
    modGame::reducedGames.push_back(modGame::reducedGames[1]);
    frmGameList systems;
    GameListDialog dialog(systems);
    dialog.show();
    EXPECT_EQ(tabOrder(dialog), (Names{"tbar_6", "lvwGame"})) << "the others need a system";
    systems.clickRow(1);
    EXPECT_EQ(tabOrder(dialog), numbered("tbar_", 1, 6) + Names{"lvwGame"});
    modGame::init();
}

TEST_F(GameTabOrderTest, TheWindowOfRowsGoesFromThemToItsButton) {
    frmDisplayGame rows(modGame::reducedGames[1]);
    DisplayGameDialog dialog(rows);
    dialog.show();
    EXPECT_EQ(tabOrder(dialog), (Names{"lvwGame", "cmdExit"}));
}

TEST_F(GameTabOrderTest, TheWindowOfRandomDrawsGoesFromTheCountDownToItsButtons) {
    frmRandomComb draws;
    RandomCombDialog dialog(draws);
    dialog.show();
    EXPECT_EQ(tabOrder(dialog),
              (Names{"txtnComb", "cmdCompute", "lvWComb", "CMD_OK", "CMD_Cancel"}));
}

} // namespace
} // namespace boulix
