// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>

/// The settings of the graph window. Type, grid and axes are kept in the settings file; the rest
/// lasts for the run.
namespace boulix::modStats {

inline constexpr std::array<const char *, 4> graphTypeNames = {"Lignes", "Barres", "Points",
                                                               "Croix"};

/// Position and size of the window when it was last closed, in pixels; all 0 means never.
struct GraphWindowPos {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    bool operator==(const GraphWindowPos &) const = default;
};

inline std::int16_t graphType = 0; ///< index of `graphTypeNames`
inline bool graphShowGrid = true;
inline bool graphShowAxes = true;
inline bool graphAutoRange = true;
inline float graphXMin = -10; // the manual range
inline float graphXMax = 10;
inline float graphYMin = -10;
inline float graphYMax = 100;
inline GraphWindowPos graphWindowPos;

/// The start-up: the defaults, then what the settings file says.
void InitGraphTypes();
/// Reads the section "graphique". An unknown type leaves the type as it is; grid and axes are
/// off only where the value is "off", in any case.
void LoadGraphParam();
/// Writes the section; a file that cannot be written is a run-time failure.
void SaveGraphParam();

} // namespace boulix::modStats
