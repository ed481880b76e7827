// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/gameDef.h"

#include "core/modMaths.h"
#include "games/literalCompute.h"
#include "games/modGame.h"
#include "support/boulixTest.h"

#include <set>

namespace boulix {
namespace {

using Row = gameComb::Numbers;
using Rows = std::vector<Row>;

Rows rowsOf(const gameDef &def) {
    Rows rows;
    for (std::int32_t i = 1; i <= def.nComb(); ++i)
        rows.push_back(def.sharedRow(i)->numbers());
    return rows;
}

Rows literalRows(int nFixed, int nWin, int nSelect) {
    Rows rows;
    for (const gameComb &row :
         literal::compute(static_cast<std::int16_t>(nFixed), static_cast<std::int16_t>(nWin),
                          static_cast<std::int16_t>(nSelect)))
        rows.push_back(row.numbers());
    return rows;
}

class ComputeTest : public BoulixTest {
  protected:
    ComputeTest() { modGame::init(); }

    bool compute(int nFixed, int nWin, int nSelect) {
        def = gameDef();
        return def.compute(static_cast<std::int16_t>(nFixed), static_cast<std::int16_t>(nWin),
                           static_cast<std::int16_t>(nSelect));
    }

    gameDef def;
};

struct Parameters {
    int nFixed;
    int nSelect;
};

class ComputeEverythingTest : public ComputeTest,
                              public ::testing::WithParamInterface<Parameters> {};

TEST_P(ComputeEverythingTest, TheRowsAreThoseOfTheLiteralSearch) {
    const auto [nFixed, nSelect] = GetParam();
    for (int nWin = nFixed + 1; nWin <= 6; ++nWin) {
        EXPECT_TRUE(compute(nFixed, nWin, nSelect));
        EXPECT_EQ(rowsOf(def), literalRows(nFixed, nWin, nSelect)) << nWin;
    }
}

std::vector<Parameters> admittedParameters() {
    std::vector<Parameters> all;
    for (int nFixed = 0; nFixed <= 5; ++nFixed)
        for (int nSelect = 7; nSelect <= 12; ++nSelect)
            all.push_back({nFixed, nSelect});
    return all;
}

INSTANTIATE_TEST_SUITE_P(UpTo12Numbers, ComputeEverythingTest,
                         ::testing::ValuesIn(admittedParameters()), [](const auto &tested) {
                             return std::to_string(tested.param.nFixed) + "Fixed" +
                                    std::to_string(tested.param.nSelect) + "Selected";
                         });

/// Every choice of `nWin` ranks that holds 1 to `nFixed` lies in a row.
bool coversAll(const Rows &rows, int nFixed, int nWin, int nSelect) {
    std::set<Row> covered; // the choices, filled with zeros
    for (const Row &row : rows)
        for (unsigned choice = 0; choice < 64; ++choice) {
            Row part{};
            int size = 0;
            for (std::size_t i = 0; i < 6; ++i)
                if ((choice >> i & 1U) != 0)
                    part[static_cast<std::size_t>(size++)] = row[i];
            bool holdsFixed = size == nWin;
            for (int i = 0; holdsFixed && i < nFixed; ++i)
                holdsFixed = part[static_cast<std::size_t>(i)] == i + 1;
            if (holdsFixed)
                covered.insert(part);
        }
    const auto all = modMaths::Cnk(static_cast<std::int16_t>(nSelect - nFixed),
                                   static_cast<std::int16_t>(nWin - nFixed));
    return static_cast<std::int32_t>(covered.size()) == all;
}

TEST_F(ComputeTest, EveryComputedSystemCoversItsPuplets) {
    for (const auto &[nFixed, nWin, nSelect] : {std::array{0, 3, 20},
                                                {0, 4, 15},
                                                {0, 2, 30},
                                                {1, 3, 22},
                                                {2, 4, 20},
                                                {3, 5, 14},
                                                {0, 1, 49},
                                                {4, 5, 49},
                                                {5, 6, 49},
                                                {1, 2, 49}}) {
        EXPECT_TRUE(compute(nFixed, nWin, nSelect));
        EXPECT_TRUE(coversAll(rowsOf(def), nFixed, nWin, nSelect))
            << nFixed << nWin << ' ' << nSelect;
    }
}

TEST_F(ComputeTest, RowsAscendAndBeginWithTheFixedRanks) {
    compute(2, 4, 16);
    for (const Row &row : rowsOf(def)) {
        EXPECT_EQ(row[0], 1);
        EXPECT_EQ(row[1], 2);
        EXPECT_TRUE(std::adjacent_find(row.begin(), row.end(), std::greater_equal<>()) ==
                    row.end());
        EXPECT_LE(row[5], 16);
    }
}

TEST_F(ComputeTest, SixOfSixIsOneRow) {
    EXPECT_TRUE(compute(0, 6, 6));
    EXPECT_EQ(rowsOf(def), (Rows{{1, 2, 3, 4, 5, 6}}));
}

TEST_F(ComputeTest, SixWinningNumbersNeedEveryGrid) {
    EXPECT_TRUE(compute(0, 6, 8));
    const Rows rows = rowsOf(def);
    EXPECT_EQ(rows.size(), 28U);
    EXPECT_EQ(std::set<Row>(rows.begin(), rows.end()).size(), 28U);
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
}

TEST_F(ComputeTest, TheLastOfEquallyGoodGridsWins) {
    EXPECT_TRUE(compute(1, 2, 7));
    // Every grid is 1 and five of 2 to 7; the last one that holds 1 2 is without 3.
    EXPECT_EQ(rowsOf(def), (Rows{{1, 2, 4, 5, 6, 7}, {1, 3, 4, 5, 6, 7}}));
}

TEST_F(ComputeTest, TwoRunsGiveTheSameRows) {
    compute(0, 4, 14);
    const Rows first = rowsOf(def);
    compute(0, 4, 14);
    EXPECT_EQ(rowsOf(def), first);
}

TEST_F(ComputeTest, TheFieldsAreSetAndTheSumsStay0) {
    compute(1, 3, 9);
    EXPECT_EQ(def.nFixed(), 1);
    EXPECT_EQ(def.nWin(), 3);
    EXPECT_EQ(def.nCond(), 3);
    EXPECT_EQ(def.nSelect(), 9);
    EXPECT_EQ(def.sharedRow(1)->sum(), 0);
}

TEST_F(ComputeTest, TheThreeStagesShowTheirTextsAndBars) {
    compute(0, 3, 9); // 84 grids, 84 p-uplets
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    const auto &steps = desktop.progressRuns[0].steps;
    EXPECT_EQ(steps.front().caption, "Calcul d'un jeu itteratif");
    std::vector<std::string> texts;
    for (const frmProgress &step : steps) {
        if (texts.empty() || texts.back() != step.lblInfo)
            texts.push_back(step.lblInfo);
        const bool choosing = step.lblInfo == "Calcul du jeu réduit...";
        EXPECT_EQ(step.ProgressBar2.visible, choosing);
        EXPECT_EQ(step.ProgressBar.min, 1);
        EXPECT_EQ(step.ProgressBar.max, choosing ? 84 : 85);
        EXPECT_GE(step.ProgressBar.value, step.ProgressBar.min);
        EXPECT_LE(step.ProgressBar.value, step.ProgressBar.max);
        if (choosing) {
            EXPECT_EQ(step.ProgressBar2.min, 1);
            EXPECT_EQ(step.ProgressBar2.max, 84);
        }
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"Recherche des p-uplets", "Initialisations...",
                                               "Calcul du jeu réduit..."}));
    EXPECT_EQ(desktop.progressRuns[0].last.ProgressBar2.value, 80); // the last multiple of 8
}

