// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/modMain.h"

#include "core/failure.h"
#include "core/fileAccess.h"
#include "core/platform.h"
#include "core/text.h"
#include "sill/reports.h"

#include <algorithm>
#include <cerrno>

namespace boulix::modMain {

namespace {

std::string logName() {
    return platform().applicationFolder() + pathSeparator + "boulix.log";
}

/// A log that cannot be written is no reason to stop, but nobody may wait for its lines.
void giveUpLog(int error) {
    gDebug = false;
    gLogFile = std::ofstream();
    runCommand([error] { failForFile(error, logName()); });
}

} // namespace

std::vector<std::string> parseCommandLine(std::int16_t maxArgs) {
    std::vector<std::string> tokens(1);
    bool open = false;
    for (const char c : platform().commandLine()) {
        if (c == ' ' || c == '\t') {
            open = false;
            continue;
        }
        if (!open) {
            if (static_cast<int>(tokens.size()) - 1 == maxArgs)
                break;
            tokens.emplace_back();
            open = true;
        }
        tokens.back() += c;
    }
    tokens.resize(std::max<std::size_t>(tokens.size(), 2));
    return tokens;
}

void openLog() {
    gDebug = true;
    gLogFile = std::ofstream(logName(), std::ios::binary | std::ios::trunc);
    if (!gLogFile)
        failForFile(errno, logName());
}

void logLine(const std::string &text) {
    if (!gDebug)
        return;
    if (!gLogFile.is_open())
        fail(Failure::badFileName);
    if (!(gLogFile << toWestern(text) << crlf))
        giveUpLog(errno);
}

void logNote(const std::string &text) {
    if (gLogFile.is_open())
        logLine(text);
}

void closeLog() {
    if (!gLogFile.is_open()) // a handler has closed it
        return;
    gLogFile.close(); // this is where the lines of a short run are written
    if (gLogFile.fail())
        giveUpLog(errno);
}

} // namespace boulix::modMain
