// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/globals.h"
#include "eliminators/eliminators.h"
#include "gameTest.h"

#include <algorithm>
#include <random>

namespace boulix {
namespace {

class EliminationTest : public GameTest {
  protected:
    EliminationTest() { gEliminators->init(); }

    void turnOn(int rule, int value) {
        gEliminators->Item(rule).status(-1);
        gEliminators->Item(rule).Value(static_cast<std::int16_t>(value));
    }
    void turnAllOff() {
        for (int rule = 1; rule <= 8; ++rule)
            gEliminators->Item(rule).status(0);
    }
    void list(const std::vector<int> &numbers) {
        for (int n = 1; n <= 49; ++n)
            gEliminators->Item(8).eliminNbr(n, 0);
        for (const int n : numbers)
            gEliminators->Item(8).eliminNbr(n, -1);
    }
    /// Whether the one rule, alone, throws out the one grid.
    bool condemns(int rule, int value, const Numbers &grid) {
        turnAllOff();
        turnOn(rule, value);
        grids.clear();
        fill({grid});
        grids.EliminComb();
        return grids.Count() == 0;
    }
};

TEST_F(EliminationTest, AnEmptyGameShowsNothingAtAll) {
    turnOn(1, 2);
    grids.EliminComb();
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_TRUE(desktop.progressRuns.empty());
}

TEST_F(EliminationTest, ARuleOutOfItsRangeIsReportedForAnEmptyGameToo) {
    turnOn(5, 7);
    grids.EliminComb();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2905");
}

TEST_F(EliminationTest, ARuleOutOfItsRangeEndsTheOperationAfterItsMessage) {
    turnOn(5, 7);
    fill({{1, 2, 3, 4, 5, 6}});
    grids.EliminComb();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2905");
    EXPECT_EQ(grids.Count(), 1);
    EXPECT_TRUE(desktop.progressRuns.empty());
}

TEST_F(EliminationTest, WithoutAnActiveRuleAllGridsAreLeft) {
    fill({{1, 2, 3, 4, 5, 6}, {44, 45, 46, 47, 48, 49}});
    grids.EliminComb();
    EXPECT_EQ(grids.Count(), 2);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{{"2 combinaisons restantes.", Icon::none, "boulix"}}));
}

TEST_F(EliminationTest, RulesThatWereLostEliminateNothing) {
    *gEliminators = eliminators();
    fill({{1, 2, 3, 4, 5, 6}});
    grids.EliminComb();
    EXPECT_EQ(grids.Count(), 1);
    EXPECT_EQ(desktop.messages.size(), 1U);
}

TEST_F(EliminationTest, ThreeNumbersInARowAreARunOfTwo) {
    EXPECT_TRUE(condemns(7, 2, {1, 2, 3, 10, 20, 30}));
    EXPECT_FALSE(condemns(7, 3, {1, 2, 3, 10, 20, 30}));
    EXPECT_FALSE(condemns(7, 2, {1, 2, 10, 11, 20, 21}));
    EXPECT_TRUE(condemns(7, 5, {8, 9, 10, 11, 12, 13}));
    EXPECT_FALSE(condemns(7, 6, {8, 9, 10, 11, 12, 13}));
}

TEST_F(EliminationTest, TheRunCountsStepsInTheOrderOfTheGrid) {
    EXPECT_FALSE(condemns(7, 2, {3, 2, 1, 10, 20, 30}));
    EXPECT_TRUE(condemns(7, 2, {40, 1, 2, 3, 20, 30}));
}

TEST_F(EliminationTest, EightAndFifteenShareASeptaine) {
    EXPECT_TRUE(condemns(2, 2, {8, 15, 16, 23, 24, 31}));
    EXPECT_FALSE(condemns(2, 3, {8, 15, 16, 23, 24, 31}));
    EXPECT_FALSE(condemns(2, 2, {7, 8, 16, 24, 32, 40}));
    EXPECT_TRUE(condemns(2, 2, {7, 8, 16, 24, 48, 49}));
}

TEST_F(EliminationTest, DizainesBeginAtTheRoundNumbers) {
    EXPECT_TRUE(condemns(1, 2, {1, 10, 19, 20, 30, 40}));
    EXPECT_FALSE(condemns(1, 3, {9, 10, 19, 20, 29, 30}));
    EXPECT_TRUE(condemns(1, 3, {9, 10, 20, 40, 45, 49}));
    EXPECT_FALSE(condemns(1, 4, {9, 10, 20, 40, 45, 49}));
}

