// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/drawAnalysis.h"

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "stats/plainStats.h"
#include "stats/statsTest.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>

namespace boulix {
namespace {

using modStats::CountDrawsSince;
using testing_support::plainAnalysis;
using testing_support::plainDrawsSince;
using Rows = std::vector<std::pair<std::string, std::int32_t>>;

const std::vector<int> allAnalyses = {1, 2, 3, 4, 5, 6, 7, 8};

class DrawAnalysis : public StatsTest {
  protected:
    Rows analyse(std::int32_t draw, const std::vector<int> &analyses) {
        std::vector<std::int32_t> values;
        std::vector<std::string> labels;
        std::int32_t nRows = -1;
        std::vector<std::int32_t> fromOne = {0};
        fromOne.insert(fromOne.end(), analyses.begin(), analyses.end());
        modStats::ComputeDrawAnalysis(draw, values, labels, nRows, fromOne,
                                      static_cast<std::int32_t>(analyses.size()));
        Rows rows;
        for (std::size_t i = 1; i <= static_cast<std::size_t>(nRows); ++i)
            rows.emplace_back(labels.at(i), values.at(i));
        return rows;
    }
};

TEST_F(DrawAnalysis, TheEightAnalysesHaveTheirNames) {
    const std::array<std::string, 8> names = {
        "Somme des numéros sans compl.",       "Somme des numéros avec compl.",
        "Numéros pairs et impairs.",           "Dernière apparition des numéros",
        "Dernière apparition des couples",     "Dernière apparition des triplés",
        "Nbr max de num. de la même septaine", "Nbr max de num. de la même dizaine"};
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(modStats::analysisNames.at(i), names[i]);
}

TEST_F(DrawAnalysis, NoneAskedForGivesNoRow) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    EXPECT_EQ(analyse(1, {}), Rows());
}

TEST_F(DrawAnalysis, SumsAndEvenNumbers) {
    addDraws({{10, 1, 2, 3, 4, 5, 40}});
    EXPECT_EQ(analyse(1, {1}),
              (Rows{{"Somme des numéros de la combinaison sans complémentaire", 25}}));
    EXPECT_EQ(analyse(1, {2}),
              (Rows{{"Somme des numéros de la combinaison avec complémentaire", 65}}));
    EXPECT_EQ(analyse(1, {3}),
              (Rows{{"Nombre de  numéros pairs", 4}, {"Nombre de  numéros impairs", 3}}));
}

TEST_F(DrawAnalysis, OnTheFirstDrawNothingHasElapsed) {
    addDraws({{49, 2, 13, 4, 5, 6, 7}});
    const std::string label = "Nombre de tirages écoulés pour le numéro ";
    EXPECT_EQ(analyse(1, {4}), (Rows{{label + "02", 0},
                                     {label + "04", 0},
                                     {label + "05", 0},
                                     {label + "06", 0},
                                     {label + "07", 0},
                                     {label + "13", 0},
                                     {label + "49", 0}}));
}

TEST_F(DrawAnalysis, ThePreviousDrawCountsAsOne) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {11, 12, 13, 14, 15, 16, 1}, {1, 2, 23, 24, 25, 26, 27}});
    EXPECT_EQ(CountDrawsSince(3, 1, 0, 0), 1);
    EXPECT_EQ(CountDrawsSince(3, 2, 0, 0), 2);
    EXPECT_EQ(CountDrawsSince(3, 1, 2, 0), 2);
    EXPECT_EQ(CountDrawsSince(3, 27, 0, 0), 2) << "never out before: as if in the oldest draw";
    EXPECT_EQ(CountDrawsSince(2, 27, 0, 0), 1);
    EXPECT_EQ(CountDrawsSince(1, 27, 1, 2), 0);
}

TEST_F(DrawAnalysis, TheComplementaryNeverStandsForTheThirdOfATriplet) {
    addDraws({{1, 2, 11, 12, 13, 14, 3},
              {31, 32, 33, 34, 35, 36, 37},
              {2, 3, 11, 12, 13, 14, 1},
              {31, 32, 33, 34, 35, 36, 37}});
    EXPECT_EQ(CountDrawsSince(3, 1, 2, 3), 2) << "as in no draw at all";
    EXPECT_EQ(CountDrawsSince(5, 1, 2, 3), 2);
    EXPECT_EQ(CountDrawsSince(2, 1, 3, 2), 1);
    EXPECT_EQ(CountDrawsSince(3, 1, 3, 0), 2) << "in a couple it stands for either";
    EXPECT_EQ(CountDrawsSince(3, 3, 0, 0), 2);
}

TEST_F(DrawAnalysis, SevenGroupsOfEightNumbersHoldTheSeptaines) {
    struct Case {
        SevenNumbers numbers;
        std::int32_t count;
        std::int32_t group;
    };
    const std::vector<Case> cases = {
        {{1, 2, 3, 4, 5, 6, 7}, 7, 0},      {{8, 9, 10, 11, 12, 13, 14}, 7, 1},
        {{8, 9, 10, 11, 12, 13, 16}, 6, 1}, {{15, 16, 23, 24, 31, 32, 39}, 2, 4},
        {{1, 2, 3, 40, 47, 48, 49}, 3, 0},  {{1, 2, 40, 47, 48, 49, 30}, 2, 6}};
    for (const Case &c : cases) {
        gDbCombs->clear();
        addDraws({c.numbers});
        EXPECT_EQ(analyse(1, {7}), (Rows{{"Nombre maxi de numéros de la même septaine", c.count},
                                         {"Septaine la plus représentée", c.group}}));
    }
}

