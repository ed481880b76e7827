// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "forecasts/pronos.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/numbers.h"
#include "draws/dbCombs.h"
#include "forecasts/presence.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "sill/reports.h"

#include <algorithm>

namespace boulix {

namespace {

std::size_t place(std::int16_t number) {
    return static_cast<std::size_t>(number - 1);
}

} // namespace

std::int32_t pronos::nbrPoint(std::int16_t index) const {
    if (index >= 1 && index <= lastNumber)
        return nbrPoint_[place(index)];
    reportNumbered(4551, "Accès au compteur du numéro " + std::to_string(index) + " impossible!");
    return 0;
}

void pronos::compute() {
    if (pronoType_ < static_cast<std::int32_t>(PronoType::outButNotLately) ||
        pronoType_ > static_cast<std::int32_t>(PronoType::rare))
        return;
    nbrPoint_.fill(0);
    forEachNumber(chosenNumbers(),
                  [this](std::int16_t number) { nbrPoint_[place(number)] = nPoint_; });
}

std::uint64_t pronos::chosenNumbers() const {
    switch (static_cast<PronoType>(pronoType_)) {
    case PronoType::outButNotLately:
        return outIn(n_) & ~outIn(p_);
    case PronoType::absent:
        return allNumbers & ~outIn(n_);
    case PronoType::absentCouple:
        return allNumbers & ~inDrawnCouples();
    case PronoType::rare:
        return rareNumbers();
    }
    return 0;
}

/// The numbers of each draw of the span of `length`, oldest draw first.
std::vector<std::uint64_t> pronos::span(std::int16_t length) const {
    std::vector<std::uint64_t> draws;
    for (std::int32_t at = baseTir_ - length; at <= baseTir_; ++at)
        draws.push_back(presentIn(gDbCombs->Item(at).comb()));
    return draws;
}

/// The numbers that came out in the span of `length`.
std::uint64_t pronos::outIn(std::int16_t length) const {
    std::uint64_t out = 0;
    for (const std::uint64_t draw : span(length))
        out |= draw;
    return out;
}

/// The numbers of all couples that came out in the span of N. They are the numbers that came out
/// in it; the type is defined by its couples all the same, and shows its search.
std::uint64_t pronos::inDrawnCouples() const {
    ProgressShown progress("Calcul en cours...", "Calcul des pronostiques");
    progress->ProgressBar.range(1, modMaths::Cnk(lastNumber, 2));
    const std::vector<std::uint64_t> draws = span(n_);
    std::uint64_t marked = 0;
    std::int64_t couples = 0;
    for (std::int16_t a = 1; a <= lastNumber; ++a)
        for (std::int16_t b = narrow16(a + 1); b <= lastNumber; ++b) {
            progress->ProgressBar.value = ++couples;
            const std::uint64_t couple = numberBit(a) | numberBit(b);
            if (std::any_of(draws.begin(), draws.end(),
                            [=](std::uint64_t draw) { return (draw & couple) == couple; }))
                marked |= couple;
            desktop().runEvents();
        }
    return marked;
}

/// The numbers that came out at most N times in the span of P: a number out exactly N times is
/// among them, whatever the rule's label says.
std::uint64_t pronos::rareNumbers() const {
    std::array<std::int32_t, lastNumber> timesOut{};
    for (const std::uint64_t draw : span(p_))
        forEachNumber(draw, [&](std::int16_t number) { ++timesOut[place(number)]; });
    std::uint64_t rare = 0;
    for (std::int16_t number = 1; number <= lastNumber; ++number)
        if (timesOut[place(number)] <= n_)
            rare |= numberBit(number);
    return rare;
}

} // namespace boulix
