// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

namespace boulix::modMain {

/// One initialisation of the start-up.
struct StartUpStep {
    const char *name;         ///< what the log says that it does
    void (*run)();            ///< nothing where the step has nothing to prepare yet
    bool eventsAfter = false; ///< the event queue runs after the step, not before it
};

/// The initialisations in the order in which they must run.
const std::vector<StartUpStep> &startUpSteps();

} // namespace boulix::modMain
