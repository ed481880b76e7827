// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/modMaths.h"
#include "core/numbers.h"
#include "gameTest.h"
#include "games/modGame.h"

#include <algorithm>
#include <set>

namespace boulix {
namespace {

ShownBox numbered(const char *number, const std::string &text) {
    return {text, Icon::information, std::string("boulix: Erreur N° ") + number};
}

class DefinedGameTest : public GameTest {
  protected:
    DefinedGameTest() {
        def.nSelect(7);
        def.addStrComb("1/2/3/4/5/6");
        def.addStrComb("2/3/4/5/6/7");
    }

    gameDef def;
};

TEST_F(DefinedGameTest, ARankStandsForTheSelectedNumberOfThatRank) {
    EXPECT_TRUE(grids.ComputeDefinedGame(def, selection({4, 9, 15, 22, 30, 41, 49})));
    EXPECT_EQ(contents(), (Grids{{4, 9, 15, 22, 30, 41}, {9, 15, 22, 30, 41, 49}}));
    EXPECT_EQ(grids.Item(1).sum(), 121);
    EXPECT_EQ(grids.Item(2).sum(), 166);
}

TEST_F(DefinedGameTest, AnotherCountOfNumbersReports3101AndAddsNothing) {
    def.nSelect(10);
    EXPECT_FALSE(grids.ComputeDefinedGame(def, firstNumbers(9)));
    EXPECT_EQ(grids.Count(), 0);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{numbered(
                  "3101", "Vous devez avoir sélectionné exactement 10 numéros pour utiliser ce "
                          "système de jeu.\r\nLe calcul est impossible!")}));
}

TEST_F(DefinedGameTest, AnEmptyGameComesOutSortedInAnyOrderOfMarking) {
    EXPECT_TRUE(grids.ComputeDefinedGame(def, selection({49, 41, 30, 22, 15, 9, 4})));
    EXPECT_EQ(contents(), (Grids{{9, 15, 22, 30, 41, 49}, {4, 9, 15, 22, 30, 41}}));
}

TEST_F(DefinedGameTest, OnAGameThatWasNotEmptyTheOlderGridsAreSortedAgainInsteadOfTheNewOnes) {
    fill({{6, 5, 4, 3, 2, 1}, {9, 8, 7, 6, 5, 4}, {30, 20, 10, 3, 2, 1}});
    EXPECT_TRUE(grids.ComputeDefinedGame(def, selection({49, 41, 30, 22, 15, 9, 4})));
    EXPECT_EQ(contents(), (Grids{{1, 2, 3, 4, 5, 6},
                                 {4, 5, 6, 7, 8, 9},
                                 {30, 20, 10, 3, 2, 1},
                                 {49, 41, 30, 22, 15, 9},
                                 {41, 30, 22, 15, 9, 4}}));
}

TEST_F(DefinedGameTest, ARankBeyondTheSelectionIsReportedByTheSelection) {
    def.addStrComb("1/2/3/4/5/8");
    EXPECT_TRUE(grids.ComputeDefinedGame(def, firstNumbers(7)));
    EXPECT_EQ(grids.Item(3).numbers(), (Numbers{0, 1, 2, 3, 4, 5}));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4301");
}

TEST_F(DefinedGameTest, EveryCarriedSystemFillsItsRows) {
    modGame::init();
    for (std::int32_t i = 1; i <= modGame::nReducedGames(); ++i) {
        const gameDef &system = modGame::reducedGames[static_cast<std::size_t>(i)];
        grids.clear();
        EXPECT_TRUE(grids.ComputeDefinedGame(system, firstNumbers(system.nSelect())));
        ASSERT_EQ(grids.Count(), system.nComb());
        for (std::int32_t row = 1; row <= grids.Count(); ++row)
            EXPECT_EQ(grids.Item(row).numbers(), system.sharedRow(row)->numbers());
    }
}

class ManualGameTest : public GameTest {
  protected:
    /// All sixes of the selection by six plain loops over its ranks, each sorted.
    static Grids plainSixes(const std::vector<std::int16_t> &s) {
        Grids all;
        const std::size_t n = s.size();
        for (std::size_t a = 0; a < n; ++a)
            for (std::size_t b = a + 1; b < n; ++b)
                for (std::size_t c = b + 1; c < n; ++c)
                    for (std::size_t d = c + 1; d < n; ++d)
                        for (std::size_t e = d + 1; e < n; ++e)
                            for (std::size_t f = e + 1; f < n; ++f) {
                                Numbers six{s[a], s[b], s[c], s[d], s[e], s[f]};
                                std::sort(six.begin(), six.end());
                                all.push_back(six);
                            }
        return all;
    }
};

