// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The search line over a large base, against a look at every cell of every draw.

#include "draws/drawQuery.h"

#include "draws/dbCombs.h"
#include "support/quietProgram.h"
#include "support/ratio.h"

#include <random>
#include <string>
#include <vector>

namespace boulix {
namespace {

using bench_support::measureRatio;
using bench_support::processorSecondsOf;
using bench_support::QuietDesktop;

constexpr int manyDraws = 200'000;

/// A base of random draws, two a day.
class Base {
  public:
    Base() {
        std::mt19937 random(49);
        for (int i = 0; i < manyDraws; ++i)
            gDbCombs->Add(10'000 + i / 2, static_cast<std::int16_t>(i % 2 + 1), anyDraw(random),
                          false, "");
    }

  private:
    static lotoComb anyDraw(std::mt19937 &random) {
        lotoComb comb;
        std::uint64_t taken = 0;
        for (int i = 1; i <= lotoComb::size + 1; ++i) {
            std::int16_t n = 0;
            do
                n = static_cast<std::int16_t>(random() % 49 + 1);
            while ((taken & numberBit(n)) != 0);
            taken |= numberBit(n);
            if (i <= lotoComb::size)
                comb.num(i, n);
            else
                comb.compl_(n);
        }
        return comb;
    }

    QuietDesktop desktop_;
    bench_support::QuietProgram program_{desktop_};
};

/// Every draw that holds all of `numbers`, found cell by cell.
std::vector<std::int32_t> plainFind(const std::vector<std::int16_t> &numbers) {
    std::vector<std::int32_t> found;
    for (std::int32_t i = 1; i <= gDbCombs->Count(); ++i) {
        const lotoComb &comb = std::as_const(*gDbCombs).Item(i).comb();
        bool all = true;
        for (const std::int16_t n : numbers) {
            bool held = comb.compl_() == n;
            for (int k = 1; k <= lotoComb::size; ++k)
                held = held || comb.num(k) == n;
            all = all && held;
        }
        if (all)
            found.push_back(i);
    }
    return found;
}

void SearchByNumbers(benchmark::State &state) {
    const Base base;
    benchmark::DoNotOptimize(gDbCombs->index()); // made by the first letter that is typed
    measureRatio(
        state, 0.1,
        [] { benchmark::DoNotOptimize(findDraws(*gDbCombs, parseDrawQuery("7 13 22"))); },
        [] {
            benchmark::DoNotOptimize(plainFind({7, 13, 22}));
        },
        processorSecondsOf);
}

void SearchByMonth(benchmark::State &state) {
    const Base base;
    measureRatio(
        state, 3, [] { benchmark::DoNotOptimize(findDraws(*gDbCombs, parseDrawQuery("03/2003"))); },
        [] {
            benchmark::DoNotOptimize(plainFind({7, 13, 22}));
        },
        processorSecondsOf);
}

BENCHMARK(SearchByNumbers)->UseManualTime()->Iterations(25)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchByMonth)->UseManualTime()->Iterations(25)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace boulix
