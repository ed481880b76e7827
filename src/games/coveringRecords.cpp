// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/coveringRecords.h"

#include <array>

namespace boulix::covering {

namespace {

constexpr int fewestPoints = 7;
constexpr int mostPoints = 25;

/// By the number of points. They are shown beside what was found and have no part in the search.
struct RecordLine {
    int blockSize;
    int strength;
    std::array<std::int64_t, mostPoints - fewestPoints + 1> records;
};

/// The La Jolla Covering Repository in March 2026.
constexpr std::array<RecordLine, 6> lines = {{
    {4, 3, {12, 14, 25, 30, 47, 57, 78, 91, 124, 140, 183, 207, 258, 285, 352, 385, 466, 510, 600}},
    {5, 3, {5, 8, 12, 17, 20, 29, 34, 43, 55, 65, 68, 94, 108, 133, 151, 172, 187, 231, 256}},
    {5,
     4,
     {9, 20, 30, 51, 66, 113, 157, 229, 294, 404, 491, 664, 839, 1063, 1246, 1573, 1771, 2237,
      2614}},
    {6, 3, {4, 4, 7, 10, 11, 15, 21, 25, 31, 38, 44, 48, 60, 71, 77, 77, 104, 116, 130}},
    {6, 4, {5, 7, 12, 20, 32, 41, 66, 80, 117, 152, 188, 236, 325, 382, 484, 580, 716, 784, 992}},
    {6,
     5,
     {6, 12, 30, 50, 100, 132, 245, 371, 578, 808, 1202, 1530, 2167, 2800, 3863, 4659, 6156, 7084,
      9321}},
}};

} // namespace

std::optional<std::int64_t> knownRecord(const CoveringDesign &design) {
    if (design.drawn != design.strength || design.points < fewestPoints ||
        design.points > mostPoints)
        return std::nullopt;
    for (const RecordLine &line : lines)
        if (line.blockSize == design.blockSize && line.strength == design.strength)
            return line.records[static_cast<std::size_t>(design.points - fewestPoints)];
    return std::nullopt;
}

} // namespace boulix::covering
