// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The window that searches for systems with fewer grids.

#include "workbench/frmOptimiser.h"

#include "gamePageTest.h"
#include "games/gameDef.h"
#include "printing/gridConfig.h"

#include <algorithm>

namespace boulix {
namespace {

class OptimiserTest : public GamePageTest {
  protected:
    OptimiserTest() {
        gGridConfig->load();
        gGridConfig->price(0.5F);
        page.design.clickTab(gameDesign::createTab);
    }
    static gameDef calculated(int nFixed, int nWin, int nSelect) {
        gameDef def;
        EXPECT_TRUE(def.compute(static_cast<std::int16_t>(nFixed), static_cast<std::int16_t>(nWin),
                                static_cast<std::int16_t>(nSelect)));
        return def;
    }
    /// A clock that goes on by `step` seconds whenever it is read.
    static std::function<double()> tickingClock(double step) {
        auto now = std::make_shared<double>(100);
        return [now, step] { return *now += step; };
    }
    /// Opens the window from the page.
    void optimise(int nFixed, int nWin, int nSelect,
                  const std::function<void(frmOptimiser &)> &inWindow) {
        maker.nFixed.text = std::to_string(nFixed);
        maker.nWin.text = std::to_string(nWin);
        maker.nChoosen.text = std::to_string(nSelect);
        onOptimiser = inWindow;
        page.design.clickCreateButton(systemMaker::optimiseSystem);
    }
    Texts shownRow(std::int64_t row) { return rows(page.design.lvwGameDef).at(std::size_t(row)); }

