// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/baseMark.h"

#include "draws/dbCombs.h"

#include <bit>

namespace boulix {

namespace {

/// The checksum of the first `count` draws (FNV-1a, eight bytes at a time).
std::uint64_t sumOf(const dbCombs &base, std::int32_t count) {
    std::uint64_t sum = 0xcbf29ce484222325;
    const auto take = [&sum](std::uint64_t value) { sum = (sum ^ value) * 0x100000001b3; };
    for (std::int32_t i = 1; i <= count; ++i) {
        const dbComb &draw = base.Item(i);
        take(std::bit_cast<std::uint64_t>(draw.day()));
        take(static_cast<std::uint16_t>(draw.id()));
        for (int k = 1; k <= lotoComb::size; ++k)
            take(static_cast<std::uint16_t>(draw.comb().num(k)));
        take(static_cast<std::uint16_t>(draw.comb().compl_()));
    }
    return sum;
}

} // namespace

BaseMark::BaseMark(const dbCombs &base) : count_(base.Count()), sum_(sumOf(base, count_)) {}

bool BaseMark::stillIn(const dbCombs &base) const {
    return base.Count() >= count_ && sumOf(base, count_) == sum_;
}

} // namespace boulix
