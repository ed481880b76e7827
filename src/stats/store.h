// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace boulix::modStats {

/// A store of `N` values counted from 1. An index outside 1 to `N` fails with
/// `Failure::subscriptOutOfRange`.
template <class T, std::size_t N>
class Store {
  public:
    static constexpr std::int32_t size = static_cast<std::int32_t>(N);

    T &operator()(std::int64_t i) { return values_[place(i)]; }
    const T &operator()(std::int64_t i) const { return values_[place(i)]; }
    /// Sets entries 1 to `n` to `value`.
    void fill(std::int32_t n, const T &value) { std::fill_n(values_.begin(), n, value); }

    // All values in order.
    auto begin() { return values_.begin(); }
    auto end() { return values_.end(); }
    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

  private:
    static std::size_t place(std::int64_t i) {
        return static_cast<std::size_t>(checkedIndex(i, 1, size) - 1);
    }

    std::array<T, N> values_{};
};

} // namespace boulix::modStats
