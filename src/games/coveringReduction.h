// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/coveringDesign.h"

namespace boulix::covering {

/// Takes out, from the last to the first, every block whose choices of `strength` points all lie
/// in other blocks, too.
void removeRedundant(const CoveringDesign &design, Blocks &blocks);

} // namespace boulix::covering
