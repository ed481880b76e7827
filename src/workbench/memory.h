// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace boulix {

/// A window, or what a screen has room for, in points.
struct Area {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Area &) const = default;
};

/// What the program remembers of its last run, in sections of their own of the settings file.
/// A value that is missing, or that no run can have written, counts as not remembered.
struct Memory {
    static constexpr std::size_t mostGames = 5;
    /// The widths of the columns of the lists that have been changed, by the name of the list. A
    /// list that has now these columns and now those may have several.
    using Columns = std::map<std::string, std::vector<std::vector<int>>>;
    static const std::array<const char *, 6> lists;

    std::optional<Area> window;
    bool maximised = false;
    int tab = 0;                          ///< index of the visible page, 0 to 5
    std::array<bool, 3> sources{};        ///< what is ticked under "Sélectionner les numéros"
    std::string folder;                   ///< where the file dialogs open, with its separator
    std::vector<std::string> recentGames; ///< full names of game files, the newest first
    Columns columns;

    bool operator==(const Memory &) const = default;

    static Memory read();
    /// Writes what has changed, in one go. A folder that takes no file keeps no memory: nobody is
    /// told, because nobody has asked for it.
    void write() const;

    /// A game file was loaded or saved: it becomes the newest one.
    void gameUsed(const std::string &fullName);
};

/// `window` moved and made smaller so that it lies on one of `screens`, the one of which it covers
/// most: a screen may be gone since. There must be one at least.
Area onScreens(Area window, const std::vector<Area> &screens);

} // namespace boulix
