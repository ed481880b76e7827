// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace boulix {

/// One draw at which a game won at a rank.
class gameWin {
  public:
    gameWin() = default;
    gameWin(std::int32_t draw, std::int32_t count) : idbcomb_(draw), nWin_(count) {}

    /// The position of the draw in the base.
    std::int32_t idbcomb() const { return idbcomb_; }
    void idbcomb(std::int32_t draw) { idbcomb_ = draw; }
    /// How many grids of the game won.
    std::int32_t nWin() const { return nWin_; }
    void nWin(std::int32_t count) { nWin_ = count; }

  private:
    std::int32_t idbcomb_ = 0;
    std::int32_t nWin_ = 0;
};

} // namespace boulix
