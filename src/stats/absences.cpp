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
    Runs() { reached_.fill(-2); } // before all draws
    /// The numbers of the masks stand in two and in three draws that follow each other.
    void note(std::uint64_t pairs, std::uint64_t triples) {
        pairs_ |= pairs;
        triples_ |= triples;
    }
    /// The run of number `p` reaches draw `i`, the latest so far: it goes on where it reached the
    /// draw before, otherwise it is a new one, `fresh` draws long.
    void extend(std::int16_t p, std::int32_t i, std::int32_t fresh) {
        const bool goesOn = reached_[at(p)] >= i - 1;
        length_[at(p)] = goesOn ? length_[at(p)] + 1 : fresh;
        reached_[at(p)] = i;
        longest_[at(p)] = maxOf(longest_[at(p)], length_[at(p)]);
    }
    /// The longest run of each number, at least 1.
    ByNumber longest() const {
        ByNumber longest = longest_;
        forEachNumber(allNumbers, [&](std::int16_t p) {
            const bool pair = (pairs_ & numberBit(p)) != 0;
            const bool triple = (triples_ & numberBit(p)) != 0;
            longest[at(p)] = maxOf(longest[at(p)], 1 + pair + triple);
        });
        return longest;
    }

  private:
    std::uint64_t pairs_ = 0;
    std::uint64_t triples_ = 0;
    ByNumber length_{};
    ByNumber reached_{};
    ByNumber longest_{};
};

/// The runs of draws of a regular base. Few numbers come out four times in a row: only those are
/// followed one by one.
void followRuns(Runs &runs, std::span<const dbComb> draws, std::int16_t withCompl) {
    std::uint64_t pairsBefore = 0;
    std::uint64_t triplesBefore = 0;
    for (std::size_t i = 1; i < draws.size(); ++i) {
        const lotoComb &comb = draws[i].comb();
        const lotoComb &before = draws[i - 1].comb();
        std::uint64_t pairs = comb.mask() & before.mask();
        if (withCompl == 1 && comb.compl_() == before.compl_())
            pairs |= numberBit(comb.compl_());
        const std::uint64_t triples = pairs & pairsBefore;
        runs.note(pairs, triples);
        forEachNumber(triples & triplesBefore, [&runs, i](std::int16_t p) {
            runs.extend(p, static_cast<std::int32_t>(i), 4);
        });
        pairsBefore = pairs;
        triplesBefore = triples;
    }
}

/// The runs of any draws: a number that stands twice in a draw counts twice.
void followAnyRuns(Runs &runs, std::span<const dbComb> draws, std::int16_t withCompl) {
    for (std::size_t i = 0; i < draws.size(); ++i) {
        const lotoComb &comb = draws[i].comb();
        checkNumbers(comb, withCompl);
        if (i == 0)
            continue;
        const auto position = static_cast<std::int32_t>(i);
        const lotoComb &before = draws[i - 1].comb();
        for (int k = 1; k <= lotoComb::size; ++k)
            if (before.isInside(comb.num(k), false))
                runs.extend(comb.num(k), position, 2);
        if (withCompl == 1 && comb.compl_() == before.compl_())
            runs.extend(comb.compl_(), position, 2);
    }
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

/// Calls `held` with the position of each draw that holds all the chosen numbers; the first of
/// `draws` stands at `first`.
template <class Held>
void forEachMatch(std::span<const dbComb> draws, std::uint64_t chosen, std::int16_t withCompl,
                  std::int32_t first, Held held) {
    std::int32_t i = first;
    for (const dbComb &draw : draws) {
        if (matches(draw.comb(), chosen, withCompl) >= std::popcount(chosen))
            held(i);
        ++i;
    }
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
    if (isIndexed(draws))
        followRuns(runs, draws, withCompl);
    else
        followAnyRuns(runs, draws, withCompl);
    storeByNumber(runs.longest());
}

void ComputePeriods(std::uint64_t chosen, std::int16_t withCompl, std::int32_t first,
                    std::int32_t last) {
    const std::span<const dbComb> draws = stretch(first, last);
    nStatPeriods = 0;
    std::int32_t before = first - 1; // the last draw that held the tuple
    const auto held = [&before](std::int32_t i) {
        addPeriod(i - before - 1);
        before = i;
    };
    if (isIndexed(draws))
        forEachDraw(gDbCombs->index().draws(first, last, chosen, withCompl == 1), held);
    else
        forEachMatch(draws, chosen, withCompl, first, held);
    if (!draws.empty())
        addPeriod(last - before);
}

} // namespace boulix::modStats
