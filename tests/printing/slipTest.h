// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "printing/slip.h"
#include "support/boulixTest.h"

#include <array>
#include <cmath>
#include <vector>

namespace boulix::testing_support {

/// A cross by the corners where its first line begins and ends.
struct Cross {
    double x1;
    double y1;
    double x2;
    double y2;
};

/// The crosses of a recording; two lines that do not cross each other fail the test.
inline std::vector<Cross> crossesOf(const Recording &recording) {
    const std::vector<Drawn> lines = recording.ofKind(Drawn::line);
    std::vector<Cross> crosses;
    EXPECT_EQ(lines.size() % 2, 0U);
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        const Drawn &a = lines[i];
        const Drawn &b = lines[i + 1];
        EXPECT_EQ((std::array{b.x1, b.y1, b.x2, b.y2}), (std::array{a.x2, a.y1, a.x1, a.y2}))
            << "the second line is the other diagonal";
        crosses.push_back({a.x1, a.y1, a.x2, a.y2});
    }
    return crosses;
}

/// Whether two crosses are the same to the last digit of single precision.
inline bool same(const Cross &a, const Cross &b) {
    constexpr double lastDigit = 2e-5; // of numbers up to 350
    return std::abs(a.x1 - b.x1) < lastDigit && std::abs(a.y1 - b.y1) < lastDigit &&
           std::abs(a.x2 - b.x2) < lastDigit && std::abs(a.y2 - b.y2) < lastDigit;
}

inline std::ostream &operator<<(std::ostream &stream, const Cross &cross) {
    return stream << "(" << cross.x1 << ", " << cross.y1 << ") to (" << cross.x2 << ", " << cross.y2
                  << ")";
}

/// Compares all crosses, in their order.
inline void expectCrosses(const std::vector<Cross> &seen, const std::vector<Cross> &expected) {
    ASSERT_EQ(seen.size(), expected.size());
    for (std::size_t i = 0; i < seen.size(); ++i)
        EXPECT_TRUE(same(seen[i], expected[i]))
            << "cross " << i + 1 << ": " << seen[i] << " instead of " << expected[i];
}

/// The box of a number on the slip, worked out the long way: counted along rows and columns.
inline Cross plainBox(int position, int number) {
    double left = 1 + 0.5;
    for (int g = 1; g < position; ++g)
        left += 19;
    double top = 1 + 1;
    int rest = number;
    for (; rest >= 10; rest -= 10)
        left += 3.8;
    for (; rest >= 1; --rest)
        top += 5;
    return {left, top, left + 2.8, top + 4};
}

/// The same box of a slip that was turned and shifted.
inline Cross plainTurned(const Cross &box, int direction, double dx, double dy) {
    const auto turn = [&](double x, double y) {
        const std::array<std::array<double, 2>, 4> points = {
            {{160 - y, x}, {y, 120 - x}, {x, y}, {160 - x, 120 - y}}};
        return points.at(static_cast<std::size_t>(direction));
    };
    const auto p1 = turn(box.x1, box.y1);
    const auto p2 = turn(box.x2, box.y2);
    return {p1[0] + dx, p1[1] + dy, p2[0] + dx, p2[1] + dy};
}

} // namespace boulix::testing_support
