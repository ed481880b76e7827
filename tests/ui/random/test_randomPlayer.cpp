// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/randomPlayer.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace boulix {
namespace {

/// A number that whoever starts the test may give: BOULIX_PLAYER_SEED, BOULIX_PLAYER_STEPS.
unsigned given(const char *name, unsigned otherwise) {
    const char *value = std::getenv(name);
    return value ? static_cast<unsigned>(std::stoul(value)) : otherwise;
}

class RandomPlayerTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(RandomPlayerTest, WhateverIsDoneNothingBreaks) {
    testing_support::RandomPlayer player(given("BOULIX_PLAYER_SEED", 1) + GetParam());
    player.play(static_cast<int>(given("BOULIX_PLAYER_STEPS", 750)));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPlayerTest, ::testing::Range(0U, 4U));

} // namespace
} // namespace boulix
