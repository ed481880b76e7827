// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/modStats.h"

#include "core/globals.h"
#include "core/numberMask.h"
#include "draws/dbCombs.h"
#include "sill/selector.h"
#include "stats/statStores.h"
#include "stats/stretch.h"

#include <array>

namespace boulix::modStats {

namespace {

/// For each couple a < b, the mask of the third numbers above b that were drawn with it. So the
/// scan of the draws works on a few kilobytes instead of on the whole table.
class DrawnTriplets {
  public:
    void add(std::uint64_t numbers) {
        while (numbers != 0) {
            auto &ofFirst = thirds_[take(numbers)];
            for (std::uint64_t rest = numbers; rest != 0;) {
                std::uint64_t &third = ofFirst[take(rest)];
                if (rest == 0)
                    break;
                third |= rest;
            }
        }
    }
    std::uint64_t thirds(std::int16_t a, std::int16_t b) const {
        return thirds_[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)];
    }

  private:
    /// Takes the lowest number out of the mask.
    static std::size_t take(std::uint64_t &numbers) {
        const auto lowest = static_cast<std::size_t>(std::countr_zero(numbers));
        numbers &= numbers - 1;
        return lowest;
    }

    std::array<std::array<std::uint64_t, lastNumber + 1>, lastNumber + 1> thirds_{};
};

/// Flags the rows of the couple `a`, `b`, which stand together in the table.
void flagCouple(std::int16_t a, std::int16_t b, std::uint64_t thirds) {
    Triplet *triplet = &tripletTable(row(a, b, static_cast<std::int16_t>(b + 1)));
    for (std::int32_t c = b + 1; c <= lastNumber; ++c, ++triplet)
        triplet->flag = ((thirds >> c) & 1) != 0 ? -1 : 0;
}

} // namespace

void ComputeTriplets(std::int16_t withCompl) {
    DrawnTriplets drawn;
    for (const dbComb &draw : *gDbCombs) {
        checkNumbers(draw.comb(), withCompl);
        drawn.add(presence(draw.comb(), withCompl));
    }
    for (std::int16_t a = 1; a <= lastNumber - 2; ++a)
        for (auto b = static_cast<std::int16_t>(a + 1); b <= lastNumber - 1; ++b)
            flagCouple(a, b, drawn.thirds(a, b));
}

void FilterTriplets(const selector &chooser) {
    const std::int16_t n = chooser.nSelectedNbr();
    std::uint64_t selected = 0;
    for (std::int16_t i = 1; i <= n; ++i)
        selected |= numberBit(chooser.selectedNbr(i));
    for (Triplet &triplet : tripletTable) {
        std::uint64_t marked = 0;
        for (const std::int16_t number : triplet.num)
            marked += (selected >> number) & 1;
        triplet.flag = static_cast<std::int16_t>(marked) < n ? std::int16_t{-1} : triplet.flag;
    }
}

} // namespace boulix::modStats
