// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace boulix {

/// The separator of folders on this platform.
#ifdef _WIN32
inline constexpr char pathSeparator = '\\';
#else
inline constexpr char pathSeparator = '/';
#endif

/// Reads and writes integers and reals of a record, little-endian, at a byte offset. Reading
/// behind the end gives zero bytes.
std::int16_t readInt16(const std::string &bytes, std::size_t offset);
std::int32_t readInt32(const std::string &bytes, std::size_t offset);
float readFloat(const std::string &bytes, std::size_t offset);
double readDouble(const std::string &bytes, std::size_t offset);
void appendInt16(std::string &bytes, std::int16_t value);
void appendInt32(std::string &bytes, std::int32_t value);
void appendFloat(std::string &bytes, float value);
void appendDouble(std::string &bytes, double value);

/// A file of fixed slots, opened for reading. A file that cannot be opened or read, or that is a
/// folder, is a run-time failure.
class SlotReader {
  public:
    SlotReader(const std::string &fullName, std::int64_t slotLength);

    /// The file's size in bytes.
    std::int64_t fileSize() const { return size_; }
    /// The first `length` bytes of slot `slot`, counted from 1; bytes that are missing inside the
    /// last slot read as zero. A slot that begins at or behind the end of the file fails with
    /// `Failure::inputPastEnd`, except slot 1, which then reads as zeros.
    std::string read(std::int64_t slot, std::size_t length);

  private:
    std::string name_;
    std::ifstream file_;
    std::int64_t slotLength_;
    std::int64_t size_ = 0;
    std::int64_t position_ = 0;
};

/// The image of a file of fixed slots, built in memory so that the time in which the old file is
/// gone and the new one is not there stays short.
class SlotImage {
  public:
    explicit SlotImage(std::int64_t slotLength) : slotLength_(slotLength) {}

    /// Puts `bytes` at the start of slot `slot`, at or behind the last one written; what lies
    /// between is filled with zeros.
    void write(std::int64_t slot, const std::string &bytes);
    const std::string &bytes() const { return bytes_; }

  private:
    std::string bytes_;
    std::int64_t slotLength_;
};

/// Deletes the file `fullName` if it is there, then writes `bytes` as the new one. Every step is
/// checked, the last flush included; what cannot be done is a run-time failure that names the
/// file.
void replaceFile(const std::string &fullName, const std::string &bytes);

} // namespace boulix
