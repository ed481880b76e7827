// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The graph button of the statistics page.

#include "workbench/statisticsPageTest.h"

#include "stats/graphSettings.h"
#include "stats/statStores.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

TEST_F(StatisticsPage, TheGraphButtonShowsTheResultAsItStands) {
    startWithFourDraws();
    compute(1);
    modStats::statResult(1) = 33;
    pressGraph(true);
    ASSERT_NE(graph, nullptr);
    ASSERT_EQ(curvePoints(), 49U);
    EXPECT_EQ(graph->plot.curves().front().x.front(), 1);
    EXPECT_EQ(graph->plot.curves().front().x.back(), 49);
    EXPECT_EQ(graph->plot.curves().front().y.front(), 33) << "nothing is computed";
    EXPECT_EQ(page.graphButton(), 1);
}

TEST_F(StatisticsPage, TheGraphFollowsEachNewResult) {
    startWithFourDraws();
    pressGraph(true);
    EXPECT_EQ(curvePoints(), 0U) << "no list, no curve";
    compute(1);
    EXPECT_EQ(curvePoints(), 49U);
    compute(13, {14});
    EXPECT_EQ(curvePoints(), 2U);
    EXPECT_EQ(graph->plot.curves().size(), 1U);
    compute(2, {49});
    EXPECT_EQ(curvePoints(), 0U) << "an empty list";
}

TEST_F(StatisticsPage, TheAxesAreNamedAsTheColumnsOfTheTypeOfTheMoment) {
    startWithFourDraws();
    pressGraph(true);
    const std::vector<Texts> titles = {{"N°", "Fréquence"},       {"N°", "Fréquence"},
                                       {"N°", "Fréquence"},       {"N°", "Fréquence"},
                                       {"N°", "Fréquence"},       {"Somme", "Fréquence"},
                                       {"N°", "Dernière Sortie"}, {"N°", "Consécutifs"},
                                       {"N°", "Max sans sortir"}, {"N°", "Max consécutifs"}};
    for (std::int16_t type = 1; type <= 10; ++type) {
        const Numbers chosen = {1, 2, 3, 4};
        compute(type, {chosen.begin(), chosen.begin() + modStats::statTypes(type).nNumbers});
        EXPECT_EQ((Texts{graph->plot.xTitle(), graph->plot.yTitle()}),
                  titles[static_cast<std::size_t>(type - 1)])
            << type;
    }
    compute(13, {14});
    EXPECT_EQ((Texts{graph->plot.xTitle(), graph->plot.yTitle()}), (Texts{"Période", "Absences"}));
    page.pickType(7);
    pressGraph(false);
    pressGraph(true);
    EXPECT_EQ((Texts{graph->plot.xTitle(), graph->plot.yTitle()}),
              (Texts{"N°", "Dernière Sortie"}));
}

TEST_F(StatisticsPage, SumsDrawAll322PointsWhateverTheChoice) {
    startWithFourDraws();
    pressGraph(true);
    compute(6);
    EXPECT_EQ(curvePoints(), 322U);
    pressCompl(true);
    computeAgain();
    EXPECT_EQ(curvePoints(), 322U);
    pressCompl(false);
    computeAgain();
    ASSERT_EQ(curvePoints(), 322U);
    EXPECT_EQ(modStats::nStatResult, 279);
}

TEST_F(StatisticsPage, ACurveOfOnePointIsNotDrawn) {
    startWithFourDraws();
    pressGraph(true);
    compute(13, {3});
    EXPECT_EQ(rows().size(), 1U);
    EXPECT_EQ(curvePoints(), 0U);
}

TEST_F(StatisticsPage, ATypeWithoutAGraphClosesTheWindowAndTheButtonStaysPressed) {
    startWithFourDraws();
    compute(1);
    pressGraph(true);
    for (const std::int16_t type : Numbers{11, 12, 17}) {
        page.pickType(type);
        EXPECT_EQ(graph, nullptr);
        EXPECT_FALSE(page.graphButtonEnabled);
        EXPECT_EQ(page.graphButton(), 1);
        EXPECT_EQ(modStats::graphWindowPos, somewhere);
        computeAgain(type == 12 ? Numbers{1} : Numbers{});
        EXPECT_EQ(graph, nullptr);
        page.pickType(1);
        EXPECT_TRUE(page.graphButtonEnabled);
        EXPECT_EQ(page.graphButton(), 1);
        EXPECT_EQ(graph, nullptr) << "the next computation opens it again";
        computeAgain();
        EXPECT_EQ(curvePoints(), 49U);
    }
}

TEST_F(StatisticsPage, TheReleasedGraphButtonClosesTheWindowAndRemembersItsPlace) {
    startWithFourDraws();
    compute(1);
    pressGraph(true);
    EXPECT_EQ(modStats::graphWindowPos, modStats::GraphWindowPos{});
    pressGraph(false);
    EXPECT_EQ(graph, nullptr);
    EXPECT_EQ(page.graphButton(), 0);
    EXPECT_EQ(modStats::graphWindowPos, somewhere);
    computeAgain();
    EXPECT_EQ(graph, nullptr);
    pressGraph(true);
    EXPECT_EQ(graphOpened, 2);
    EXPECT_EQ(curvePoints(), 49U) << "the result is still there";
}

TEST_F(StatisticsPage, AGraphWindowThatTheUserClosesReleasesTheButton) {
    startWithFourDraws();
    compute(1);
    pressGraph(true);
    page.graphWindowClosed();
    EXPECT_EQ(page.graphButton(), 0);
    EXPECT_EQ(modStats::graphWindowPos, somewhere);
}

TEST_F(StatisticsPage, TheGraphOfAFrequencyHasWhatChanceLetsExpectAsALine) {
    startWithFourDraws();
    pressGraph(true);
    compute(1);
    ASSERT_TRUE(graph->plot.expected());
    EXPECT_DOUBLE_EQ(*graph->plot.expected(), 4 * 6.0 / 49);
    pressCompl(true);
    EXPECT_DOUBLE_EQ(*graph->plot.expected(), 4 * 6.0 / 49) << "the curve is still the old one";
    computeAgain();
    EXPECT_DOUBLE_EQ(*graph->plot.expected(), 4 * 7.0 / 49);
    page.leaveStart("3");
    computeAgain();
    EXPECT_DOUBLE_EQ(*graph->plot.expected(), 2 * 7.0 / 49);
    compute(2, {1});
    EXPECT_DOUBLE_EQ(*graph->plot.expected(), 2 * 6.0 / 49 * 6 / 48);
    compute(2, {49});
    EXPECT_FALSE(graph->plot.expected()) << "no row, no curve";
    compute(7);
    EXPECT_FALSE(graph->plot.expected());
    page.pickType(1);
    pressGraph(false);
    pressGraph(true);
    EXPECT_FALSE(graph->plot.expected()) << "the stores hold delays";
}

} // namespace
} // namespace boulix
