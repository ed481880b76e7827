// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdio>
#include <cstdlib>

namespace boulix::fuzzing {

/// What must hold whatever the input was.
inline void demand(bool holds, const char *what) {
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

} // namespace boulix::fuzzing
