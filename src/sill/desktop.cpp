// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/desktop.h"

#include "core/failure.h"

namespace boulix {

namespace {

Desktop *currentDesktop = nullptr;

} // namespace

Desktop &desktop() {
    if (!currentDesktop)
        fail(Failure::objectNotSet);
    return *currentDesktop;
}

void setDesktop(Desktop *desktop) {
    currentDesktop = desktop;
}

} // namespace boulix
