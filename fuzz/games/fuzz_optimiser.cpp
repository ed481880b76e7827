// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/systemOptimiser.h"
#include "support/demand.h"

#include <cstddef>
#include <cstdint>

using namespace boulix;
using fuzzing::demand;

namespace {

/// Every choice of six numbers behind the fixed ones: it keeps any guarantee.
std::vector<gameComb> everyRow(const Guarantee &guarantee) {
    std::vector<gameComb> rows;
    const int free = guarantee.nSelect - guarantee.nFixed;
    for (PointSet set = covering::firstSubset(gameComb::size - guarantee.nFixed);
         set < PointSet{1} << free; set = covering::nextSubset(set)) {
        gameComb row;
        int at = 1;
        for (int n = 1; n <= guarantee.nSelect; ++n)
            if (n <= guarantee.nFixed || (set >> (n - guarantee.nFixed - 1) & 1U) != 0)
                row.num(at++, static_cast<std::int16_t>(n));
        rows.push_back(row);
    }
    return rows;
}

} // namespace

// The input is the four numbers of a guarantee, a seed and how often to search. Whatever they are,
// the rows keep the guarantee, are no more than before and no fewer than the bound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size < 6)
        return 0;
    const auto pick = [&](std::size_t i, int low, int high) {
        return static_cast<std::int16_t>(low + data[i] % (high - low + 1));
    };
    const std::int16_t nFixed = pick(0, 0, 5);
    const std::int16_t nWin = pick(1, nFixed + 1, 6);
    const Guarantee guarantee{nFixed, nWin, pick(2, nWin, 6), pick(3, 7, 12)};
    SystemOptimiser search(guarantee, {everyRow(guarantee)}, data[4]);
    std::int64_t last = search.size();
    for (int i = data[5] % 4; i >= 0; --i) {
        search.run(100'000);
        demand(search.size() <= last, "a search never loses");
        demand(search.size() >= search.lowerBound(), "no system is below the bound");
        last = search.size();
    }
    demand(keepsGuarantee(search.rows(), guarantee), "the rows keep the guarantee");
    return 0;
}
