// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace boulix {

class Tour;

/// From an empty folder to a base with all draws: import, look, add, change, delete, quit, start
/// again.
void baseChapter(Tour &tour);

/// Statistics of each family, their graph, an export, a report on paper, the analysis of the last
/// draw. Leaves numbers marked on the board of the statistics page.
void statisticsChapter(Tour &tour);

/// Grids by every method, a system of one's own, elimination, the game on file and on slips.
void gamesChapter(Tour &tour);

/// Prizes, what the game won and when, its chances, a forecast, its test, and the game that comes of it.
void winningsChapter(Tour &tour);

} // namespace boulix