TEST_F(ManualGameTest, SevenNumbersGiveSevenGrids) {
    EXPECT_TRUE(grids.ComputeManualGame(firstNumbers(7)));
    EXPECT_EQ(grids.Count(), 7);
    EXPECT_EQ(grids.Item(1).sum(), 21);
}

TEST_F(ManualGameTest, GridsComeInTheOrderOfTheRanksEachSorted) {
    for (const std::vector<std::int16_t> &numbers :
         {std::vector<std::int16_t>{3, 8, 11, 20, 21, 33, 40, 49},
          std::vector<std::int16_t>{40, 3, 49, 11, 8, 33, 20, 21, 1}}) {
        grids.clear();
        EXPECT_TRUE(grids.ComputeManualGame(selection(numbers)));
        EXPECT_EQ(contents(), plainSixes(numbers));
        for (const gameComb &grid : grids)
            EXPECT_EQ(grid.sum(), grid.total());
    }
}

TEST_F(ManualGameTest, FewerThanSixNumbersGiveNoGridAndTrue) {
    EXPECT_TRUE(grids.ComputeManualGame(firstNumbers(5)));
    EXPECT_TRUE(grids.ComputeManualGame(selector()));
    EXPECT_EQ(grids.Count(), 0);
    EXPECT_EQ(desktop.progressRuns.front().last.ProgressBar.max, 2);
}

TEST_F(ManualGameTest, TheProgressWindowFollowsTheCountInFifties) {
    EXPECT_TRUE(grids.ComputeManualGame(firstNumbers(10))); // 210 grids
    ASSERT_EQ(desktop.progressRuns.size(), 1U);
    const auto &run = desktop.progressRuns[0];
    EXPECT_EQ(run.last.caption, "Calcul de jeu Manuel");
    EXPECT_EQ(run.last.lblInfo, "Calcul en cours en cours...");
    EXPECT_EQ(run.last.ProgressBar.min, 1);
    EXPECT_EQ(run.last.ProgressBar.max, 211);
    EXPECT_EQ(run.last.ProgressBar.value, 200);
    EXPECT_EQ(run.turns, 4);
    EXPECT_EQ(desktop.eventTurns, 5) << "and once after the window closed";
}

TEST_F(ManualGameTest, CancellingEmptiesTheWholeGameAndGivesFalse) {
    fill({{1, 2, 3, 4, 5, 6}});
    desktop.cancelProgressAt(3);
    EXPECT_FALSE(grids.ComputeManualGame(firstNumbers(12)));
    EXPECT_EQ(grids.Count(), 0);
}

TEST_F(ManualGameTest, AllFortyNineNumbersGiveEveryGridOnceInTheirOrder) {
    EXPECT_TRUE(grids.ComputeManualGame(firstNumbers(49)));
    ASSERT_EQ(grids.Count(), 13983816);
    std::int32_t outOfOrder = 0;
    Numbers before{};
    for (const gameComb &grid : grids) {
        outOfOrder += grid.numbers() <= before;
        before = grid.numbers();
    }
    EXPECT_EQ(outOfOrder, 0);
    EXPECT_LE(gridStore.chunkCount(), 13983816 * sizeof(gameComb) / largePage + 2)
        << "the chunks are full";
}

class RandomGameTest : public GameTest {};

TEST_F(RandomGameTest, NoCountReports3102) {
    EXPECT_FALSE(grids.ComputeRandomGame(-1, firstNumbers(10)));
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  numbered("3102", "Le nombre de grilles à calculer n'a pas été précisé!")}));
}

TEST_F(RandomGameTest, MoreGridsThanTheSelectionCanGiveReports3103) {
    EXPECT_FALSE(grids.ComputeRandomGame(2, firstNumbers(6)));
    EXPECT_EQ(grids.Count(), 0);
    EXPECT_EQ(desktop.messages,
              (std::vector<ShownBox>{
                  numbered("3103", "Impossible de réaliser 2 grilles aléatoires toutes distinctes "
                                   "avec une sélection de seulement 6!")}));
    EXPECT_FALSE(grids.ComputeRandomGame(1, firstNumbers(5)));
    EXPECT_EQ(desktop.messages.size(), 2U);
}

TEST_F(RandomGameTest, ACountOfZeroGivesTrueAndNoGrid) {
    EXPECT_TRUE(grids.ComputeRandomGame(0, firstNumbers(6)));
    EXPECT_EQ(grids.Count(), 0);
}

