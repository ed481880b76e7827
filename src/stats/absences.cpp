// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/modStats.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/numberMask.h"
#include "draws/dbCombs.h"
#include "stats/statStores.h"
#include "stats/stretch.h"

#include <iterator>

namespace boulix::modStats {

using modMaths::maxOf;

namespace {

std::size_t at(std::int16_t number) {
    return static_cast<std::size_t>(number);
}

/// The runs of draws in which a number comes out again and again.
class Runs {
  public:
    Runs() {
        run_.fill(1);
        longest_.fill(1);
    }

    /// Number `p` stands in draw `i` and in the one before; `i` counts from 1 and never falls.
    void extend(std::int16_t p, std::int32_t i) {
        const bool goesOn = seen_[at(p)] >= i - 1;
        run_[at(p)] = goesOn ? run_[at(p)] + 1 : 2;
        seen_[at(p)] = i;
        longest_[at(p)] = maxOf(longest_[at(p)], run_[at(p)]);
    }
    const ByNumber &longest() const { return longest_; }

  private:
    ByNumber run_{};
    ByNumber seen_{}; // the draw that extended the run last
    ByNumber longest_{};
};

/// Extends the runs of the numbers that stand among the six of both draws.
void extendCommon(Runs &runs, const lotoComb &comb, const lotoComb &before, std::int32_t i) {
    const std::uint64_t common = comb.mask() & before.mask();
    if (comb.isWhole()) {
        forEachNumber(common, [&runs, i](std::int16_t p) { runs.extend(p, i); });
        return;
    }
    for (int k = 1; k <= lotoComb::size; ++k)
        if ((numberBit(comb.num(k)) & common) != 0)
            runs.extend(comb.num(k), i);
}

/// Writes a period of absence into `statPeriods`; one without a draw is none.
void addPeriod(std::int32_t length) {
    if (length == 0)
        return;
    const auto place = static_cast<std::size_t>(++nStatPeriods);
    if (statPeriods.size() <= place)
        statPeriods.resize(place + 1);
    statPeriods[place] = length;
}

} // namespace

void ComputeDelays(std::int16_t withCompl, std::int32_t first, std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    ByNumber delays{};
    std::uint64_t missing = allNumbers;
    std::int32_t delay = gDbCombs->Count() - last;
    for (auto draw = draws.rbegin(); draw != draws.rend() && missing != 0; ++draw) {
        ++delay;
        checkNumbers(draw->comb(), withCompl);
        const std::uint64_t found = presence(draw->comb(), withCompl) & missing;
        forEachNumber(found, [&](std::int16_t p) { delays[at(p)] = delay; });
        missing &= ~found;
    }
    storeByNumber(delays);
}

void ComputeCurrentRuns(std::int16_t withCompl, std::int32_t first, std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    const lotoComb &newest = gDbCombs->Item(last).comb();
    checkNumbers(newest, 1);
    ByNumber runs{};
    std::uint64_t running = presence(newest, 1);
    forEachNumber(running, [&](std::int16_t p) { runs[at(p)] = 1; });
    for (auto draw = draws.rbegin(); draw != draws.rend() && running != 0; ++draw) {
        if (draw == draws.rbegin())
            continue;
        checkNumbers(draw->comb(), withCompl);
        running &= presence(draw->comb(), withCompl);
        forEachNumber(running, [&](std::int16_t p) { ++runs[at(p)]; });
    }
    storeByNumber(runs);
}

void ComputeMaxAbsence(std::int16_t withCompl, std::int32_t first, std::int32_t last) {
    ByNumber longest{};
    ByNumber lastSeen{}; // 0 is before all draws
    std::int32_t i = 0;
    const auto comesOut = [&](std::int16_t p) {
        longest[at(p)] = maxOf(longest[at(p)], i - lastSeen[at(p)] - 1);
        lastSeen[at(p)] = i;
    };
    for (const dbComb &draw : stretch(first, last)) {
        ++i;
        const lotoComb &comb = draw.comb();
        checkNumbers(comb, withCompl);
        for (int k = 1; k <= lotoComb::size; ++k)
            comesOut(comb.num(k));
        if (withCompl == 1)
            comesOut(comb.compl_());
    }
    storeByNumber(longest);
}

void ComputeMaxRun(std::int16_t withCompl, std::int32_t first, std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    Runs runs;
    for (std::size_t i = 0; i < draws.size(); ++i) {
        const lotoComb &comb = draws[i].comb();
        checkNumbers(comb, withCompl);
        if (i == 0)
            continue;
        const lotoComb &before = draws[i - 1].comb();
        extendCommon(runs, comb, before, static_cast<std::int32_t>(i));
        if (withCompl == 1 && comb.compl_() == before.compl_())
            runs.extend(comb.compl_(), static_cast<std::int32_t>(i));
    }
    storeByNumber(runs.longest());
}

void ComputePeriods(std::uint64_t chosen, std::int16_t withCompl, std::int32_t first,
                    std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    const int n = std::popcount(chosen);
    nStatPeriods = 0;
    std::int32_t length = 0;
    for (const dbComb &draw : draws) {
        ++length;
        if (matches(draw.comb(), chosen, withCompl) < n)
            continue;
        addPeriod(length - 1);
        length = 0;
    }
    addPeriod(length);
}

} // namespace boulix::modStats
