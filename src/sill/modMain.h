// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace boulix::modMain {

/// True from the moment the log was opened; it stays true when a handler has closed the log.
inline bool gDebug = false;
/// The log, meaningful only while `gDebug` is true.
inline std::ofstream gLogFile;
/// The folder in which file dialogs open; it follows the last file chosen.
inline std::string gCurrentDir;

/// The program's entry: log, identity, splash, all initialisations in their order, main window.
/// Where an entry of the settings stops the start and the user has it taken out, it begins anew.
void Main();

/// The tokens of the command line, parted by blanks and tabs, at most `maxArgs` of them.
/// Element 0 stays empty, tokens start at 1, and element 1 always exists.
std::vector<std::string> parseCommandLine(std::int16_t maxArgs = 1);

/// Starts the log, `boulix.log` in the application folder, and sets `gDebug`. What the system
/// refuses fails.
void openLog();
/// Writes a line to the log while `gDebug` is true. A log that was closed by then fails with
/// `Failure::badFileName`. A line that cannot be written is shown as a failure once; the program
/// goes on without its log.
void logLine(const std::string &text);
/// Writes a line that nobody counts on: where the log was closed by then it is dropped.
void logNote(const std::string &text);
/// Closes the log if it is open. Lines that cannot be written then are shown as a failure.
void closeLog();

} // namespace boulix::modMain
