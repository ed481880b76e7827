// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The stretch of the curves that is in sight, as the keys change it.

#include "stats/plotPane.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

class PlotKeys : public ::testing::Test {
  protected:
    PlotKeys() {
        pane.userRange({0, 100, 10, 30});
        pane.moved = [this] { ++moves; };
    }
    PlotPane pane;
    int moves = 0;
};

TEST_F(PlotKeys, AZoomKeepsTheMiddle) {
    pane.zoom(0.5);
    EXPECT_EQ(pane.range(), (PlotRange{25, 75, 15, 25}));
    pane.zoom(2);
    EXPECT_EQ(pane.range(), (PlotRange{0, 100, 10, 30}));
    EXPECT_EQ(moves, 2);
}

TEST_F(PlotKeys, AMoveGoesByAPartOfWhatIsInSight) {
    pane.move(0.1, 0);
    EXPECT_EQ(pane.range(), (PlotRange{10, 110, 10, 30}));
    pane.move(0, -0.5);
    EXPECT_EQ(pane.range(), (PlotRange{10, 110, 0, 20}));
    EXPECT_EQ(moves, 2);
}

TEST_F(PlotKeys, NoKeyLeadsWhereNothingCanBeSeen) {
    for (int presses = 0; presses < 1000; ++presses)
        pane.zoom(0.8);
    EXPECT_LT(pane.xMin(), pane.xMax());
    EXPECT_LT(pane.yMin(), pane.yMax());
    for (int presses = 0; presses < 1000; ++presses)
        pane.zoom(1.25);
    EXPECT_LT(pane.xMax(), PlotPane::farthest);
    for (int presses = 0; presses < 1000; ++presses)
        pane.move(0.1, 0.1);
    EXPECT_LT(pane.xMax(), PlotPane::farthest);
    EXPECT_LT(pane.yMax(), PlotPane::farthest);
    EXPECT_LT(pane.xMin(), pane.xMax());
}

} // namespace
} // namespace boulix
