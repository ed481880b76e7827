// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

namespace boulix {

class frmProgress;

/// Keeps a progress window alive while a long count runs: moves its bar and runs the event queue.
class CountWatch {
  public:
    /// How many grids or sets may pass between two calls where a count has no steps of its own.
    static constexpr std::size_t rhythm = 65536;

    explicit CountWatch(frmProgress &progress) : progress_(progress) {}

    /// So much more is done. False once the user has cancelled.
    bool advance(std::size_t done);

  private:
    frmProgress &progress_;
};

} // namespace boulix
