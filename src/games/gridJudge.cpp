// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gridJudge.h"

#include "eliminators/eliminators.h"

#include <algorithm>
#include <limits>

namespace boulix {

namespace {

// The fields of a profile.
constexpr int tens = 0;       // five: numbers n with the same n / 10
constexpr int eights = 5;     // seven: numbers n with the same n / 8
constexpr int evenField = 12; // even numbers
constexpr int oddField = 13;  // odd numbers
constexpr int listed = 14;    // numbers that are on the list
constexpr int outside = 15;   // numbers outside 1 to 49

constexpr std::uint64_t inField(int field, int value) {
    return static_cast<std::uint64_t>(value) << (4 * field);
}

/// The longest run of ones.
int longestRun(std::size_t bits) {
    int length = 0;
    for (; bits != 0; bits &= bits >> 1)
        ++length;
    return length;
}

/// A bit for each of the five steps of a grid that goes up by exactly 1.
std::size_t unitSteps(const gameComb::Numbers &n) {
    std::size_t steps = std::size_t{n[1] - n[0] == 1};
    steps = 2 * steps + std::size_t{n[2] - n[1] == 1};
    steps = 2 * steps + std::size_t{n[3] - n[2] == 1};
    steps = 2 * steps + std::size_t{n[4] - n[3] == 1};
    return 2 * steps + std::size_t{n[5] - n[4] == 1};
}

} // namespace

GridJudge::GridJudge(const eliminators &rules)
    : words_(std::size_t{1} << 16U, inField(outside, 1)),
      lowSum_(std::numeric_limits<std::int32_t>::min()),
      highSum_(std::numeric_limits<std::int32_t>::max()) {
    const auto whenOn = [&rules](int rule, const auto &use) {
        if (rules.isOn(rule))
            use(rules.Item(rule).Value());
    };
    whenOn(1, [this](int value) { limit(tens, 5, value); });
    whenOn(2, [this](int value) { limit(eights, 7, value); });
    whenOn(3, [this](int value) { lowSum_ = value; });
    whenOn(4, [this](int value) { highSum_ = value; });
    whenOn(5, [this](int value) { limit(evenField, 1, value); });
    whenOn(6, [this](int value) { limit(oddField, 1, value); });
    whenOn(7, [this](int value) { limitRuns(value); });
    whenOn(8, [this](int) { limit(listed, 1, 1); });

    const bool withList = rules.isOn(eliminators::listRule);
    for (int n = 1; n <= eliminator::lastNumber; ++n) {
        std::uint64_t word = inField(tens + n / 10, 1) + inField(eights + n / 8, 1) +
                             inField(n % 2 == 0 ? evenField : oddField, 1);
        if (withList && rules.Item(eliminators::listRule).eliminNbr(n) != eliminator::off)
            word += inField(listed, 1);
        words_[static_cast<std::size_t>(n)] = word;
    }
}

void GridJudge::limit(int firstField, int count, int limit) {
    for (int field = firstField; field < firstField + count; ++field) {
        complement_ += inField(field, 8 - std::clamp(limit, 0, 8));
        limits_ += inField(field, 8);
    }
}

/// A grid without a run is never condemned, whatever the limit.
void GridJudge::limitRuns(int limit) {
    for (std::size_t steps = 0; steps < condemnedSteps_.size(); ++steps)
        condemnedSteps_[steps] = static_cast<std::uint8_t>(longestRun(steps) >= std::max(limit, 1));
}

bool GridJudge::judge(const gameComb *grids, std::size_t count, std::uint8_t *condemned) const {
    const std::uint64_t complement = complement_;
    const std::uint64_t limits = limits_;
    const std::int32_t lowSum = lowSum_;
    const std::int32_t highSum = highSum_;
    std::uint64_t seen = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t word = profile(grids[i].numbers());
        const std::int32_t sum = grids[i].sum();
        seen |= word;
        // No branches: what becomes of a grid cannot be foretold.
        const unsigned reached = static_cast<unsigned>(((word + complement) & limits) != 0);
        const unsigned run = condemnedSteps_[unitSteps(grids[i].numbers())];
        const unsigned low = static_cast<unsigned>(sum <= lowSum);
        const unsigned high = static_cast<unsigned>(sum >= highSum);
        condemned[i] = static_cast<std::uint8_t>(reached | run | low | high);
    }
    return (seen & unknown) == 0;
}

} // namespace boulix
