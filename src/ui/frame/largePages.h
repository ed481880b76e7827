// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/platform.h"

#include <cstddef>

#ifdef __linux__
#include <memory>
#include <sys/mman.h>
#endif

namespace boulix {

/// How the system is told of `Platform::wantLargePages`.
inline void askForLargePages([[maybe_unused]] void *memory, [[maybe_unused]] std::size_t bytes) {
#ifdef __linux__
    // Only whole large pages can be had; what stands over at both ends stays as it is.
    if (std::align(largePage, largePage, memory, bytes) != nullptr)
        madvise(memory, bytes - bytes % largePage, MADV_HUGEPAGE); // a wish: no matter if refused
#endif
}

} // namespace boulix
