// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// A draw as its file holds it: day, draw of the day, six numbers, the complementary one, two sums.
struct PlainDraw {
    double day = 0;
    std::array<std::int16_t, 10> fields{};
    bool operator==(const PlainDraw &) const = default;
};

/// A grid as its file holds it: six numbers and their sum.
using PlainGrid = std::array<std::int16_t, 7>;

// These read and list without a line of the program's own code for files.

/// The draws of a base file, whose header is not looked at.
std::vector<PlainDraw> drawsOnDisk(const std::string &fullName);
std::vector<PlainDraw> drawsInMemory();
/// The grids of a game file, whose header is not looked at.
std::vector<PlainGrid> gridsOnDisk(const std::string &fullName);
std::vector<PlainGrid> gridsInMemory();

} // namespace boulix::testing_support
