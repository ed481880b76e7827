// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Files by the calls of the operating system: the standard library can neither flush a file to
/// the disk nor tell how much of the disk a file gives back. Each system has a source file of its
/// own behind this header. File names are UTF-8; whatever the system refuses is a run-time
/// failure that names the file.
namespace boulix::disk {

/// How many bytes the disk lacks to take a file of `bytes` bytes in the place of `fullName`: its
/// free room counts, and what the file of that name gives back when it is deleted. 0 where it
/// fits, and where the disk does not tell. A disk that cannot be written fails.
std::uint64_t missingRoom(const std::string &fullName, std::uint64_t bytes);

/// A file open for reading, without a buffer. The end of its life closes it.
class InputFile {
  public:
    explicit InputFile(const std::string &fullName);
    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    /// Reads the next `count` bytes to `to`, fewer at the end of the file, and tells how many.
    std::size_t read(char *to, std::size_t count);
    /// Goes on at `offset`, counted from 0.
    void seek(std::int64_t offset);

  private:
    std::string name_;
    int file_;
};

/// A file to be written, without a buffer. It takes all its memory when it is constructed. Without
/// `close`, the end of its life closes it, and what the system says to that is not heard.
class OutputFile {
  public:
    explicit OutputFile(const std::string &fullName);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    /// Makes the file, or empties it.
    void open();
    /// Writes all of `bytes`, at once where the system takes them at once.
    void write(std::string_view bytes);
    /// Returns when the disk holds what was written. Nothing to do for a device.
    void flush();
    void close();

  private:
    std::string name_;
    std::string folder_;
    int file_ = -1;
};

} // namespace boulix::disk
