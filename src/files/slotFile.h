// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/fileAccess.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace boulix {

/// Reads and writes integers and reals of a record, little-endian, at a byte offset. Reading
/// behind the end gives zero bytes.
std::int16_t readInt16(std::string_view bytes, std::size_t offset);
std::int32_t readInt32(std::string_view bytes, std::size_t offset);
float readFloat(std::string_view bytes, std::size_t offset);
double readDouble(std::string_view bytes, std::size_t offset);
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
    void fillBuffer(std::int64_t offset, std::size_t wanted);

    std::string name_;
    disk::InputFile file_;
    std::int64_t slotLength_;
    std::int64_t size_;
    std::int64_t bufferStart_ = 0; // where in the file the buffer begins
    std::string buffer_;
};

/// The image of a file of fixed slots, built in memory so that the time in which the old file is
/// gone and the new one is not there stays short.
class SlotImage {
  public:
    explicit SlotImage(std::int64_t slotLength) : slotLength_(slotLength) {}

    /// Makes room for so many slots at once: a large image is then never moved while it grows.
    void reserve(std::int64_t slots) {
        bytes_.reserve(static_cast<std::size_t>(slots * slotLength_));
    }
    /// Puts `bytes` at the start of slot `slot`, at or behind the last one written; what lies
    /// between is filled with zeros. Any other slot fails with `Failure::invalidCall`.
    void write(std::int64_t slot, std::string_view bytes);
    const std::string &bytes() const { return bytes_; }

  private:
    std::string bytes_;
    std::int64_t slotLength_;
};

/// A file of fixed slots written as it goes, for what is too long to be built in memory first.
class SlotWriter {
  public:
    /// Deletes the earlier file and begins the new one, where the disk has room for its `size`
    /// bytes.
    SlotWriter(const std::string &fullName, std::int64_t slotLength, std::int64_t size);

    /// As `SlotImage::write`.
    void write(std::int64_t slot, std::string_view bytes);
    /// Ends the file; without it the last bytes are missing, and nobody is told.
    void close() { file_.close(); }

  private:
    FileWriter file_;
    std::int64_t slotLength_;
    std::int64_t size_ = 0;
};

} // namespace boulix
