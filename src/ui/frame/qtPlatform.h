// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/platform.h"

#include <random>
#include <string>

namespace boulix {

/// The system as Qt tells it.
class QtPlatform : public Platform {
  public:
    /// Takes the arguments as `main` got them, before Qt takes its own out of them.
    QtPlatform(int argc, const char *const *argv);

    Date today() const override;
    std::string shortDate(Date date) const override;
    std::string applicationFolder() const override;
    std::string commandLine() const override { return commandLine_; }

    void seedRandomFromClock() override;
    float nextRandom() override;
    void wantLargePages(void *memory, std::size_t bytes) override;

  private:
    std::string commandLine_;
    std::mt19937 random_;
};

} // namespace boulix
