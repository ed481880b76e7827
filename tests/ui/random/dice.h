// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace boulix::testing_support {

/// Dice that fall the same way for the same seed, with any compiler.
class Dice {
  public:
    explicit Dice(std::uint32_t seed) : source_(seed) {}

    /// A number from 0 to `count` - 1; 0 where there is nothing to choose from.
    int below(int count) {
        return count > 1 ? static_cast<int>(source_() % static_cast<std::uint32_t>(count)) : 0;
    }
    int between(int first, int last) { return first + below(last - first + 1); }
    /// True once in `times` times, as a rule.
    bool onceIn(int times) { return below(times) == 0; }
    template <class Item>
    const Item &oneOf(const std::vector<Item> &items) {
        return items.at(static_cast<std::size_t>(below(static_cast<int>(items.size()))));
    }

  private:
    std::mt19937 source_;
};

} // namespace boulix::testing_support
