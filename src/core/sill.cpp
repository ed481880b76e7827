// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/desktop.h"
#include "core/failure.h"
#include "core/platform.h"

namespace boulix {

namespace {

Desktop *currentDesktop = nullptr;
Platform *currentPlatform = nullptr;

} // namespace

Desktop &desktop() {
    if (!currentDesktop)
        fail(Failure::objectNotSet);
    return *currentDesktop;
}

void setDesktop(Desktop *desktop) {
    currentDesktop = desktop;
}

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

std::string shortDate(Date date) {
    if (!isValidDate(date))
        fail(Failure::overflow);
    return platform().shortDate(date);
}

} // namespace boulix
