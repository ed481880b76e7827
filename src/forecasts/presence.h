// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/numberMask.h"
#include "draws/lotoComb.h"

#include <cstdint>

namespace boulix {

/// The numbers that came out in a draw, the complementary one among them: forecasts make no
/// difference between the two.
inline std::uint64_t presentIn(const lotoComb &comb) {
    return comb.mask() | numberBit(comb.compl_());
}

} // namespace boulix
