// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a command did to a game, taken back and done again.

#include "gameTest.h"
#include "games/gameStep.h"

#include <functional>
#include <random>

namespace boulix {
namespace {

class GameStepTest : public GameTest {
  protected:
    void fillWith(int count) {
        Grids numbers;
        for (int i = 0; i < count; ++i)
            numbers.push_back(numbered(i));
        fill(numbers);
    }
    static Numbers numbered(int i) { return {static_cast<std::int16_t>(i), 45, 46, 47, 48, 49}; }
    /// Runs `command` and expects that its step leads back and forth, twice.
    void expectBackAndForth(GameStep step, const std::function<void(GameStep &)> &command) {
        const Grids before = contents();
        command(step);
        const Grids after = contents();
        ASSERT_TRUE(step.close(grids));
        for (int i = 0; i < 2; ++i) {
            step.exchange(grids);
            EXPECT_EQ(contents(), before);
            step.exchange(grids);
            EXPECT_EQ(contents(), after);
        }
    }
};

TEST_F(GameStepTest, ARemovedGridComesBackToItsPlace) {
    fillWith(100);
    for (const int place : {1, 50, 98})
        expectBackAndForth(GameStep(grids), [&](GameStep &) { grids.Remove(place); });
}

TEST_F(GameStepTest, AStepKeepsOnlyTheStretchThatChanged) {
    fillWith(1000);
    GameStep step(grids);
    grids.Remove(500);
    ASSERT_TRUE(step.close(grids));
    EXPECT_EQ(step.bytes(), sizeof(GridRef) + sizeof(gameComb));
}

TEST_F(GameStepTest, SeveralRemovedGridsComeBackToTheirPlaces) {
    fillWith(100);
    expectBackAndForth(GameStep(grids), [&](GameStep &) {
        grids.Remove(std::vector<std::int64_t>{2, 7, 8, 60});
    });
}

TEST_F(GameStepTest, AddedGridsCostNothingAndGo) {
    fillWith(10);
    for (int i = 0; i < 3; ++i)
        expectBackAndForth(GameStep::adding(grids), [&](GameStep &) { fillWith(5); });
    GameStep step = GameStep::adding(grids);
    fillWith(5);
    ASSERT_TRUE(step.close(grids));
    EXPECT_EQ(step.bytes(), 0U);
}

TEST_F(GameStepTest, AnEmptiedGameComesBackWhole) {
    fillWith(10);
    expectBackAndForth(GameStep(), [&](GameStep &step) {
        step.empty(grids);
        EXPECT_EQ(grids.Count(), 0);
    });
    fillWith(10);
    expectBackAndForth(GameStep(grids), [&](GameStep &) { grids.clear(); });
}

TEST_F(GameStepTest, ACommandThatChangedNothingIsNoStep) {
    fillWith(10);
    GameStep noted(grids);
    EXPECT_FALSE(noted.close(grids));
    GameStep adding = GameStep::adding(grids);
    EXPECT_FALSE(adding.close(grids));
    game none;
    GameStep emptying;
    emptying.empty(none);
    EXPECT_FALSE(emptying.close(none));
}

TEST_F(GameStepTest, TheGridsThemselvesComeBackNotCopiesOfThem) {
    fillWith(3);
    const GridRef second = grids.shared(2);
    GameStep step(grids);
    grids.Remove(2);
    ASSERT_TRUE(step.close(grids));
    step.exchange(grids);
    EXPECT_TRUE(grids.shared(2) == second);
}

TEST_F(GameStepTest, AGridThatStandsTwiceInTheGameLosesOnlyTheOneThatWent) {
    fillWith(4);
    grids.Add(grids.shared(2));
    grids.Add(grids.shared(2));
    expectBackAndForth(GameStep(grids), [&](GameStep &) { grids.Remove(5); });
}

TEST_F(GameStepTest, KeysComeBackToo) {
    fillWith(3);
    grids.Add(GridRef(gameComb(numbered(42))), "clé");
    GameStep step(grids);
    grids.Remove("clé");
    ASSERT_TRUE(step.close(grids));
    step.exchange(grids);
    EXPECT_EQ(grids.Item("clé").num(1), 42);
    step.exchange(grids);
    EXPECT_THROW(grids.Item("clé"), RuntimeFailure);
}

TEST_F(GameStepTest, AStepThatDoesNotFitTheGameFailsAndChangesNothing) {
    fillWith(100);
    GameStep step(grids);
    fillWith(5);
    ASSERT_TRUE(step.close(grids));
    grids.Remove(105);
    const Grids before = contents();
    EXPECT_THROW(step.exchange(grids), RuntimeFailure);
    EXPECT_EQ(contents(), before);
}

/// Any commands, taken back and done again in any order that an undo list allows, against plain
/// copies of the grids.
TEST_F(GameStepTest, AnyCommandsBackAndForthGiveTheGridsOfPlainCopies) {
    std::mt19937 random(20261121);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    std::vector<GameStep> steps;
    std::vector<Grids> states = {contents()};
    std::size_t now = 0; // how many steps are done
    const auto command = [&](GameStep &step) {
        switch (below(5)) {
        case 0:
            return fillWith(below(40));
        case 1: {
            std::vector<std::int64_t> places;
            for (std::int64_t place = 1 + below(9); place < grids.Count() / 2;
                 place += 1 + below(9))
                places.push_back(place);
            return grids.Remove(places);
        }
        case 2:
            return grids.Count() > 0 ? grids.Remove(1 + below(grids.Count())) : void();
        case 3:
            step = GameStep::adding(grids);
            return fillWith(below(40));
        default:
            if (below(6) == 0) {
                step = GameStep();
                step.empty(grids);
            }
        }
    };
    for (int turn = 0; turn < 1500; ++turn) {
        const int what = below(3);
        if (what == 0) {
            GameStep step(grids);
            command(step);
            if (!step.close(grids)) {
                ASSERT_EQ(contents(), states[now]);
                continue;
            }
            steps.resize(now);
            states.resize(now + 1);
            steps.push_back(std::move(step));
            states.push_back(contents());
            ++now;
        } else if (what == 1 && now > 0) {
            steps[--now].exchange(grids);
        } else if (what == 2 && now < steps.size()) {
            steps[now++].exchange(grids);
        }
        ASSERT_EQ(contents(), states[now]) << turn;
    }
}

} // namespace
} // namespace boulix
