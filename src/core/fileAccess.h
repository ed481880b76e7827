// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace boulix {

/// The separator of folders on this platform.
#ifdef _WIN32
inline constexpr char pathSeparator = '\\';
#else
inline constexpr char pathSeparator = '/';
#endif

// File names are UTF-8. Whatever a file refuses is a run-time failure that names the file.

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
/// An open file of the standard library; it closes itself.
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens the file for reading.
FileHandle openForReading(const std::string &fullName);
/// The whole contents of a file; a folder or an unreadable file fails.
std::string readFile(const std::string &fullName);

/// Deletes a file. A folder and a file without any right to write are refused.
void deleteFile(const std::string &fullName);

/// A file written anew from its start, as long as one likes: the earlier file is deleted first.
/// Without `close`, the end of its life closes it unchecked.
class FileWriter {
  public:
    explicit FileWriter(const std::string &fullName);

    void write(std::string_view bytes);
    /// Writes what is still waiting and closes the file.
    void close();

  private:
    std::string name_;
    FileHandle file_;
};

/// Deletes the file `fullName` if it is there, then writes `bytes` as the new one. Every step is
/// checked, the last flush included.
void replaceFile(const std::string &fullName, std::string_view bytes);

} // namespace boulix
