// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace boulix {

class dbCombs;

/// Remembers which draws stood where in the base, without a copy of them: what is known of a draw
/// by its place holds only as long as the draw stands there.
class BaseMark {
  public:
    BaseMark() = default;
    explicit BaseMark(const dbCombs &base);

    /// Whether the draws of that time still stand at their places; there may be more behind them.
    bool stillIn(const dbCombs &base) const;

  private:
    std::int32_t count_ = 0;
    std::uint64_t sum_ = 0;
};

} // namespace boulix
