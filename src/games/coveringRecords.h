// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/coveringDesign.h"

#include <cstdint>
#include <optional>

namespace boulix::covering {

/// The fewest blocks that anybody has published for a covering design of 7 to 25 points with
/// blocks of 4 to 6 and a strength of at least 3; nothing where none is known here.
std::optional<std::int64_t> knownRecord(const CoveringDesign &design);

} // namespace boulix::covering
