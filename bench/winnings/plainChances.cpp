// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/plainChances.h"

#include "games/game.h"

#include <algorithm>

namespace boulix::bench_support {

PlainCase plainCase(const game &grids, const std::array<int, 6> &draw, int complementary) {
    PlainCase played{draw, complementary, 0, {}};
    for (const gameComb &grid : grids) {
        int matched = 0;
        int withComplementary = 0;
        for (const int n : grid.numbers()) {
            if (std::find(draw.begin(), draw.end(), n) != draw.end())
                ++matched;
            if (n == complementary)
                withComplementary = 1;
        }
        if (matched == 0)
            continue;
        const int rank = 2 * (matched - 1) + 1 + withComplementary;
        ++played.wins[static_cast<std::size_t>(rank)];
        played.best = std::max(played.best, rank);
    }
    return played;
}

void forEachPlainCase(const game &grids, int numbers,
                      const std::function<void(const PlainCase &)> &use) {
    for (int a = 1; a <= numbers; ++a)
        for (int b = a + 1; b <= numbers; ++b)
            for (int c = b + 1; c <= numbers; ++c)
                for (int d = c + 1; d <= numbers; ++d)
                    for (int e = d + 1; e <= numbers; ++e)
                        for (int f = e + 1; f <= numbers; ++f)
                            for (int complementary = 1; complementary <= numbers; ++complementary) {
                                const std::array<int, 6> draw = {a, b, c, d, e, f};
                                if (std::find(draw.begin(), draw.end(), complementary) ==
                                    draw.end())
                                    use(plainCase(grids, draw, complementary));
                            }
}

std::int64_t plainWin(const PlainCase &played, const RankAmounts &prizes) {
    std::int64_t win = 0;
    for (std::size_t rank = 1; rank < prizes.size(); ++rank)
        win += played.wins[rank] * prizes[rank];
    return win;
}

} // namespace boulix::bench_support
