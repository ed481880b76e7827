// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

class QEvent;
class QObject;

namespace boulix {

/// The names of the control with the focus and of what it stands in, from within outwards; in the
/// main window the visible page comes last, wherever the focus is.
std::vector<std::string> placeOfUser();

/// Opens the help at the page of that place.
void showHelpHere();

/// Whether `event` is F1 pressed in a window that has no command of its own for it, as it reaches
/// `receiver`.
bool asksForHelp(const QObject &receiver, const QEvent &event);

} // namespace boulix
