// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "chancesTest.h"
#include "winnings/chances.h"

#include <limits>

namespace boulix {
namespace {

class ChancesOfAGame : public ChancesTest {
  protected:
    ChancesOfAGame() {
        for (std::int16_t index = 0; index < rapport::size; ++index)
            prizes.Value(index, 0);
        prizes.Value(4, 2);
        prizes.Value(10, 500'000);
    }
    std::string refusal() const { return chancesRefusal(grids, prizes, 0.6F); }
    rapport prizes;
};

TEST_F(ChancesOfAGame, TellAllThereIsToKnowAboutOneGrid) {
    addGrid({5, 10, 15, 20, 25, 30});
    const auto chances = chancesOf(grids, prizes, 0.6F, progress);
    ASSERT_TRUE(chances);
    EXPECT_EQ(chances->grids, 1);
    EXPECT_EQ(chances->numbers, 6);
    EXPECT_EQ(chances->cases, 601'304'088U);
    EXPECT_EQ(chances->atLeast(11), 43U);
    EXPECT_EQ(chances->atLeast(10), 43U + 6 * 43);
    EXPECT_EQ(chances->atLeast(1), 601'304'088U - 6'096'454U * 43);
    EXPECT_DOUBLE_EQ(chances->meanGrids(5), 9'872'800 / 601'304'088.0);
    EXPECT_DOUBLE_EQ(chances->meanWin(5), 2 * 9'872'800 / 601'304'088.0);
    EXPECT_DOUBLE_EQ(chances->stake(), 0.6);
    EXPECT_DOUBLE_EQ(chances->meanReturn(), (2 * 9'872'800 + 500'000 * 43) / 601'304'088.0);
    EXPECT_DOUBLE_EQ(chances->returnPart().value_or(0), chances->meanReturn() / 0.6);
    EXPECT_EQ(chances->aboveStake, 9'872'800U + 43) << "the other ranks pay nothing";
    ASSERT_EQ(chances->guarantees.size(), 6U);
    EXPECT_LE(progress.ProgressBar.value, progress.ProgressBar.max);
    EXPECT_GT(progress.ProgressBar.value, progress.ProgressBar.max / 100 * 99);
}

TEST_F(ChancesOfAGame, OfferTheUserToCancelAllTheWay) {
    addRandomGrids(3, random);
    for (const int turn : {1, 300, 17'000}) {
        frmProgress window;
        int turns = 0;
        desktop.onEvents = [&] {
            if (++turns == turn)
                window.clickCancel();
        };
        EXPECT_FALSE(chancesOf(grids, prizes, 1, window)) << turn;
        EXPECT_EQ(turns, turn);
    }
}

TEST_F(ChancesOfAGame, WithoutAPriceThereIsNoReturnInPercent) {
    GameChances chances;
    chances.grids = 3;
    chances.cases = 1;
    EXPECT_FALSE(chances.returnPart());
    chances.amounts.price = 1;
    EXPECT_EQ(chances.returnPart(), 0.0);
}

TEST_F(ChancesOfAGame, AGameThatCanBePlayedIsNotRefused) {
    addGrid({6, 5, 4, 3, 2, 49});
    addGrid({6, 5, 4, 3, 2, 49});
    EXPECT_EQ(refusal(), "");
}

TEST_F(ChancesOfAGame, AnEmptyGameIsRefused) {
    EXPECT_EQ(refusal(), "Le jeu courant est vide : ajoutez-lui des grilles pour en "
                         "connaître les chances.");
}

TEST_F(ChancesOfAGame, AGridThatNobodyCanPlayIsNamed) {
    addGrid({1, 2, 3, 4, 5, 6});
    addGrid({1, 2, 3, 4, 0, 6});
    EXPECT_EQ(refusal(), "La grille n° 2 (01 02 03 04 00 06) ne peut pas être jouée : il lui faut "
                         "six numéros différents de 1 à 49.");
    grids.Item(2).num(5, 4);
    EXPECT_NE(refusal(), "") << "a number twice";
    grids.Item(2).num(5, 50);
    EXPECT_NE(refusal(), "");
    grids.Item(2).num(5, -3);
    EXPECT_NE(refusal(), "");
    grids.Item(2).num(5, 48);
    EXPECT_EQ(refusal(), "");
}

TEST_F(ChancesOfAGame, AmountsThatCannotBeAddedAreRefused) {
    addGrid({1, 2, 3, 4, 5, 6});
    prizes.Value(0, std::numeric_limits<float>::infinity());
    EXPECT_EQ(refusal(), "Les montants des rapports ou le prix d'une grille sont trop grands, ou "
                         "ont trop de décimales, pour être additionnés exactement.");
}

} // namespace
} // namespace boulix
