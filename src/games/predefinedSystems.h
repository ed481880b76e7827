// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace boulix {

/// A system of play that the program carries: its rows in text form, in ranks of the selection.
struct PredefinedSystem {
    const char *label;
    std::int16_t nSelect;
    std::int16_t nCond;
    std::int16_t nWin;
    std::span<const char *const> rows;
};

extern const std::array<PredefinedSystem, 9> predefinedReduced;
extern const std::array<PredefinedSystem, 1> predefinedFixed;

} // namespace boulix