    systemMaker &maker = page.design.systems;
};

TEST_F(OptimiserTest, ItOpensWithTheCalculatedSystemBesideRecordAndBound) {
    const gameDef told = calculated(0, 4, 12);
    const frmOptimiser window(told);
    EXPECT_EQ(window.lblTold, "56 grilles, 28 euros");
    EXPECT_EQ(window.lblGrids, "56 grilles");
    EXPECT_EQ(window.lblCost, "28 euros");
    EXPECT_EQ(window.lblSaved, "aucune grille");
    EXPECT_EQ(window.lblRecord, "41 grilles");
    EXPECT_EQ(window.lblBound, "36 grilles (Schönheim)");
    EXPECT_EQ(window.lblTime, "0 s");
    EXPECT_EQ(window.lblState, "Prêt.");
    EXPECT_TRUE(window.curve().empty());
    EXPECT_TRUE(window.canStart());
    EXPECT_TRUE(window.canUse());
    EXPECT_FALSE(window.running());
}

TEST_F(OptimiserTest, EachGuaranteeFromTheWinningNumbersToSixIsOffered) {
    const gameDef told = calculated(0, 3, 9);
    const frmOptimiser window(told);
    EXPECT_EQ(window.cmbGuarantee(), (Texts{"3 gagnants si 3 sortis", "3 gagnants si 4 sortis",
                                            "3 gagnants si 5 sortis", "3 gagnants si 6 sortis"}));
    EXPECT_EQ(window.guarantee(), 0);
    const gameDef one = calculated(0, 1, 9);
    EXPECT_EQ(frmOptimiser(one).cmbGuarantee().front(), "1 gagnant si 1 sorti");
}

TEST_F(OptimiserTest, ASearchEndsAtTheBoundAndShowsWhatIsSaved) {
    const gameDef told = calculated(0, 5, 12);
    frmOptimiser window(told);
    ASSERT_EQ(told.nComb(), 189);
    window.clickStart();
    EXPECT_EQ(window.lblGrids, "132 grilles");
    EXPECT_EQ(window.lblCost, "66 euros");
    EXPECT_EQ(window.lblSaved, "57 grilles, " + systemCost(57) + " (30 %)");
    EXPECT_EQ(window.lblState, "La borne est atteinte : aucun système n'a moins de grilles.");
    EXPECT_FALSE(window.canStart());
    EXPECT_TRUE(window.canUse());
    ASSERT_GE(window.curve().size(), 2U);
    EXPECT_EQ(window.curve().front().grids, told.nComb());
    EXPECT_EQ(window.curve().back().grids, 132);
}

TEST_F(OptimiserTest, ASearchEndsAfterAMinuteAndGoesOnFromTheBest) {
    const gameDef told = calculated(0, 4, 9);
    frmOptimiser window(told);
    window.clock = tickingClock(20);
    window.clickStart();
    EXPECT_EQ(window.lblState, "Arrêté. \"Continuer\" reprend au meilleur système.");
    EXPECT_TRUE(window.canStart());
    const std::size_t first = window.rows().size();
    const double end = window.curve().back().seconds;
    EXPECT_GE(end, 60);
    EXPECT_LT(end, 130);
    window.clickStart();
    EXPECT_LE(window.rows().size(), first);
    EXPECT_GE(window.curve().back().seconds, end + 60);
    EXPECT_TRUE(std::is_sorted(window.curve().begin(), window.curve().end(),
                               [](const auto &a, const auto &b) { return a.seconds < b.seconds; }));
}

TEST_F(OptimiserTest, StopKeepsTheBest) {
    const gameDef told = calculated(0, 4, 13);
    frmOptimiser window(told);
    int looks = 0;
    window.changed = [&] {
        if (!window.running())
            return;
        EXPECT_FALSE(window.canStart());
        EXPECT_FALSE(window.canUse());
        window.clickStart(); // nothing: one search at a time
        window.clickUse();
        window.chooseGuarantee(1);
        if (++looks == 4)
            window.clickStop();
    };
    window.clickStart();
    EXPECT_EQ(looks, 4);
    EXPECT_FALSE(window.hidden());
    EXPECT_EQ(window.guarantee(), 0);
    EXPECT_LT(window.rows().size(), std::size_t(told.nComb()));
    EXPECT_TRUE(keepsGuarantee(window.rows(), {0, 4, 4, 13}));
    EXPECT_EQ(window.lblGrids, std::to_string(window.rows().size()) + " grilles");
}

TEST_F(OptimiserTest, AResultThatFailsTheCheckIsNeverShown) {
    const gameDef told = calculated(0, 4, 12);
    frmOptimiser window(told);
    const std::size_t before = window.rows().size();
    int checks = 0;
    window.check = [&](const std::vector<gameComb> &, const Guarantee &) {
        ++checks;
        return false;
    };
    window.clickStart();
    EXPECT_EQ(checks, 1);
    EXPECT_EQ(window.rows().size(), before);
    EXPECT_EQ(window.lblGrids, "56 grilles");
    EXPECT_EQ(window.lblState, "Un résultat n'a pas passé le contrôle : il est écarté.");
    EXPECT_FALSE(window.canStart());
}

TEST_F(OptimiserTest, EveryResultIsCheckedForTheGuaranteeInForce) {
    const gameDef told = calculated(0, 3, 10);
    frmOptimiser window(told);
    window.chooseGuarantee(2);
    std::vector<Guarantee> checked;
    window.check = [&](const std::vector<gameComb> &rows, const Guarantee &guarantee) {
        checked.push_back(guarantee);
        return keepsGuarantee(rows, guarantee);
    };
    window.changed = [&] {
        if (window.running() && !checked.empty())
            window.clickStop();
    };
    window.clickStart();
    ASSERT_FALSE(checked.empty());
    EXPECT_EQ(checked.front(), (Guarantee{0, 3, 5, 10}));
}

TEST_F(OptimiserTest, AnotherGuaranteeBeginsWithTheSmallestSystemKnownToServe) {
    const gameDef told = calculated(0, 3, 17);
    frmOptimiser window(told);
    EXPECT_EQ(window.lblRecord, "44 grilles");
    window.chooseGuarantee(3);
    EXPECT_EQ(window.lblGrids, "6 grilles"); // the program carries it
    EXPECT_EQ(window.lblRecord, "inconnu");
    EXPECT_EQ(window.lblTold,
              std::to_string(told.nComb()) + " grilles, " + systemCost(told.nComb()));
    window.chooseGuarantee(0);
    EXPECT_EQ(window.lblGrids, std::to_string(window.rows().size()) + " grilles");
    EXPECT_TRUE(keepsGuarantee(window.rows(), {0, 3, 3, 17}));
}

TEST_F(OptimiserTest, WhatServesFewerDrawnNumbersIsNotForgotten) {
    const gameDef told = calculated(0, 4, 10);
    frmOptimiser window(told);
    window.clock = tickingClock(20);
    window.clickStart();
    const std::size_t found = window.rows().size();
    ASSERT_LT(found, std::size_t(told.nComb()));
    window.chooseGuarantee(1);
    EXPECT_LE(window.rows().size(), found);
    window.chooseGuarantee(0);
    EXPECT_EQ(window.rows().size(), found);
}

TEST_F(OptimiserTest, UseFillsTheListAsACalculationDoes) {
    std::size_t found = 0;
    optimise(0, 5, 8, [&](frmOptimiser &window) {
        window.clickStart();
        found = window.rows().size();
        window.clickUse();
        EXPECT_TRUE(window.hidden());
    });
    EXPECT_EQ(found, 12U);
    EXPECT_EQ(page.design.lvwGameDef.rowCount(), 12);
    EXPECT_EQ(shownRow(0)[0], "1)");
    EXPECT_EQ(shownRow(11)[0], "12)");
    EXPECT_EQ(maker.lblnGameDefComb, "12 combinaisons");
    EXPECT_EQ(maker.lblCost, "6 euros");
    std::vector<std::vector<int>> shown;
    for (const Texts &texts : rows(page.design.lvwGameDef)) {
        shown.emplace_back();
        for (std::size_t i = 1; i < texts.size(); ++i)
            shown.back().push_back(std::stoi(texts[i]));
        EXPECT_TRUE(std::is_sorted(shown.back().begin(), shown.back().end()));
    }
    EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end()));
}

