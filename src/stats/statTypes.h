// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "stats/store.h"

#include <cstdint>
#include <string>

namespace boulix::modStats {

/// One kind of statistic.
struct StatType {
    std::string name;
    std::string description;
    std::int16_t nNumbers = 0; ///< how many numbers the user chooses; 0: no dialog
};

inline constexpr std::int16_t statTypeCount = 17;

/// The kinds of statistics; the row is the type. Empty until `InitStatTypes`.
inline Store<StatType, statTypeCount> statTypes;

/// Fills `statTypes`.
void InitStatTypes();

/// Whether `type` is a row of `statTypes`.
constexpr bool isStatType(std::int32_t type) {
    return type >= 1 && type <= statTypeCount;
}

} // namespace boulix::modStats
