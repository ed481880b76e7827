// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform.h"
#include "support/files.h"

#include <deque>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// `date` as "dd-mm-yyyy": a short form that nobody can take for the form "dd/mm/yyyy" of the
/// files.
std::string dashedDate(Date date);

/// A system that a test sets up: its day, its application folder, its command line, its chance.
class FakePlatform : public Platform {
  public:
    /// Today, 15 November 2026 at first.
    Date day = dateOf({2026, 11, 15});
    /// The raw command line.
    std::string arguments;
    /// The short form of a date, "dd-mm-yyyy" at first.
    std::function<std::string(Date)> shortForm = dashedDate;
    /// What the clock seeds the random source with.
    unsigned clockSeed = 1;
    /// How often the random source was seeded from the clock.
    int seedings = 0;

    /// The values that `nextRandom` gives before those of the generator; a seeding keeps them.
    void scriptRandom(const std::vector<float> &values);
    std::size_t scriptedRandomLeft() const { return scripted_.size(); }

    Date today() const override { return day; }
    std::string shortDate(Date date) const override { return shortForm(date); }
    /// A temporary folder that lives as long as the platform.
    std::string applicationFolder() const override { return folder_.path(); }
    std::string commandLine() const override { return arguments; }
    void seedRandomFromClock() override;
    float nextRandom() override;

  private:
    TemporaryFolder folder_;
    std::deque<float> scripted_;
    std::mt19937 generator_{1};
};

} // namespace boulix::testing_support
