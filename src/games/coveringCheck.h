// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gameComb.h"

#include <cstdint>
#include <vector>

namespace boulix {

/// The guarantee of a system in the terms of `gameDef`: if `nCond` of the drawn numbers lie among
/// the ranks 1 to `nSelect`, the fixed ranks 1 to `nFixed` among them, one row holds `nWin` of
/// the drawn ones. 0 <= nFixed < nWin <= nCond <= 6 < nSelect <= 49.
struct Guarantee {
    std::int16_t nFixed;
    std::int16_t nWin;
    std::int16_t nCond;
    std::int16_t nSelect;

    bool operator==(const Guarantee &) const = default;
};

/// Whether the rows keep the guarantee, by looking for a draw that they fail. It shares nothing
/// with the searches that make rows. Rows must hold the fixed ranks and ascend within 1 to
/// `nSelect`; others do not pass.
bool keepsGuarantee(const std::vector<gameComb> &rows, const Guarantee &guarantee);

} // namespace boulix
