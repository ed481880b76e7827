// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/disk.h"

#include <cstdint>
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

/// The whole contents of a file; a folder or an unreadable file fails.
std::string readFile(const std::string &fullName);

/// Deletes a file. A folder and a file without any right to write are refused.
void deleteFile(const std::string &fullName);

/// Fails with `Failure::diskFull` where a file of `size` bytes would not fit on the disk in the
/// place of the one that is there. Nothing is written or deleted.
void requireRoom(const std::string &fullName, std::uint64_t size);

/// A file written anew from its start. The earlier file is deleted first, but not before the disk
/// was asked for room: what cannot end is not begun. The description of a failure says, in a
/// second line, what has become of the file and what to do.
class FileWriter {
  public:
    /// Asks for room for `size` bytes, which is what will be written, deletes the earlier file and
    /// begins the new one.
    FileWriter(const std::string &fullName, std::uint64_t size);

    /// Small pieces wait until there is enough for one large write.
    void write(std::string_view bytes);
    /// Writes what is still waiting, flushes the file to the disk and closes it. Without `close`
    /// the last bytes are missing, and nobody is told.
    void close();

  private:
    void writeWaiting();

    std::string waiting_; // before the file: its memory is there before anything is deleted
    disk::OutputFile file_;
};

/// Writes `bytes` as the whole of the file `fullName`, in place of an earlier one.
void replaceFile(const std::string &fullName, std::string_view bytes);

} // namespace boulix
