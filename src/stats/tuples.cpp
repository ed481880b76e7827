// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/tuples.h"

#include "core/numberMask.h"
#include "stats/stretch.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace boulix::modStats {

namespace {

int lengthOf(const Tuple &tuple) {
    if (tuple.c != 0)
        return 3;
    return tuple.b != 0 ? 2 : 1;
}

/// What a draw must share with the numbers of all tuples before one of them can be in it.
struct Sieve {
    std::uint64_t numbers = 0;
    int least = 3;

    explicit Sieve(const std::vector<Tuple> &tuples) {
        for (const Tuple &tuple : tuples) {
            const std::uint64_t own = maskOf(std::array{tuple.a, tuple.b, tuple.c});
            // Equal numbers and those outside 1 to 49 do not all show in the mask: no draw may
            // be held back from such a tuple.
            const bool shows = std::popcount(own) == lengthOf(tuple);
            least = std::min(least, shows ? lengthOf(tuple) : 0);
            numbers |= own;
        }
    }
};

} // namespace

bool holds(const lotoComb &comb, const Tuple &tuple) {
    const int length = lengthOf(tuple);
    const auto isFirstOrSecond = [&](std::int16_t n) {
        return n == tuple.a || (length > 1 && n == tuple.b);
    };
    int m = isFirstOrSecond(comb.compl_()) ? 1 : 0;
    for (int i = 1; i <= lotoComb::size; ++i)
        m += isFirstOrSecond(comb.num(i)) || (length > 2 && comb.num(i) == tuple.c);
    return length == 1 ? m > 0 : m == length;
}

std::vector<std::int32_t> drawsSince(std::int32_t draw, const std::vector<Tuple> &tuples) {
    const std::span<const dbComb> before = stretch(1, draw - 1);
    const auto count = static_cast<std::int32_t>(before.size());
    std::vector<std::int32_t> found(tuples.size(), count);
    std::vector<std::size_t> pending(tuples.size());
    std::iota(pending.begin(), pending.end(), std::size_t{0});
    const Sieve sieve(tuples);
    for (std::int32_t elapsed = 1; elapsed <= count && !pending.empty(); ++elapsed) {
        const lotoComb &comb = before[static_cast<std::size_t>(count - elapsed)].comb();
        if (matches(comb, sieve.numbers, 1) < sieve.least)
            continue;
        std::erase_if(pending, [&](std::size_t k) {
            if (!holds(comb, tuples[k]))
                return false;
            found[k] = elapsed;
            return true;
        });
    }
    return found;
}

} // namespace boulix::modStats
