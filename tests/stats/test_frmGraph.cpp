// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The graph window's rules, its settings and the plotting control's range.

#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "support/boulixTest.h"

#include <utility>
#include <vector>

namespace boulix {
namespace {

using testing_support::readBytes;
using testing_support::writeBytes;

class Graph : public BoulixTest {
  protected:
    Graph() { modStats::InitGraphTypes(); }
    void settings(const std::string &text) {
        writeBytes(file("boulix.ini"), text);
        modStats::InitGraphTypes();
    }
    static std::vector<std::string> limits(const frmGraph &graph) {
        return {graph.txtLimit.begin(), graph.txtLimit.end()};
    }
};

TEST_F(Graph, WithoutASettingsFileTheTypeIsBarsWithGridAndAxes) {
    EXPECT_STREQ(modStats::graphTypeNames[static_cast<std::size_t>(modStats::graphType)], "Barres");
    EXPECT_TRUE(modStats::graphShowGrid);
    EXPECT_TRUE(modStats::graphShowAxes);
    EXPECT_TRUE(modStats::graphAutoRange);
    EXPECT_FALSE(testing_support::fileExists(file("boulix.ini")));
}

TEST_F(Graph, TheTypeIsReadWithoutRegardToCaseAndAnUnknownOneLeavesItAsItWas) {
    const std::vector<std::pair<std::string, std::int16_t>> cases = {
        {"CROIX", 3}, {"croix", 3}, {"Points", 2}, {"lignes", 0}, {"xyz", 0}, {"", 0}};
    for (const auto &[value, index] : cases) {
        settings("[graphique]\r\ntype=" + value + "\r\n");
        EXPECT_EQ(modStats::graphType, index) << value;
    }
}

TEST_F(Graph, AnUnknownTypeLeavesTheOneThatWasThere) {
    modStats::graphType = 2;
    for (const char *value : {"xyz", "", "Croix2", "Barre"}) {
        writeBytes(file("boulix.ini"), std::string("[graphique]\r\ntype=") + value + "\r\n");
        modStats::LoadGraphParam();
        EXPECT_EQ(modStats::graphType, 2) << value;
    }
}

TEST_F(Graph, OnlyOffInAnyCaseTurnsGridAndAxesOff) {
    const std::vector<std::pair<std::string, bool>> cases = {
        {"off", false}, {"OFF", false}, {"Off", false}, {"on", true}, {"no", true}, {"0", true}};
    for (const auto &[value, shown] : cases) {
        settings("[graphique]\r\nvisualisation_grille=" + value +
                 "\r\nvisualisation_axes=" + value + "\r\n");
        EXPECT_EQ(modStats::graphShowGrid, shown) << value;
        EXPECT_EQ(modStats::graphShowAxes, shown) << value;
    }
}

TEST_F(Graph, TheSettingsWindowSavesItsThreeValuesAndTheNextStartFindsThem) {
    frmGraphParam window;
    EXPECT_EQ(window.cmbGraphType, 1);
    window.cmbGraphType = 3;
    window.chkShowAxes = false;
    window.clickOK();
    EXPECT_EQ(readBytes(file("boulix.ini")),
              "[graphique]\r\ntype=Croix\r\nvisualisation_axes=off\r\nvisualisation_grille=on\r\n");
    modStats::InitGraphTypes();
    EXPECT_EQ(modStats::graphType, 3);
    EXPECT_FALSE(modStats::graphShowAxes);
    EXPECT_TRUE(modStats::graphShowGrid);
}

TEST_F(Graph, ASettingsWindowThatIsLeftChangesNothing) {
    frmGraphParam window;
    window.cmbGraphType = 3;
    EXPECT_EQ(modStats::graphType, 1);
    EXPECT_FALSE(testing_support::fileExists(file("boulix.ini")));
}

TEST_F(Graph, TheWindowOpensOnTheSettingsAndTheFixedColours) {
    settings("[graphique]\r\ntype=Points\r\nvisualisation_grille=off\r\n");
    frmGraph graph;
    EXPECT_EQ(graph.cmbGraphType, 2);
    EXPECT_TRUE(graph.chkShowAxes);
    EXPECT_FALSE(graph.chkShowGrid);
    EXPECT_TRUE(graph.optAutoRange);
    EXPECT_FALSE(graph.frameManualRangeEnabled);
    EXPECT_EQ(limits(graph), (std::vector<std::string>{"-10", "10", "-10", "100"}));
    EXPECT_EQ(graph.plot.graphType(), 2);
    EXPECT_FALSE(graph.plot.showGrid());
    EXPECT_EQ(graph.plot.curveColor(), (Color{255, 0, 0}));
    EXPECT_EQ(graph.plot.axesColor(), (Color{0, 0, 255}));
    EXPECT_EQ(graph.plot.gridColor(), (Color{190, 190, 190}));
}

TEST_F(Graph, AxesAndGridThatAreOffAreOffWhenTheWindowOpens) {
    for (const bool axes : {true, false})
        for (const bool grid : {true, false}) {
            settings(std::string("[graphique]\r\nvisualisation_axes=") + (axes ? "on" : "off") +
                     "\r\nvisualisation_grille=" + (grid ? "on" : "off") + "\r\n");
            const frmGraph graph;
            EXPECT_EQ(graph.chkShowAxes, axes);
            EXPECT_EQ(graph.plot.showAxes(), axes);
            EXPECT_EQ(graph.chkShowGrid, grid);
            EXPECT_EQ(graph.plot.showGrid(), grid);
        }
}

TEST_F(Graph, ChangesInTheWindowLastForTheRunAndAreNotSaved) {
    frmGraph graph;
    graph.selectGraphType(3);
    graph.clickShowAxes(false);
    graph.clickShowGrid(false);
    EXPECT_EQ(modStats::graphType, 3);
    EXPECT_FALSE(modStats::graphShowAxes);
    EXPECT_FALSE(modStats::graphShowGrid);
    EXPECT_EQ(graph.plot.graphType(), 3);
    EXPECT_FALSE(testing_support::fileExists(file("boulix.ini")));
}

TEST_F(Graph, TheAutomaticRangeHoldsAllPointsAndTheZeroOfTheOrdinate) {
    frmGraph graph;
    graph.plot.addCurve({1, 2, 3}, {40, 100, 60});
    EXPECT_EQ(graph.plot.range(), (PlotRange{0, 4, 0, 105}));
}

TEST_F(Graph, SwitchingToTheManualRangeKeepsTheRangeThatTheControlHadChosen) {
    frmGraph graph;
    graph.plot.addCurve({1, 2, 3}, {40, 100, 60});
    graph.clickManualRange();
    EXPECT_EQ(limits(graph), (std::vector<std::string>{"0", "4", "0", "105"}));
    EXPECT_TRUE(graph.frameManualRangeEnabled);
    EXPECT_FALSE(modStats::graphAutoRange);
    EXPECT_EQ(modStats::graphYMax, 105);
}

TEST_F(Graph, SwitchingToTheAutomaticRangeReadsTheLimitsBack) {
    frmGraph graph;
    graph.plot.addCurve({1, 2, 3}, {40, 100, 60});
    graph.clickManualRange();
    graph.leaveLimit(frmGraph::yMax, "500");
    EXPECT_EQ(graph.plot.yMax(), 500);
    graph.clickAutoRange();
    EXPECT_EQ(limits(graph), (std::vector<std::string>{"0", "4", "0", "105"}));
    EXPECT_EQ(modStats::graphYMax, 105);
}

TEST_F(Graph, AManualRangeIsThereAgainWhenTheWindowOpensAgain) {
    {
        frmGraph graph;
        graph.clickManualRange();
        graph.leaveLimit(frmGraph::xMin, "5");
    }
    frmGraph again;
    EXPECT_FALSE(again.optAutoRange);
    EXPECT_EQ(again.plot.xMin(), 5);
    again.plot.addCurve({1, 2, 3}, {40, 100, 60});
    EXPECT_EQ(again.plot.xMin(), 5);
}

TEST_F(Graph, TheReturnToTheAutomaticRangeIsThereAgainWhenTheWindowOpensAgain) {
    {
        frmGraph graph;
        graph.clickManualRange();
        graph.clickAutoRange();
    }
    EXPECT_TRUE(modStats::graphAutoRange);
    const frmGraph again;
    EXPECT_TRUE(again.optAutoRange);
    EXPECT_TRUE(again.plot.autoRange());
    EXPECT_FALSE(again.frameManualRangeEnabled);
}

TEST_F(Graph, EachLimitGoesToItsOwnEndOfItsOwnAxis) {
    const PlotRange typed{5, 25, 3, 45};
    {
        frmGraph graph;
        graph.clickManualRange();
        graph.leaveLimit(frmGraph::xMin, "5");
        graph.leaveLimit(frmGraph::xMax, "25");
        graph.leaveLimit(frmGraph::yMin, "3");
        graph.leaveLimit(frmGraph::yMax, "45");
        EXPECT_EQ(graph.plot.range(), typed);
        EXPECT_EQ(limits(graph), (std::vector<std::string>{"5", "25", "3", "45"}));
    }
    const frmGraph again;
    EXPECT_EQ(again.plot.range(), typed);
    EXPECT_EQ(limits(again), (std::vector<std::string>{"5", "25", "3", "45"}));
}

TEST_F(Graph, TheWholeCurveCanBeShownInTheManualRangeToo) {
    frmGraph graph;
    graph.plot.addCurve({1, 2, 3}, {40, 100, 60});
    graph.clickManualRange();
    graph.plot.userRange({1.5F, 2.5F, 50, 60});
    graph.plot.showAll();
    EXPECT_EQ(graph.plot.range(), (PlotRange{0, 4, 0, 105}));
    EXPECT_FALSE(graph.plot.autoRange());
}

TEST_F(Graph, TheManualLimitsFollowTheUsersZoomAndTheAutomaticOnesDoNot) {
    frmGraph graph;
    graph.plot.addCurve({1, 2, 3}, {40, 100, 60});
    graph.plot.userRange({1.5F, 2.5F, 50, 60});
    EXPECT_EQ(limits(graph), (std::vector<std::string>{"-10", "10", "-10", "100"}));
    EXPECT_EQ(modStats::graphXMax, 10);
    graph.clickManualRange();
    graph.plot.userRange({1, 2, 40, 70});
    EXPECT_EQ(limits(graph), (std::vector<std::string>{"1", "2", "40", "70"}));
    EXPECT_EQ(modStats::graphYMax, 70);
    graph.plot.showAll();
    EXPECT_EQ(limits(graph), (std::vector<std::string>{"0", "4", "0", "105"}));
}

TEST_F(Graph, ALimitTakesTheNumberOfItsTextAndABlankTextChangesNothing) {
    const std::vector<std::pair<std::string, float>> cases = {
        {"25", 25.0F}, {" 2,5 ", 2.5F}, {"-3.25", -3.25F}, {"abc", 0.0F}, {"12abc", 12.0F}};
    for (const auto &[text, value] : cases) {
        frmGraph graph;
        graph.clickManualRange();
        graph.leaveLimit(frmGraph::xMax, text);
        EXPECT_EQ(graph.plot.xMax(), value) << text;
        EXPECT_EQ(modStats::graphXMax, value) << text;
        graph.leaveLimit(frmGraph::xMax, "   ");
        EXPECT_EQ(graph.plot.xMax(), value) << text;
    }
}

TEST_F(Graph, CrossedAndEqualLimitsAreTakenAsTheyAre) {
    frmGraph graph;
    graph.clickManualRange();
    graph.leaveLimit(frmGraph::xMin, "50");
    graph.leaveLimit(frmGraph::xMax, "10");
    EXPECT_EQ(graph.plot.xMin(), 50);
    EXPECT_EQ(graph.plot.xMax(), 10);
}

TEST_F(Graph, ALimitBeyondSinglePrecisionIsAFailureAndChangesNothing) {
    frmGraph graph;
    graph.clickManualRange();
    const float before = graph.plot.yMax();
    EXPECT_EQ(failureNumber([&] { graph.leaveLimit(frmGraph::yMax, std::string(50, '9')); }), 6);
    EXPECT_EQ(graph.plot.yMax(), before);
}

TEST_F(Graph, AFailureOfALimitNamesItsBoxAndWhatStoodInIt) {
    frmGraph graph;
    const std::string typed(50, '9');
    const auto failure = failureOf([&] { graph.leaveLimit(frmGraph::yMax, typed); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->box(), "txtYMax");
    EXPECT_EQ(failure->description(),
              RuntimeFailure(Failure::overflow).description() +
                  "\r\n« Y max » attend un nombre d'au plus 38 chiffres ; il y avait « " + typed +
                  " ».");
}

TEST_F(Graph, ALimitThatIsNoNumberIsWrittenBackAsTheZeroItCountsAs) {
    frmGraph graph;
    int shown = 0;
    graph.changed = [&] { ++shown; };
    graph.leaveLimit(frmGraph::xMax, "abc");
    EXPECT_EQ(graph.txtLimit[frmGraph::xMax], "0");
    EXPECT_EQ(shown, 1);
    graph.leaveLimit(frmGraph::xMax, "2,5");
    EXPECT_EQ(graph.txtLimit[frmGraph::xMax], "2,5");
}

TEST_F(Graph, AnEmptyPlotKeepsItsRangeAndAFlatOneGetsSomeHeight) {
    frmGraph graph;
    const PlotRange before = graph.plot.range();
    graph.clickAutoRange();
    EXPECT_EQ(graph.plot.range(), before);
    graph.plot.addCurve({1, 2}, {0, 0});
    EXPECT_EQ(graph.plot.range(), (PlotRange{0, 3, 0, 1}));
}

} // namespace
} // namespace boulix