TEST_F(DrawAnalysis, FiveGroupsHoldTheDizaines) {
    struct Case {
        SevenNumbers numbers;
        std::int32_t count;
        std::int32_t group;
    };
    const std::vector<Case> cases = {{{1, 2, 3, 9, 10, 19, 20}, 4, 0},
                                     {{10, 11, 19, 20, 29, 30, 39}, 3, 1},
                                     {{1, 9, 40, 49, 30, 39, 20}, 2, 4}};
    for (const Case &c : cases) {
        gDbCombs->clear();
        addDraws({c.numbers});
        EXPECT_EQ(analyse(1, {8}), (Rows{{"Nombre maxi de numéros de la même dizaine", c.count},
                                         {"Dizaine la plus représentée", c.group}}));
    }
}

TEST_F(DrawAnalysis, OfTwoGroupsOfEqualCountTheHigherIsShown) {
    addDraws({{1, 2, 3, 20, 21, 22, 49}});
    EXPECT_EQ(analyse(1, {7}).at(1).second, 2);
    EXPECT_EQ(analyse(1, {8}).at(1).second, 2);
}

TEST_F(DrawAnalysis, AllEightGiveSeventyOneRows) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}, {49, 8, 23, 11, 40, 30, 12}});
    const Rows rows = analyse(2, allAnalyses);
    ASSERT_EQ(rows.size(), 71U);
    EXPECT_EQ(rows[4].first, "Nombre de tirages écoulés pour le numéro 08");
    EXPECT_EQ(rows[11].first, "Nombre de tirages écoulés pour le couple (08,11)");
    EXPECT_EQ(rows[31].first, "Nombre de tirages écoulés pour le couple (40,49)");
    EXPECT_EQ(rows[32].first, "Nombre de tirages écoulés pour le triplé (08,11,12)");
    EXPECT_EQ(rows[36].first, "Nombre de tirages écoulés pour le triplé (08,11,49)");
    EXPECT_EQ(rows[37].first, "Nombre de tirages écoulés pour le triplé (08,12,23)");
    EXPECT_EQ(rows[66].first, "Nombre de tirages écoulés pour le triplé (30,40,49)");
    EXPECT_EQ(rows, plainAnalysis(2, allAnalyses));
}

TEST_F(DrawAnalysis, AnAnalysisThatDoesNotExistGivesNoRow) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    EXPECT_EQ(analyse(1, {0, 9, -1}), Rows());
}

TEST_F(DrawAnalysis, ADrawThatDoesNotExistIsAFailure) {
    addDraws({{1, 2, 3, 4, 5, 6, 7}});
    EXPECT_EQ(failureNumber([&] { analyse(0, {1}); }), 9);
    EXPECT_EQ(failureNumber([&] { analyse(2, {1}); }), 9);
}

TEST_F(DrawAnalysis, ANumberInNoGroupIsAFailure) {
    addDraws({{1, 2, 3, 4, 5, 6, 60}});
    EXPECT_EQ(failureNumber([&] { analyse(1, {7}); }), 9);
    EXPECT_EQ(failureNumber([&] { analyse(1, {8}); }), 9);
    EXPECT_EQ(analyse(1, {1, 2, 3, 4, 5, 6}).size(), 67U);
}

/// A draw of numbers up to `highest` from `lowest` on, with anything that a bad file may hold.
SevenNumbers strangeDraw(std::mt19937 &random, int lowest, int highest) {
    SevenNumbers numbers{};
    for (std::int16_t &n : numbers)
        n = static_cast<std::int16_t>(std::uniform_int_distribution<int>(lowest, highest)(random));
    return numbers;
}

TEST_F(DrawAnalysis, GivesWhatThePlainOneGivesOnAnyNumbers) {
    struct Range {
        int lowest;
        int highest;
    };
    std::mt19937 random(3);
    for (const Range range : {Range{1, 49}, {1, 12}, {0, 9}, {-3, 5}, {45, 52}}) {
        gDbCombs->clear();
        for (int i = 0; i < 80; ++i)
            addDraws({strangeDraw(random, range.lowest, range.highest)});
        for (int draw = 1; draw <= 80; ++draw)
            ASSERT_EQ(analyse(draw, {4, 5, 6}), plainAnalysis(draw, {4, 5, 6})) << draw;
        for (int i = 0; i < 500; ++i) {
            const SevenNumbers tuple = strangeDraw(random, range.lowest, range.highest);
            ASSERT_EQ(CountDrawsSince(81, tuple[0], tuple[1], tuple[2]),
                      plainDrawsSince(81, tuple[0], tuple[1], tuple[2]));
        }
    }
}

TEST_F(DrawAnalysis, GivesWhatThePlainOneGivesOnTheRealHistory) {
    if (!importHistory())
        GTEST_SKIP() << noHistory;
    for (const int draw : {1, 2, 10, 1500, 3000, 4700, 4857, 4858})
        ASSERT_EQ(analyse(draw, allAnalyses), plainAnalysis(draw, allAnalyses)) << draw;
}

} // namespace
} // namespace boulix
