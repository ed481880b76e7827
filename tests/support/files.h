// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace boulix::testing_support {

/// A new empty folder of its own, gone with everything in it at the end of its scope.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// The folder, without a separator at its end.
    const std::string &path() const { return path_; }
    /// The full name of `name` in the folder.
    std::string file(const std::string &name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

/// The whole contents of a file. A file that cannot be read throws std::runtime_error.
std::string readBytes(const std::string &fullName);
/// Makes the file, or replaces what it held.
void writeBytes(const std::string &fullName, const std::string &bytes);
bool fileExists(const std::string &fullName);

} // namespace boulix::testing_support
