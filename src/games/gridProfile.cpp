// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gridProfile.h"

#include "eliminators/eliminator.h"

#include <algorithm>
#include <bit>

namespace boulix::gridProfile {

namespace {

constexpr int bitsPerField = 4;

constexpr std::uint64_t valueInField(int field, std::uint64_t value) {
    return value << (bitsPerField * field);
}

constexpr std::uint64_t valueInAll(Fields fields, std::uint64_t value) {
    std::uint64_t word = 0;
    for (int i = 0; i < fields.count; ++i)
        word |= valueInField(fields.first + i, value);
    return word;
}

/// The longest run of ones in a number of five bits.
constexpr std::array<std::uint8_t, 32> makeRuns() {
    std::array<std::uint8_t, 32> runs{};
    for (std::size_t bits = 0; bits < runs.size(); ++bits) {
        std::uint8_t length = 0;
        for (std::size_t rest = bits; rest != 0; rest &= rest >> 1)
            ++length;
        runs[bits] = length;
    }
    return runs;
}
constexpr auto runs = makeRuns();

/// A bit for each of the five steps of the grid that goes up by exactly 1.
std::size_t unitSteps(const gameComb::Numbers &numbers) {
    std::size_t steps = 0;
    for (std::size_t i = 0; i + 1 < numbers.size(); ++i)
        steps |= std::size_t{numbers[i + 1] - numbers[i] == 1} << i;
    return steps;
}

} // namespace

Maker::Maker(const eliminator *list) {
    for (int n = 1; n < static_cast<int>(words_.size()); ++n) {
        std::uint64_t word = valueInField(tens.first + n / 10, 1);
        word += valueInField(eights.first + n / 8, 1);
        word += valueInField(n % 2 == 0 ? even.first : odd.first, 1);
        if (list != nullptr && list->eliminNbr(n) != eliminator::off)
            word += valueInField(listed.first, 1);
        words_[static_cast<std::size_t>(n)] = word;
    }
}

std::uint64_t Maker::operator()(const gameComb &grid) const {
    std::uint64_t profile = 0;
    for (const std::int16_t n : grid.numbers()) {
        if (n < 1 || n >= static_cast<int>(words_.size()))
            return none;
        profile += words_[static_cast<std::size_t>(n)];
    }
    return profile + valueInField(longestRun.first, runs[unitSteps(grid.numbers())]);
}

Reaches::Reaches(Fields fields, int limit)
    : fields_(valueInAll(fields, 0xF)),
      complement_(valueInAll(fields, static_cast<std::uint64_t>(8 - std::clamp(limit, 0, 8)))),
      highBits_(valueInAll(fields, 8)) {}

} // namespace boulix::gridProfile
