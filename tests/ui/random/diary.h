// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix::testing_support::diary {

/// Starts the diary of a play: what it writes down is told where the program crashes, too.
void open(unsigned seed);
/// Notes what the player does at this step; the program has from now on `patienceSeconds` to
/// take the next step, or it counts as hung.
void note(int step, const std::string &action);
/// The play is over: nobody waits any more.
void close();

/// The step that took longest, with its time.
std::string slowestStep();

/// Seed, step and the last actions, a line each, for the message of a failure.
std::string lastActions();

/// How long a step may take before the program counts as hung.
inline constexpr unsigned patienceSeconds = 120;

} // namespace boulix::testing_support::diary
