// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/smallDisk.h"

#include <sched.h>
#include <stdexcept>
#include <sys/mount.h>

namespace boulix::testing_support {

namespace {

/// Gives the process a view of the disks of its own. It takes root's rights.
bool privateMounts() {
    static const bool granted =
        unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return granted;
}

} // namespace

SmallDisk::SmallDisk(std::size_t bytes) {
    const std::string options = "size=" + std::to_string(bytes);
    mounted_ = privateMounts() && mount("tmpfs", path().c_str(), "tmpfs", 0, options.c_str()) == 0;
}

SmallDisk::~SmallDisk() {
    if (mounted_)
        umount2(path().c_str(), MNT_DETACH);
}

void SmallDisk::makeReadOnly() {
    if (mount(nullptr, path().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0)
        throw std::runtime_error("cannot make the small disk read-only");
}

} // namespace boulix::testing_support
