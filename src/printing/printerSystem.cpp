// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/printerSystem.h"

#include "core/failure.h"

namespace boulix {

namespace {

PrinterSystem *currentSystem = nullptr;
PrintWindows *currentWindows = nullptr;

} // namespace

PrinterSystem &printerSystem() {
    if (!currentSystem)
        fail(Failure::objectNotSet);
    return *currentSystem;
}

void setPrinterSystem(PrinterSystem *system) {
    currentSystem = system;
}

PrintWindows &printWindows() {
    if (!currentWindows)
        fail(Failure::objectNotSet);
    return *currentWindows;
}

void setPrintWindows(PrintWindows *windows) {
    currentWindows = windows;
}

} // namespace boulix