TEST_F(OptimiserTest, TheUsedSystemIsAddedWithItsGuarantee) {
    optimise(0, 3, 17, [](frmOptimiser &window) {
        window.chooseGuarantee(3);
        window.clickUse();
    });
    EXPECT_EQ(maker.lblnGameDefComb, "6 combinaisons");
    desktop.answerText("Six sur dix-sept");
    page.design.clickCreateButton(systemMaker::addSystem);
    const gameDef &added = modGame::reducedGames.back();
    EXPECT_EQ(added.label(), "Six sur dix-sept");
    EXPECT_EQ(added.nSelect(), 17);
    EXPECT_EQ(added.nWin(), 3);
    EXPECT_EQ(added.nCond(), 6);
    EXPECT_EQ(added.nFixed(), 0);
    EXPECT_EQ(added.nComb(), 6);
}

TEST_F(OptimiserTest, AFixedSystemGoesToTheFixedOnes) {
    optimise(1, 3, 9, [](frmOptimiser &window) { window.clickUse(); });
    desktop.answerText("Un fixe");
    page.design.clickCreateButton(systemMaker::addSystem);
    EXPECT_EQ(modGame::fixedGames.back().label(), "Un fixe");
    EXPECT_EQ(modGame::fixedGames.back().nFixed(), 1);
}

TEST_F(OptimiserTest, ClosingTheWindowLeavesThePageAsItWas) {
    optimise(0, 3, 9, [](frmOptimiser &window) { window.clickUse(); });
    const auto before = rows(page.design.lvwGameDef);
    optimise(0, 4, 12, [](frmOptimiser &window) {
        window.changed = [&] {
            if (window.running() && !window.hidden())
                window.clickQuit();
        };
        window.clickStart();
        EXPECT_TRUE(window.hidden());
        EXPECT_FALSE(window.running());
    });
    EXPECT_EQ(rows(page.design.lvwGameDef), before);
    desktop.answerText("Le premier");
    page.design.clickCreateButton(systemMaker::addSystem);
    EXPECT_EQ(modGame::reducedGames.back().nSelect(), 9);
}

TEST_F(OptimiserTest, ACancelledCalculationOpensNoWindow) {
    bool opened = false;
    desktop.cancelProgressAt(1);
    optimise(0, 4, 12, [&](frmOptimiser &) { opened = true; });
    EXPECT_FALSE(opened);
}

TEST_F(OptimiserTest, TheSeedComesFromTheClock) {
    const gameDef told = calculated(0, 4, 12);
    const int before = platform.seedings;
    const frmOptimiser window(told);
    EXPECT_EQ(platform.seedings, before + 1);
}

} // namespace
} // namespace boulix
