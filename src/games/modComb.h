// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <vector>

namespace boulix {

class gameComb;

namespace modComb {

/// The p-uplets of a grid in the computation of a system: the choices of `nWin` of its numbers
/// that contain the first `nFixed`, in the order of `modGame::subsetList`. Each is given by its
/// code: the place of its ranks behind the fixed ones in the combinatorial number system, from 0.
std::vector<std::int32_t> expand(const gameComb &grid, std::int16_t nFixed, std::int16_t nWin);

} // namespace modComb
} // namespace boulix
