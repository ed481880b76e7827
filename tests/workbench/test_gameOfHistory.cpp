// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The road from a statistic of the operator's history to a game.

#include "draws/dbCombs.h"
#include "games/modGame.h"
#include "statisticsPageTest.h"
#include "support/locations.h"

#include <algorithm>
#include <array>

namespace boulix {
namespace {

class GameOfHistory : public StatisticsPage {
  protected:
    void SetUp() override {
        const auto history = testing_support::operatorHistory();
        if (!history)
            GTEST_SKIP() << "the operator's history is not here";
        ASSERT_TRUE(importHistory(desktop, folder(), *history));
        ASSERT_EQ(gDbCombs->Count(), 4858);
        modGame::init();
        mainWindow->load();
    }
    /// The numbers with how often they came out, counted draw by draw.
    static std::array<int, 50> plainCounts() {
        std::array<int, 50> times{};
        for (std::int32_t draw = 1; draw <= gDbCombs->Count(); ++draw)
            for (int i = 1; i <= lotoComb::size; ++i)
                ++times.at(static_cast<std::size_t>(gDbCombs->Item(draw).comb().num(i)));
        return times;
    }
    gameDesign &design = mainWindow->games.design;
};

TEST_F(GameOfHistory, NumbersMarkedInAStatisticAreTheSelectionOfAReducedGame) {
    compute(1);
    page.clickHeader(1);
    const auto numberIn = [this](std::int64_t row) {
        return static_cast<std::int16_t>(std::stoi(page.lvwStatsResult.text(row - 1, 0)));
    };
    const std::array<int, 50> times = plainCounts();
    for (std::int64_t row = 1; row <= 49; ++row)
        EXPECT_EQ(page.lvwStatsResult.text(row - 1, 1),
                  std::to_string(times.at(static_cast<std::size_t>(numberIn(row)))));
    std::vector<std::int64_t> clicked;
    Numbers chosen;
    for (std::int64_t row = 40; row <= 49; ++row) {
        clicked.push_back(row);
        chosen.push_back(numberIn(row));
    }
    clickRows(clicked);
    EXPECT_EQ(board(), chosen);

    design.chkSelect[gameDesign::statisticNumbers] = true;
    desktop.answerNumbers(NumberScript().ok());
    design.clickButton(gameDesign::selectNumbers);
    EXPECT_EQ(desktop.numberShowings.back().markedBefore, chosen);
    design.clickButton(gameDesign::computeGame);
    design.clickButton(gameDesign::addGame);

    const gameDef &system = modGame::reducedGames[1];
    ASSERT_EQ(currentGame->Count(), system.nComb());
    for (std::int32_t row = 1; row <= system.nComb(); ++row) {
        gameComb::Numbers six{};
        for (std::size_t i = 0; i < six.size(); ++i)
            six[i] = chosen.at(static_cast<std::size_t>(system.sharedRow(row)->numbers()[i] - 1));
        std::sort(six.begin(), six.end());
        EXPECT_EQ(currentGame->Item(row).numbers(), six) << row;
    }
}

} // namespace
} // namespace boulix