TEST_F(RandomGameTest, TheSourceIsSeededOnceACall) {
    EXPECT_TRUE(grids.ComputeRandomGame(20, firstNumbers(20)));
    EXPECT_EQ(platform.seedings, 1);
}

TEST_F(RandomGameTest, GridsAreDistinctSortedSummedAndFromTheSelection) {
    const std::vector<std::int16_t> numbers = {40, 3, 49, 11, 8, 33, 20, 21, 1};
    EXPECT_TRUE(grids.ComputeRandomGame(84, selection(numbers))); // every one there is
    const Grids all = contents();
    EXPECT_EQ(std::set<Numbers>(all.begin(), all.end()).size(), 84U);
    for (const gameComb &grid : grids) {
        EXPECT_EQ(grid.sum(), grid.total());
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_TRUE(std::count(numbers.begin(), numbers.end(), grid.numbers()[i]) == 1);
            EXPECT_TRUE(i == 0 || grid.numbers()[i - 1] < grid.numbers()[i]);
        }
    }
}

TEST_F(RandomGameTest, PositionsAreRoundedToNearestTiesToEven) {
    // Of 8 numbers: 0.5 x 7 + 1 = 4.5 -> 4; of 7: 0.5 x 6 + 1 = 4; of 6: 3.5 -> 4; of 5: 3;
    // of 4: 2.5 -> 2; of 3: 2.
    platform.scriptRandom({0.5F, 0.5F, 0.5F, 0.5F, 0.5F, 0.5F});
    EXPECT_TRUE(grids.ComputeRandomGame(1, selection({1, 2, 3, 4, 5, 6, 7, 8})));
    // 4 | 1 2 3 5 6 7 8: 5 | 1 2 3 6 7 8: 6 | 1 2 3 7 8: 3 | 1 2 7 8: 2 | 1 7 8: 7
    EXPECT_EQ(contents(), (Grids{{2, 3, 4, 5, 6, 7}}));
}

TEST_F(RandomGameTest, TheEndsOfTheRangeAreTheFirstAndTheLastNumber) {
    platform.scriptRandom({0, 0, 0, 0.9999999F, 0.9999999F, 0.9999999F});
    EXPECT_TRUE(grids.ComputeRandomGame(1, firstNumbers(49)));
    EXPECT_EQ(contents(), (Grids{{1, 2, 3, 47, 48, 49}}));
}

TEST_F(RandomGameTest, AGridThatIsThereAlreadyIsDrawnAgain) {
    const std::vector<float> first(6, 0.0F);
    const std::vector<float> last(6, 0.9999999F);
    std::vector<float> script = first;
    for (const auto &six : {first, first, last})
        script.insert(script.end(), six.begin(), six.end());
    platform.scriptRandom(script);
    EXPECT_TRUE(grids.ComputeRandomGame(2, firstNumbers(12)));
    EXPECT_EQ(contents(), (Grids{{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}}));
    EXPECT_EQ(platform.scriptedRandomLeft(), 0U);
}

TEST_F(RandomGameTest, TheCountIsATotalAndAFilledGameGetsNothing) {
    EXPECT_TRUE(grids.ComputeRandomGame(10, firstNumbers(20)));
    EXPECT_TRUE(grids.ComputeRandomGame(10, firstNumbers(20)));
    EXPECT_EQ(grids.Count(), 10);
    EXPECT_TRUE(grids.ComputeRandomGame(12, firstNumbers(20)));
    EXPECT_EQ(grids.Count(), 12);
}

TEST_F(RandomGameTest, TheFirstGridOfACallIsComparedWithNoneTheOthersWithAll) {
    fill({{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}});
    const std::vector<float> first(6, 0.0F);
    const std::vector<float> last(6, 0.9999999F);
    std::vector<float> script = first;                     // taken, although it stands in the game
    script.insert(script.end(), last.begin(), last.end()); // stands in the game: refused
    platform.scriptRandom(script);
    EXPECT_TRUE(grids.ComputeRandomGame(4, firstNumbers(12)));
    const Grids all = contents();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[2], (Numbers{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(std::set<Numbers>(all.begin(), all.end()).size(), 3U);
}

TEST_F(RandomGameTest, AnOldGridWithImpossibleNumbersIsARunTimeFailure) {
    fill({{1, 2, 3, 4, 5, 77}});
    EXPECT_EQ(failureNumber([&] { grids.ComputeRandomGame(5, firstNumbers(20)); }), 9);
}

} // namespace
} // namespace boulix
