// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/frmNbrSelector.h"

#include "core/numbers.h"
#include "core/platform.h"
#include "sill/reports.h"

#include <cstdint>
#include <numeric>
#include <vector>

namespace boulix {

std::string frmNbrSelector::lblStatus() const {
    return std::to_string(grd.selectedCount()) + " numéros";
}

void frmNbrSelector::clickSelectAll() {
    if (grd.maxSelected() != NumberBoard::lastNumber) {
        reportNumbered(801, "Impossible de sélectionner tous les numéros, vous ne pouvez en "
                            "sélectionner que " +
                                std::to_string(grd.maxSelected()));
        return;
    }
    platform().seedRandomFromClock();
    std::vector<std::int16_t> unused(NumberBoard::lastNumber);
    std::iota(unused.begin(), unused.end(), std::int16_t{1});
    while (!unused.empty()) {
        const double r = static_cast<double>(platform().nextRandom());
        const double last = static_cast<double>(unused.size() - 1);
        const auto at = static_cast<std::ptrdiff_t>(roundHalfEven(r * last));
        grd.selectNumber(unused[static_cast<std::size_t>(at)]);
        unused.erase(unused.begin() + at);
    }
}

} // namespace boulix
