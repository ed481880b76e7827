// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

namespace boulix {

/// What the system calls a large page, in bytes.
inline constexpr std::size_t largePage = std::size_t{1} << 21U;

/// Asks the system to give this memory, which nobody has used yet, in large pages where it can.
/// The grids of 49 numbers take some 60,000 small ones, and to be given each of them costs
/// several times what it costs to fill it. Without an effect on systems that know no such wish.
void wantLargePages(void *memory, std::size_t bytes);

} // namespace boulix
