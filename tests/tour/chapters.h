// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace boulix {

class Tour;

/// From an empty folder to a base with all draws: import, look, add, change, delete, quit, start
/// again.
void baseChapter(Tour &tour);

} // namespace boulix