TEST_F(EliminationTest, TheSumLimitsIncludeTheValue) {
    EXPECT_TRUE(condemns(3, 21, {1, 2, 3, 4, 5, 6}));
    EXPECT_FALSE(condemns(3, 21, {1, 2, 3, 4, 5, 7}));
    EXPECT_TRUE(condemns(4, 279, {44, 45, 46, 47, 48, 49}));
    EXPECT_FALSE(condemns(4, 279, {43, 45, 46, 47, 48, 49}));
}

TEST_F(EliminationTest, ParityCountsAtLeastTheValue) {
    EXPECT_TRUE(condemns(5, 3, {2, 4, 6, 7, 9, 11}));
    EXPECT_FALSE(condemns(5, 4, {2, 4, 6, 7, 9, 11}));
    EXPECT_TRUE(condemns(6, 3, {2, 4, 6, 7, 9, 11}));
    EXPECT_FALSE(condemns(6, 4, {2, 4, 6, 7, 9, 11}));
}

TEST_F(EliminationTest, OneListedNumberIsEnough) {
    list({13});
    EXPECT_TRUE(condemns(8, 0, {1, 2, 13, 40, 41, 42}));
    EXPECT_FALSE(condemns(8, 0, {1, 2, 14, 40, 41, 42}));
    list({});
    EXPECT_FALSE(condemns(8, 0, {1, 2, 13, 40, 41, 42}));
}

TEST_F(EliminationTest, AnyFlagButZeroCountsAsListed) {
    gEliminators->Item(8).eliminNbr(42, 11);
    EXPECT_TRUE(condemns(8, 0, {1, 2, 13, 40, 41, 42}));
}

TEST_F(EliminationTest, LoadedGridsHaveTheSum0AndFallToRule3NeverToRule4) {
    turnOn(3, 21);
    grids.Add(GridRef(gameComb({44, 45, 46, 47, 48, 49})));
    grids.EliminComb();
    EXPECT_EQ(grids.Count(), 0);
    turnAllOff();
    turnOn(4, 21);
    grids.Add(GridRef(gameComb({44, 45, 46, 47, 48, 49})));
    grids.EliminComb();
    EXPECT_EQ(grids.Count(), 1);
}

TEST_F(EliminationTest, AGridWithANumberBeyondTheGroupsIsARunTimeFailureAndTheGameStays) {
    fill({{1, 2, 3, 4, 5, 6}, {1, 2, 3, 4, 5, 110}});
    turnOn(1, 6);
    EXPECT_EQ(failureNumber([&] { grids.EliminComb(); }), 9);
    EXPECT_EQ(grids.Count(), 2);
    EXPECT_TRUE(desktop.mainWindowEnabled());
}

TEST_F(EliminationTest, AGridThatIsFlaggedIsNotLookedAtByLaterRules) {
    fill({{1, 2, 3, 4, 5, 110}});
    grids.Item(1).sum(0);
    turnOn(3, 21);
    turnOn(8, 0); // would ask for the flag of number 110 and show the fatal box
    grids.EliminComb();
    EXPECT_EQ(grids.Count(), 0);
    EXPECT_EQ(desktop.messages.size(), 1U);
}

