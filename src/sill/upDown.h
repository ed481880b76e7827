// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <functional>

namespace boulix {

/// An up-down control: a value that stays within its range.
class upDown {
  public:
    std::int32_t min() const { return min_; }
    std::int32_t max() const { return max_; }
    std::int32_t value() const { return value_; }
    bool enabled = true;

    /// New limits; the value is brought between them. A range that ends before it begins keeps
    /// the value and refuses every step.
    void range(std::int32_t first, std::int32_t last);
    /// Takes `value`, brought between the limits. `changed` runs when the value is a new one.
    void set(std::int32_t value);
    /// One step up (1) or down (-1).
    void step(std::int32_t by) { set(value_ + by); }

    /// Called after the value changed, by the user or by the program.
    std::function<void()> changed;

  private:
    std::int32_t min_ = 0;
    std::int32_t max_ = 0;
    std::int32_t value_ = 0;
};

} // namespace boulix
