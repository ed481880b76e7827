// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/dates.h"

#include <cstddef>
#include <string>

namespace boulix {

/// What most systems call a large page of memory, in bytes.
inline constexpr std::size_t largePage = std::size_t{1} << 21U;

/// What the logic asks of the system it runs on. The program gives the real one, a test a
/// settable one.
class Platform {
  public:
    virtual ~Platform() = default;

    /// The day of today, without its time.
    virtual Date today() const = 0;
    /// `date` in the short form of the system's regional settings; `date` is valid.
    virtual std::string shortDate(Date date) const = 0;
    /// The folder of the executable, without a separator at its end.
    virtual std::string applicationFolder() const = 0;
    /// The raw command line without the program's name.
    virtual std::string commandLine() const = 0;

    /// Starts a new random sequence from the clock.
    virtual void seedRandomFromClock() = 0;
    /// The next random value in [0, 1).
    virtual float nextRandom() = 0;

    /// Asks for this memory, which nobody has used yet, to come in large pages. The grids of 49
    /// numbers take some 60,000 small ones, and to be given each of them costs several times what
    /// it costs to fill it. Without an effect on systems that know no such wish.
    virtual void wantLargePages(void *, std::size_t) {}
};

/// The platform in use; `setPlatform` comes first, and keeps a reference only.
Platform &platform();
void setPlatform(Platform *platform);

/// `Platform::wantLargePages` of the platform in use; nothing where there is none yet.
void wantLargePages(void *memory, std::size_t bytes);

/// Whether `folder` is the application folder; false where there is no platform yet.
bool isApplicationFolder(const std::string &folder);

/// `date` in the system's short form; an invalid date fails with `Failure::overflow`.
std::string shortDate(Date date);

} // namespace boulix