TEST_F(EliminationTest, TheListRuleAsksForTheFlagOfEveryOddNumber) {
    fill({{1, 2, 3, 4, 5, 110}});
    turnOn(8, 0);
    grids.EliminComb();
    ASSERT_EQ(desktop.messages.size(), 2U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2802");
    EXPECT_EQ(desktop.messages[1].text, "1 combinaisons restantes.");
    fill({{0, 2, 3, 4, 5, 6}});
    EXPECT_EQ(failureNumber([&] { grids.EliminComb(); }), 9) << "0 passes the guard of the flags";
}

// The whole operation once more, in the plainest way.

using Plain = std::vector<gameComb>;

bool plainGroups(const gameComb &grid, int divisor, int limit) {
    std::vector<int> counters(static_cast<std::size_t>(divisor + 1));
    bool reached = false;
    for (int i = 1; i <= 6; ++i)
        ++counters[static_cast<std::size_t>(grid.num(i) / divisor)];
    for (const int counter : counters)
        reached = reached || counter >= limit;
    return reached;
}

bool plainCondemns(int rule, const eliminator &settings, const gameComb &grid) {
    const int value = settings.Value();
    int even = 0;
    int run = 0;
    int longest = 0;
    bool listed = false;
    for (int i = 1; i <= 6; ++i) {
        even += grid.num(i) % 2 == 0;
        listed = listed || (rule == 8 && settings.eliminNbr(grid.num(i)) != 0);
        run = i < 6 && grid.num(i + 1) - grid.num(i) == 1 ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    const bool verdicts[] = {plainGroups(grid, 10, value),
                             plainGroups(grid, 8, value),
                             grid.sum() <= value,
                             grid.sum() >= value,
                             even >= value,
                             6 - even >= value,
                             longest >= std::max(value, 1),
                             listed};
    return verdicts[rule - 1];
}

TEST_F(EliminationTest, TheRightGridsGoAndTheOthersKeepTheirOrder) {
    std::mt19937 random(5);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int turn = 0; turn < 400; ++turn) {
        grids.clear();
        Plain plain;
        const int count = 1 + below(200);
        for (int i = 0; i < count; ++i) {
            Numbers six{};
            for (std::int16_t &n : six)
                n = static_cast<std::int16_t>(turn % 4 == 0 ? below(77) - 7 : 1 + below(49));
            if (turn % 3 != 0)
                std::sort(six.begin(), six.end());
            gameComb grid(six);
            grid.sum(turn % 5 == 0 ? std::int16_t{0} : grid.total());
            grids.Add(GridRef(grid));
            plain.push_back(grid);
        }
        for (int rule = 1; rule <= 8; ++rule) {
            eliminator &settings = gEliminators->Item(rule);
            const bool sums = rule == 3 || rule == 4;
            settings.status(below(3) == 0 ? -1 : 0);
            // Thresholds beyond the usual ranges, too: a file can bring them.
            settings.ValMin(-40);
            settings.ValMax(400);
            settings.Value(static_cast<std::int16_t>(sums ? below(320) - 20 : below(10) - 2));
        }
        if (turn % 4 == 0)
            gEliminators->Item(8).status(0); // numbers outside 1 to 49 have no flag
        std::vector<int> listed;
        for (int n = 1; n <= 49; ++n)
            if (below(12) == 0)
                listed.push_back(n);
        list(listed);

        for (int rule = 1; rule <= 8; ++rule)
            if (const eliminator &settings = gEliminators->Item(rule); settings.status() != 0)
                std::erase_if(plain, [&](const gameComb &grid) {
                    return plainCondemns(rule, settings, grid);
                });
        grids.EliminComb();
        Grids expected;
        for (const gameComb &grid : plain)
            expected.push_back(grid.numbers());
        ASSERT_EQ(contents(), expected) << turn;
    }
}

TEST_F(EliminationTest, KeysFollowTheirGridsThroughTheSweep) {
    fill({{1, 2, 3, 4, 5, 6}});
    grids.Add(GridRef(gameComb({1, 2, 3, 4, 5, 6})), "dehors");
    grids.Add(GridRef(gameComb({1, 12, 23, 34, 45, 46})), "dedans");
    turnOn(7, 4);
    grids.EliminComb();
    EXPECT_EQ(grids.Item("dedans").num(2), 12);
    EXPECT_EQ(failureNumber([&] { grids.Item("dehors"); }), 5);
}

TEST_F(EliminationTest, AGameSeenFromTheEventQueueAlwaysHoldsGrids) {
    for (int i = 0; i < 300; ++i)
        fill({{static_cast<std::int16_t>(1 + i % 40), 42, 43, 44, 45, 46}});
    turnOn(5, 4);
    std::int64_t looks = 0;
    desktop.onEvents = [&] {
        for (const gameComb &grid : std::as_const(grids))
            looks += grid.num(6) == 46;
    };
    grids.EliminComb();
    EXPECT_EQ(looks, 300 * desktop.eventTurns);
}

TEST_F(EliminationTest, TheProgressWindowShowsEachRuleAndNoCancelButton) {
    for (int i = 0; i < 120; ++i)
        fill({{1, 12, 23, 34, 45, 46}});
    list({7});
    for (const int rule : {1, 2, 5, 6, 7})
        turnOn(rule, 6);
    turnOn(3, 30);
    turnOn(4, 270);
    turnOn(8, 0);
    grids.EliminComb();

    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    const auto &run = desktop.progressRuns[0];
    EXPECT_EQ(run.turns, 8 * 2 + 3) << "every fifty grids, and at the end of the sweep";
    const std::vector<std::string> texts = {
        "Combinaisons contenant plus de 6 numéros de la même dizaine.",
        "Combinaisons contenant plus de 6 numéros de la même septaine.",
        "Combinaisons dont la somme des numéros est inférieure à 30",
        "Combinaisons dont la somme des numéros est supérieure à 270",
        "Combinaisons contenant au moins 6 numéros pairs",
        "Combinaisons contenant au moins 6 numéros impairs",
        "Combinaisons contenant au moins 6 numéros consécutifs",
        "Combinaisons contenant au moins l'un des numéros de la liste définie",
    };
    for (std::size_t rule = 0; rule < 8; ++rule)
        for (std::size_t half = 0; half < 2; ++half) {
            const frmProgress &step = run.steps[2 * rule + half];
            EXPECT_EQ(step.caption, "Elimination des combinaisons");
            EXPECT_EQ(step.lblInfo, texts[rule]);
            EXPECT_FALSE(step.cancelVisible);
            EXPECT_EQ(step.ProgressBar.min, 1);
            EXPECT_EQ(step.ProgressBar.max, 121);
            EXPECT_EQ(step.ProgressBar.value, half == 0 ? 50 : 100);
            EXPECT_TRUE(step.ProgressBar2.visible);
            EXPECT_EQ(step.ProgressBar2.max, 10);
            EXPECT_EQ(step.ProgressBar2.value, static_cast<std::int64_t>(rule + 1));
        }
    for (std::size_t i = 16; i < run.steps.size(); ++i)
        EXPECT_EQ(run.steps[i].ProgressBar2.value, 9);
    EXPECT_EQ(run.last.ProgressBar.value, 100);
    EXPECT_EQ(run.last.ProgressBar2.value, 10);
}

TEST_F(EliminationTest, TheSweepMovesTheBarToTheFiftiesOfTheGridsThatStay) {
    // Of each hundred grids the first twenty stay.
    for (int i = 0; i < 600; ++i)
        fill({i % 100 < 20 ? Numbers{1, 12, 23, 34, 45, 46} : Numbers{1, 12, 23, 34, 46, 48}});
    turnOn(5, 4);
    grids.EliminComb();
    EXPECT_EQ(grids.Count(), 120);
    const auto &run = desktop.progressRuns.at(0);
    std::vector<std::int64_t> sweepBar;
    for (std::size_t i = 12; i < run.steps.size(); ++i) // behind the steps of the rule
        if (sweepBar.empty() || run.steps[i].ProgressBar.value != sweepBar.back())
            sweepBar.push_back(run.steps[i].ProgressBar.value);
    EXPECT_EQ(sweepBar, (std::vector<std::int64_t>{600, 50, 100}));
}

TEST_F(EliminationTest, ARuleThatIsOffLeavesTheStagesWhereTheyAre) {
    for (int i = 0; i < 60; ++i)
        fill({{1, 12, 23, 34, 45, 46}});
    turnOn(2, 6);
    turnOn(6, 6);
    grids.EliminComb();
    const auto &steps = desktop.progressRuns.at(0).steps;
    EXPECT_EQ(steps.at(0).ProgressBar2.value, 1);
    EXPECT_EQ(steps.at(1).ProgressBar2.value, 3);
    EXPECT_EQ(steps.at(2).ProgressBar2.value, 7);
}

TEST_F(EliminationTest, TheBarOfASingleGridReachesToTwo) {
    fill({{1, 12, 23, 34, 45, 46}});
    grids.EliminComb();
    const frmProgress &window = desktop.progressRuns.at(0).last;
    EXPECT_EQ(window.ProgressBar.min, 1);
    EXPECT_EQ(window.ProgressBar.max, 2);
}

TEST_F(EliminationTest, CancelIsNeverRead) {
    fill({{1, 12, 23, 34, 45, 46}});
    desktop.cancelProgressAt(1);
    grids.EliminComb();
    EXPECT_EQ(desktop.messages.size(), 1U);
}

} // namespace
} // namespace boulix
