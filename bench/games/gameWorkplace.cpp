// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/gameWorkplace.h"

#include <fstream>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace boulix::bench_support {

namespace {

std::int64_t statusBytes(const std::string &name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    std::int64_t kilobytes = 0;
    while (status >> word)
        if (word == name && status >> kilobytes)
            return kilobytes * 1024;
    return 0;
}

} // namespace

std::int64_t memoryInUse() {
#ifdef __GLIBC__
    malloc_trim(0); // what earlier measurements left behind goes back to the system
#endif
    return statusBytes("VmRSS:");
}

std::int64_t memoryPeak() {
    return statusBytes("VmHWM:");
}

void forgetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace boulix::bench_support
