// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modMain.h"

#include "core/failure.h"
#include "core/platform.h"
#include "core/text.h"

#include <algorithm>

namespace boulix::modMain {

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

void logLine(const std::string &text) {
    if (!gDebug)
        return;
    if (!gLogFile.is_open())
        fail(Failure::badFileName);
    // The log is read where the program did not come to its end: no line may wait in a buffer.
    gLogFile << toWestern(text) << crlf << std::flush;
}

} // namespace boulix::modMain
