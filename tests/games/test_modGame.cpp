// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/modGame.h"

#include "core/modMaths.h"
#include "games/predefinedSystems.h"
#include "support/boulixTest.h"

#include <algorithm>

namespace boulix {
namespace {

class ModGameTest : public BoulixTest {
  protected:
    ModGameTest() { modGame::init(); }
};

TEST_F(ModGameTest, WithoutUserEntriesTheListsHoldNineAndOneDefinition) {
    modGame::loadUserGames();
    EXPECT_EQ(modGame::nReducedGames(), 9);
    EXPECT_EQ(modGame::nFixedGames(), 1);
    EXPECT_EQ(modGame::nPredefReduced, 9);
    EXPECT_EQ(modGame::nPredefFixed, 1);
}

struct SystemRow {
    const char *label;
    int nSelect;
    int nCond;
    int nWin;
    int nComb;
    std::uint64_t hash; ///< FNV-1a over all numbers in their order
    int sum;            ///< of all numbers
};

const std::vector<SystemRow> reducedSystems = {
    {"5 numéros gagnants si 6 sur 10 en 18 grilles", 10, 6, 5, 18, 0x5af46eb6cc689589, 562},
    {"4 numéros gagnants si 5 sur 12 en 20 grilles", 12, 5, 4, 20, 0x9669e227a2a1f81a, 775},
    {"5 numéros gagnants si 6 sur 12 (ou 4 si 4) en 42 grilles", 12, 6, 5, 42, 0x6259d92896b53649,
     1638},
    {"3 numéros gagnants si 6 sur 17 en 6 grilles", 17, 6, 3, 6, 0x7eb55b1d6b9f7ce1, 336},
    {"3 numéros gagnants si 6 sur 18 en 18 grilles", 18, 6, 3, 18, 0x5af46eb6cc689589, 562},
    {"3 numéros gagnants si 6 sur 27 en 91 grilles", 27, 6, 3, 91, 0x4acd7b3a4ced2c59, 7834},
    {"50% de chance d'avoir 3 numéros gagnants en 32 grilles", 49, 3, 3, 32, 0x8fe85760c5dbc851,
     4740},
    {"90% de chance d'avoir 3 numéros gagnants en 90 grilles", 49, 3, 3, 90, 0xd41ecdb15968fe1a,
     13449},
    {"3 numéros gagnants garantis en 168 grilles", 49, 3, 3, 168, 0xc153a176717305c4, 25297},
};
const std::vector<SystemRow> fixedSystems = {
    {"2 fixes et 5 numéros gagnants si 6 sur 10 en 14 grilles", 10, 6, 5, 14, 0xe6826dc1a395f089,
     406},
};

void expectSystems(const modGame::GameList &list, const std::vector<SystemRow> &expected) {
    ASSERT_EQ(modGame::count(list), static_cast<std::int32_t>(expected.size()));
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const gameDef &def = list[i + 1];
        EXPECT_EQ(def.label(), expected[i].label);
        EXPECT_EQ(def.nSelect(), expected[i].nSelect);
        EXPECT_EQ(def.nCond(), expected[i].nCond);
        EXPECT_EQ(def.nWin(), expected[i].nWin);
        EXPECT_EQ(def.nFixed(), 0);
        EXPECT_EQ(def.nComb(), expected[i].nComb);
        EXPECT_FALSE(def.file());
        std::uint64_t hash = 0xcbf29ce484222325;
        int sum = 0;
        for (std::int32_t row = 1; row <= def.nComb(); ++row)
            for (const std::int16_t n : def.sharedRow(row)->numbers()) {
                hash = (hash ^ static_cast<std::uint64_t>(n)) * 0x100000001b3;
                sum += n;
            }
        EXPECT_EQ(hash, expected[i].hash) << def.label();
        EXPECT_EQ(sum, expected[i].sum) << def.label();
    }
}

TEST_F(ModGameTest, TheTenSystemsHaveTheirLabelsTheirNumbersAndTheirRows) {
    expectSystems(modGame::reducedGames, reducedSystems);
    expectSystems(modGame::fixedGames, fixedSystems);
}

TEST_F(ModGameTest, EveryRowAscendsAndIsSummed) {
    for (const auto *list : {&modGame::reducedGames, &modGame::fixedGames})
        for (const gameDef &def : *list)
            for (std::int32_t i = 1; i <= def.nComb(); ++i) {
                const gameComb &row = *def.sharedRow(i);
                EXPECT_EQ(row.sum(), row.total());
                EXPECT_GE(row.num(1), 1);
                EXPECT_LE(row.num(6), def.nSelect());
                EXPECT_TRUE(std::is_sorted(row.numbers().begin(), row.numbers().end()));
            }
}

TEST_F(ModGameTest, TheLastRowOfTheFirstSystemEndsWithABlank) {
    EXPECT_STREQ(predefinedReduced[0].rows.back(), "05 / 06 / 07 / 08 / 09 / 10 ");
    EXPECT_EQ(modGame::reducedGames[1].sharedRow(18)->sum(), 45);
}

TEST_F(ModGameTest, TheFixedSystemBeginsEveryRowWithOneAndTwo) {
    const gameDef &def = modGame::fixedGames[1];
    for (std::int32_t i = 1; i <= def.nComb(); ++i) {
        EXPECT_EQ(def.sharedRow(i)->num(1), 1);
        EXPECT_EQ(def.sharedRow(i)->num(2), 2);
    }
}

TEST_F(ModGameTest, ASecondStartDoesNotDoubleTheSystems) {
    modGame::init();
    EXPECT_EQ(modGame::nReducedGames(), 9);
}

TEST_F(ModGameTest, SubsetsAreCountedByTheBinomialsOfTheFreePositions) {
    for (std::size_t f = 0; f <= 5; ++f)
        for (std::size_t s = 1; s <= 6; ++s) {
            const auto free = static_cast<std::int16_t>(6 - f);
            const auto size = static_cast<std::int16_t>(s);
            EXPECT_EQ(modGame::subsetCount[f][s], size > free ? 0 : modMaths::Cnk(free, size));
        }
}

TEST_F(ModGameTest, SubsetsFollowTheLexicographicOrder) {
    const auto positions = [](std::size_t f, std::size_t s, std::size_t r) {
        return modGame::subsetList[f][s][r].numbers();
    };
    using Row = gameComb::Numbers;
    EXPECT_EQ(positions(0, 2, 1), (Row{1, 2}));
    EXPECT_EQ(positions(0, 2, 5), (Row{1, 6}));
    EXPECT_EQ(positions(0, 2, 6), (Row{2, 3}));
    EXPECT_EQ(positions(0, 2, 15), (Row{5, 6}));
    EXPECT_EQ(positions(2, 3, 1), (Row{3, 4, 5}));
    EXPECT_EQ(positions(5, 1, 1), (Row{6}));
    for (std::size_t f = 0; f <= 5; ++f)
        for (std::size_t s = 1; s <= 6; ++s)
            for (std::int16_t r = 2; r <= modGame::subsetCount[f][s]; ++r) {
                const auto at = static_cast<std::size_t>(r);
                EXPECT_LT(positions(f, s, at - 1), positions(f, s, at));
            }
}

TEST_F(ModGameTest, ASubsetIsAscendingFreePositionsAndThenZeros) {
    for (std::size_t f = 0; f <= 5; ++f)
        for (std::size_t s = 1; s <= 6; ++s)
            for (std::int16_t r = 1; r <= modGame::subsetCount[f][s]; ++r) {
                const gameComb &subset = modGame::subsetList[f][s][static_cast<std::size_t>(r)];
                int before = static_cast<int>(f);
                for (int i = 1; i <= 6; ++i) {
                    const bool used = i <= static_cast<int>(s);
                    EXPECT_TRUE(used ? subset.num(i) > before : subset.num(i) == 0);
                    before = used ? subset.num(i) : 6;
                }
                EXPECT_LE(before, 6);
            }
}

TEST_F(ModGameTest, TheCoupleTableHoldsAllPairsInOrder) {
    std::size_t index = 0;
    for (std::int16_t a = 1; a <= 49; ++a)
        for (std::int16_t b = 1; b <= 49; ++b)
            if (a < b) {
                ++index;
                EXPECT_EQ(modGame::coupleTable[0][index], a);
                EXPECT_EQ(modGame::coupleTable[1][index], b);
            }
    EXPECT_EQ(index, 1176U);
}

} // namespace
} // namespace boulix
