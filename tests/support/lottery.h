// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "draws/lotoComb.h"
#include "support/scriptedDesktop.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

namespace boulix::testing_support {

/// The numbers of a draw as a test writes them down: six and the complementary one.
using SevenNumbers = std::array<std::int16_t, 7>;

lotoComb lotoCombOf(const SevenNumbers &numbers);

/// Appends a draw with these numbers to the base in memory, a day after the last one; the first
/// is on 1 January 2000.
void addDraw(const SevenNumbers &numbers);

/// Seven different numbers of 1 to `last`, in random order.
SevenNumbers randomDraw(std::mt19937 &random, std::int16_t last = 49);
/// Appends `count` such draws.
void addRandomDraws(int count, std::mt19937 &random, std::int16_t last = 49);

/// Imports a file of the operator into the base of `folder`, which is empty; false when it fails.
bool importHistory(ScriptedDesktop &desktop, const std::string &folder,
                   const std::filesystem::path &file);

} // namespace boulix::testing_support

namespace boulix {
using testing_support::addDraw;
using testing_support::addRandomDraws;
using testing_support::importHistory;
using testing_support::lotoCombOf;
using testing_support::randomDraw;
using testing_support::SevenNumbers;
} // namespace boulix
