// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/modStats.h"

#include "core/numberMask.h"
#include "sill/selector.h"
#include "stats/statTypes.h"

namespace boulix::modStats {

namespace {

/// Asks for exactly `n` numbers; their mask, empty when the dialog was dismissed.
std::uint64_t askNumbers(selector &chooser, std::int16_t n) {
    chooser.setSelect(n, n);
    chooser.selectNbr();
    std::uint64_t chosen = 0;
    for (std::int16_t i = 1; i <= chooser.nSelectedNbr(); ++i)
        chosen |= numberBit(chooser.selectedNbr(i));
    return chosen;
}

} // namespace

void ComputeStat(std::int16_t type, std::int16_t withCompl, std::int32_t first, std::int32_t last,
                 selector &chooser) {
    if (!isStatType(type))
        return;
    std::uint64_t chosen = 0;
    if (const std::int16_t n = statTypes(type).nNumbers; n > 0) {
        chosen = askNumbers(chooser, n);
        if (chosen == 0)
            return;
    }
    switch (type) {
    case 6:
        return ComputeSums(withCompl, first, last);
    case 7:
        return ComputeDelays(withCompl, first, last);
    case 8:
        return ComputeCurrentRuns(withCompl, first, last);
    case 9:
        return ComputeMaxAbsence(withCompl, first, last);
    case 10:
        return ComputeMaxRun(withCompl, first, last);
    case 11:
        return ComputeTriplets(withCompl);
    case 12:
        ComputeTriplets(withCompl);
        return FilterTriplets(chooser);
    case 13:
    case 14:
    case 15:
    case 16:
        return ComputePeriods(chosen, withCompl, first, last);
    case 17:
        return ComputeEvenCount(withCompl, first, last);
    default:
        return ComputeFrequency(type, chosen, withCompl, first, last);
    }
}

} // namespace boulix::modStats
