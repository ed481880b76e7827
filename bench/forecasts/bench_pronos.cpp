// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "support/quietProgram.h"
#include "support/ratio.h"

#include <array>
#include <random>

namespace boulix {
namespace {

using bench_support::measureRatio;

constexpr int historyDraws = 4858; // as many as the operator ever published
constexpr std::int16_t longSpan = 1000;

/// A base of random draws.
class Workplace {
  public:
    Workplace() : program_(desktop_) {
        for (int i = 0; i < historyDraws; ++i) {
            lotoComb comb;
            for (int k = 1; k <= lotoComb::size; ++k)
                comb.num(k, static_cast<std::int16_t>(1 + random_() % 49));
            comb.compl_(static_cast<std::int16_t>(1 + random_() % 49));
            gDbCombs->Add(i, 1, comb, false, "");
        }
    }

  private:
    bench_support::QuietDesktop desktop_;
    bench_support::QuietProgram program_;
    std::mt19937 random_{20260101};
};

pronos coupleRule(std::int16_t n) {
    pronos rule;
    rule.pronoType(static_cast<std::int32_t>(PronoType::absentCouple));
    rule.n(n);
    rule.nPoint(1);
    rule.baseTir(historyDraws);
    return rule;
}

bool isOut(std::int16_t a, std::int16_t b, std::int16_t n) {
    for (int at = historyDraws - n; at <= historyDraws; ++at) {
        const lotoComb &draw = gDbCombs->Item(at).comb();
        if (draw.isInside(a, true) && draw.isInside(b, true))
            return true;
    }
    return false;
}

/// The search by couples as it is defined.
int literalSearch(std::int16_t n) {
    std::array<bool, 50> marked{};
    for (std::int16_t a = 1; a <= 49; ++a)
        for (auto b = static_cast<std::int16_t>(a + 1); b <= 49; ++b)
            if (isOut(a, b, n))
                marked[static_cast<std::size_t>(a)] = marked[static_cast<std::size_t>(b)] = true;
    int count = 0;
    for (const bool isMarked : marked)
        count += isMarked ? 1 : 0;
    return count;
}

/// A couple rule over a long span; its own goal is a second, whatever the ratio.
void SearchByCouples(benchmark::State &state) {
    const Workplace place;
    pronos rule = coupleRule(longSpan);
    measureRatio(
        state, 1, [&rule] { rule.compute(); },
        [] { benchmark::DoNotOptimize(literalSearch(longSpan)); });
}
BENCHMARK(SearchByCouples)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(21);

/// The same over one number alone, so that hardly any couple is ever found.
void SearchByCouplesThatNeverCame(benchmark::State &state) {
    const Workplace place;
    lotoComb same;
    for (int k = 1; k <= lotoComb::size; ++k)
        same.num(k, 7);
    for (int at = 1; at <= historyDraws; ++at)
        gDbCombs->Item(at).comb(same);
    pronos rule = coupleRule(longSpan);
    measureRatio(
        state, 1, [&rule] { rule.compute(); },
        [] { benchmark::DoNotOptimize(literalSearch(longSpan)); });
}
BENCHMARK(SearchByCouplesThatNeverCame)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(21);

} // namespace
} // namespace boulix
