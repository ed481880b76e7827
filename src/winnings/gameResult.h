// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace boulix {

/// What a game has won: the winning grids and the money at each rank. Ranks count from 1 to 11;
/// any other fails with `Failure::subscriptOutOfRange`.
class gameResult {
  public:
    static constexpr std::int16_t ranks = 11;

    std::int32_t nWin(std::int16_t rank) const { return nWin_[place(rank)]; }
    void nWin(std::int16_t rank, std::int32_t count) { nWin_[place(rank)] = count; }
    float price(std::int16_t rank) const { return price_[place(rank)]; }
    void price(std::int16_t rank, float amount) { price_[place(rank)] = amount; }

  private:
    static std::size_t place(std::int16_t rank);

    std::array<std::int32_t, ranks> nWin_{};
    std::array<float, ranks> price_{};
};

} // namespace boulix
