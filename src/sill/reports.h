// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/failure.h"
#include "sill/desktop.h"

#include <functional>
#include <string>

namespace boulix {

/// A numbered error of a class: a box titled "boulix: Erreur N° " and the number, with one OK
/// button. It only reports; the caller decides what happens next.
void reportNumbered(int number, const std::string &text, Icon icon = Icon::information);

/// The handler of the main routines: closes the log if there is one, then shows the failure.
void handleUnexpected(const RuntimeFailure &failure);

/// Runs one of the main routines under that handler. A failure ends the routine, and so does a
/// want of memory, which is a failure like any other.
void underHandler(const std::function<void()> &routine);

/// Shows a failure in the same form and leaves the log alone. The box whose text brought it has the
/// focus then.
void showUnexpected(const RuntimeFailure &failure);

/// Runs a command of the user. A run-time failure ends the command and is shown; the program
/// lives on. True when the command came to its end.
bool runCommand(const std::function<void()> &command);

} // namespace boulix