TEST_F(ComputeTest, TheChoiceMovesItsBarEveryEightPuplets) {
    compute(0, 3, 8); // 56 p-uplets
    const auto &run = desktop.progressRuns.at(0);
    std::vector<std::int64_t> bar;
    for (const frmProgress &step : run.steps)
        if (step.lblInfo == "Calcul du jeu réduit..." &&
            (bar.empty() || step.ProgressBar2.value != bar.back()))
            bar.push_back(step.ProgressBar2.value);
    EXPECT_EQ(bar, (std::vector<std::int64_t>{1, 8, 16, 24, 32, 40, 48}));
    EXPECT_EQ(run.last.ProgressBar2.value, 56);
}

TEST_F(ComputeTest, CancelInTheFirstTwoStagesLeavesNoRows) {
    for (const std::int64_t turn : {1, 2, 3, 4}) {
        desktop.cancelProgressAt(turn);
        EXPECT_FALSE(compute(0, 3, 10)) << turn;
        EXPECT_EQ(def.nComb(), 0);
    }
}

TEST_F(ComputeTest, CancelWhileChoosingKeepsTheRowsChosenSoFar) {
    compute(0, 3, 12);
    const Rows whole = rowsOf(def);
    const std::int64_t turns = desktop.progressRuns.back().turns;
    for (std::int64_t turn = 5; turn < turns; turn += 7) {
        desktop.cancelProgressAt(turn);
        const bool completed = compute(0, 3, 12);
        const Rows rows = rowsOf(def);
        EXPECT_FALSE(completed) << turn;
        ASSERT_LE(rows.size(), whole.size());
        EXPECT_TRUE(std::equal(rows.begin(), rows.end(), whole.begin()));
        EXPECT_EQ(desktop.progressRuns.back().turns, turn) << "obeyed at once";
    }
}

TEST_F(ComputeTest, CancelWhileTheFirstGridIsMarkedStopsBeforeItsRowIsAdded) {
    desktop.onEvents = [this] {
        frmProgress *window = desktop.progress();
        if (window && window->lblInfo == "Calcul du jeu réduit..." &&
            window->ProgressBar.value == 3)
            window->clickCancel();
    };
    EXPECT_FALSE(compute(0, 3, 10));
    EXPECT_EQ(def.nComb(), 0);
}

TEST_F(ComputeTest, ParametersOutsideTheTablesAreARunTimeFailure) {
    // nFixed, nWin, nSelect
    for (const std::array<int, 3> &values : {std::array{6, 7, 12},
                                             {-1, 3, 12},
                                             {0, 0, 12},
                                             {2, 1, 12},
                                             {0, 3, 50},
                                             {0, 7, 12},
                                             {0, 3, -1}}) {
        EXPECT_EQ(failureNumber([&] { compute(values[0], values[1], values[2]); }), 9)
            << ::testing::PrintToString(values);
        EXPECT_TRUE(desktop.mainWindowEnabled());
    }
}

TEST_F(ComputeTest, ASelectionSmallerThanAGridHasNoGridsAndGivesNothing) {
    EXPECT_FALSE(compute(0, 3, 5));
    EXPECT_EQ(def.nComb(), 0);
}

using ComputeDeathTest = ComputeTest;

TEST_F(ComputeDeathTest, MoreWinningNumbersThanAGridHoldsIsFatal) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    desktop.onMessage = [](const ShownBox &box) { std::cerr << box.title << '|' << box.text; };
    EXPECT_EXIT(compute(1, 7, 20), ::testing::ExitedWithCode(EXIT_FAILURE),
                "boulix: Erreur N° 3202.Erreur fatale!!!\r\n"
                "Veuillez contacter le support technique\\.");
}

} // namespace
} // namespace boulix
