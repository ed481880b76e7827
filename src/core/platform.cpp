// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/platform.h"

#include "core/failure.h"

namespace boulix {

namespace {

Platform *currentPlatform = nullptr;

} // namespace

Platform &platform() {
    if (!currentPlatform)
        fail(Failure::objectNotSet);
    return *currentPlatform;
}

void setPlatform(Platform *platform) {
    currentPlatform = platform;
}

void wantLargePages(void *memory, std::size_t bytes) {
    if (currentPlatform)
        currentPlatform->wantLargePages(memory, bytes);
}

bool isApplicationFolder(const std::string &folder) {
    return currentPlatform && currentPlatform->applicationFolder() == folder;
}

std::string shortDate(Date date) {
    if (!isValidDate(date))
        fail(Failure::overflow);
    return platform().shortDate(date);
}

} // namespace boulix
