// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/upDown.h"

#include <gtest/gtest.h>

namespace boulix {
namespace {

class UpDown : public ::testing::Test {
  protected:
    UpDown() {
        control.range(1, 5);
        control.changed = [this] { ++changes; };
    }
    upDown control;
    int changes = 0;
};

TEST_F(UpDown, ANewRangeBringsTheValueInside) {
    EXPECT_EQ(control.value(), 1); // it began at 0
    control.set(5);
    control.range(1, 3);
    EXPECT_EQ(control.value(), 3);
    EXPECT_EQ(control.min(), 1);
    EXPECT_EQ(control.max(), 3);
    EXPECT_EQ(changes, 2);
}

TEST_F(UpDown, StaysWithinItsRange) {
    control.set(99);
    EXPECT_EQ(control.value(), 5);
    control.step(1);
    EXPECT_EQ(control.value(), 5);
    control.set(-99);
    EXPECT_EQ(control.value(), 1);
    control.step(-1);
    EXPECT_EQ(control.value(), 1);
    control.step(1);
    EXPECT_EQ(control.value(), 2);
}

TEST_F(UpDown, TellsOnlyANewValue) {
    control.set(1);
    EXPECT_EQ(changes, 0);
    control.set(2);
    control.set(2);
    EXPECT_EQ(changes, 1);
}

TEST_F(UpDown, ARangeThatEndsBeforeItBeginsKeepsTheValueAndRefusesEveryStep) {
    control.set(4);
    control.range(1, 0);
    EXPECT_EQ(control.value(), 4);
    control.step(-1);
    control.set(1);
    EXPECT_EQ(control.value(), 4);
}

} // namespace
} // namespace boulix
