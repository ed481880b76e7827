// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/orientedPoint.h"

#include <gtest/gtest.h>

#include <vector>

namespace boulix {
namespace {

struct Turn {
    std::int32_t direction;
    float x;
    float y;
};

TEST(OrientedPoint, StandsAtTheOriginWhenItIsMade) {
    const orientedPoint point;
    EXPECT_EQ(point.xRef(), 0.0F);
    EXPECT_EQ(point.yRef(), 0.0F);
}

TEST(OrientedPoint, TurnsWithTheDirectionOfTheSlip) {
    const std::vector<Turn> turns = {{0, 110, 30}, {1, 50, 90}, {2, 30, 50}, {3, 130, 70},
                                     {4, 0, 0},    {-1, 0, 0},  {100, 0, 0}};
    orientedPoint point;
    point.setRefPoint(30, 50);
    for (const Turn &turn : turns) {
        const orientedPoint turned = point.getRelPoint(turn.direction);
        EXPECT_EQ(turned.xRef(), turn.x) << turn.direction;
        EXPECT_EQ(turned.yRef(), turn.y) << turn.direction;
    }
    EXPECT_EQ(point.xRef(), 30.0F) << "the point itself stays";
    EXPECT_EQ(point.yRef(), 50.0F);
}

TEST(OrientedPoint, ASidewaysTurnAndItsOppositeDifferByTheLengthAndTheHeight) {
    // Left uses 160, right uses 120: the two are no half turn of each other.
    orientedPoint corner;
    EXPECT_EQ(corner.getRelPoint(0).xRef(), 160.0F);
    EXPECT_EQ(corner.getRelPoint(0).yRef(), 0.0F);
    EXPECT_EQ(corner.getRelPoint(1).xRef(), 0.0F);
    EXPECT_EQ(corner.getRelPoint(1).yRef(), 120.0F);
}

TEST(OrientedPoint, TranslationAdds) {
    orientedPoint point;
    point.setRefPoint(1.5F, 7);
    point.translate(-2, 0.25F);
    point.translate(1, 1);
    EXPECT_EQ(point.xRef(), 0.5F);
    EXPECT_EQ(point.yRef(), 8.25F);
}

} // namespace
} // namespace boulix
