// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <exception>
#include <string>

namespace boulix {

/// The unexpected failures of the system, with the numbers that the user is shown.
enum class Failure {
    invalidCall = 5,
    overflow = 6,
    outOfMemory = 7,
    subscriptOutOfRange = 9,
    divisionByZero = 11,
    typeMismatch = 13,
    badFileName = 52,
    fileNotFound = 53,
    deviceError = 57,
    badRecordLength = 59,
    diskFull = 61,
    inputPastEnd = 62,
    permissionDenied = 70,
    pathAccess = 75,
    pathNotFound = 76,
    objectNotSet = 91,
    invalidPropertyValue = 380,
    printerError = 482,
};

/// An unexpected failure on its way to the handler that shows it. As a rule nothing between the
/// place where it starts and that handler catches it.
class RuntimeFailure : public std::exception {
  public:
    /// A failure with its usual description in French.
    explicit RuntimeFailure(Failure failure);
    /// A failure whose description says more than the usual one (a file, an entry).
    RuntimeFailure(Failure failure, std::string description);

    /// The same failure, brought by the text in the box of a window with this object name.
    RuntimeFailure inBox(std::string name) const;

    int number() const { return number_; }
    const std::string &description() const { return description_; }
    /// The object name of the box whose text brought the failure; empty where none did.
    const std::string &box() const { return box_; }
    const char *what() const noexcept override { return description_.c_str(); }

  private:
    int number_;
    std::string description_;
    std::string box_;
};

[[noreturn]] void fail(Failure failure);
[[noreturn]] void fail(Failure failure, const std::string &description);

/// The failure that stands for the operating system's error number `error` (errno) on the file
/// `path`; its description names the file, and says what to do where the program's own folder
/// takes no files.
[[noreturn]] void failForFile(int error, const std::string &path);
/// A failure on the file `path`, whose description names it.
[[noreturn]] void failForFile(Failure failure, const std::string &path);

/// `failure` with a line more under its description.
RuntimeFailure withLine(const RuntimeFailure &failure, const std::string &line);

} // namespace boulix
