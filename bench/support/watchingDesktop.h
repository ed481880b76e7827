// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/quietSill.h"

#include <algorithm>
#include <chrono>

namespace boulix::bench_support {

/// A quiet desktop that notes how long the event queue had to wait at most while the
/// progress window was up.
class WatchingDesktop : public QuietDesktop {
  public:
    void runEvents() override {
        const auto now = Clock::now();
        longestGap_ = std::max(longestGap_, now - lastTurn_);
        lastTurn_ = now;
    }
    void progressLoaded(frmProgress &) override {
        lastTurn_ = Clock::now();
        longestGap_ = {};
    }
    void progressUnloaded() override { runEvents(); }
    double longestGapMilliseconds() const {
        return std::chrono::duration<double, std::milli>(longestGap_).count();
    }

  private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point lastTurn_;
    Clock::duration longestGap_{};
};

} // namespace boulix::bench_support
