// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/slotFile.h"

#include "core/failure.h"

#include <algorithm>
#include <bit>
#include <filesystem>
#include <system_error>

namespace boulix {

namespace {

constexpr std::size_t bufferSize = 1U << 16U;

template <class Unsigned>
Unsigned readBits(std::string_view bytes, std::size_t offset) {
    Unsigned bits = 0;
    for (std::size_t i = 0; i < sizeof(Unsigned) && offset + i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[offset + i]);
        bits = static_cast<Unsigned>(bits | static_cast<Unsigned>(byte) << (8 * i));
    }
    return bits;
}

template <class Unsigned>
void appendBits(std::string &bytes, Unsigned bits) {
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(bits >> (8 * i)));
}

std::int64_t sizeOfFile(const std::string &fullName) {
    std::error_code error;
    const auto size = std::filesystem::file_size(fullName, error);
    if (error)
        failForFile(error.value(), fullName);
    return static_cast<std::int64_t>(size);
}

/// How many zeros part slot `slot` from the first `size` bytes of the file.
std::size_t gapBefore(std::int64_t slot, std::int64_t slotLength, std::int64_t size) {
    const std::int64_t gap = (slot - 1) * slotLength - size;
    if (gap < 0)
        fail(Failure::invalidCall);
    return static_cast<std::size_t>(gap);
}

} // namespace

std::int16_t readInt16(std::string_view bytes, std::size_t offset) {
    return std::bit_cast<std::int16_t>(readBits<std::uint16_t>(bytes, offset));
}

std::int32_t readInt32(std::string_view bytes, std::size_t offset) {
    return std::bit_cast<std::int32_t>(readBits<std::uint32_t>(bytes, offset));
}

float readFloat(std::string_view bytes, std::size_t offset) {
    return std::bit_cast<float>(readBits<std::uint32_t>(bytes, offset));
}

double readDouble(std::string_view bytes, std::size_t offset) {
    return std::bit_cast<double>(readBits<std::uint64_t>(bytes, offset));
}

void appendInt16(std::string &bytes, std::int16_t value) {
    appendBits(bytes, std::bit_cast<std::uint16_t>(value));
}

void appendInt32(std::string &bytes, std::int32_t value) {
    appendBits(bytes, std::bit_cast<std::uint32_t>(value));
}

void appendFloat(std::string &bytes, float value) {
    appendBits(bytes, std::bit_cast<std::uint32_t>(value));
}

void appendDouble(std::string &bytes, double value) {
    appendBits(bytes, std::bit_cast<std::uint64_t>(value));
}

SlotReader::SlotReader(const std::string &fullName, std::int64_t slotLength)
    : name_(fullName), file_(fullName), slotLength_(slotLength), size_(sizeOfFile(fullName)) {}

std::string SlotReader::read(std::int64_t slot, std::size_t length) {
    const std::int64_t offset = (slot - 1) * slotLength_;
    if (slot < 1 || (slot > 1 && offset >= size_))
        failForFile(Failure::inputPastEnd, name_);
    const auto there = static_cast<std::size_t>(
        std::min(static_cast<std::int64_t>(length), std::max<std::int64_t>(size_ - offset, 0)));
    const auto bufferEnd = bufferStart_ + static_cast<std::int64_t>(buffer_.size());
    if (offset < bufferStart_ || offset + static_cast<std::int64_t>(there) > bufferEnd)
        fillBuffer(offset, there);
    std::string bytes = buffer_.substr(static_cast<std::size_t>(offset - bufferStart_), there);
    bytes.resize(length, '\0');
    return bytes;
}

void SlotReader::fillBuffer(std::int64_t offset, std::size_t wanted) {
    const auto left = static_cast<std::size_t>(size_ - offset);
    buffer_.resize(std::min(left, std::max(bufferSize, wanted)));
    bufferStart_ = offset;
    file_.seek(offset);
    if (file_.read(buffer_.data(), buffer_.size()) != buffer_.size())
        failForFile(Failure::inputPastEnd, name_); // somebody cut the file while it was being read
}

void SlotImage::write(std::int64_t slot, std::string_view bytes) {
    bytes_.append(gapBefore(slot, slotLength_, static_cast<std::int64_t>(bytes_.size())), '\0');
    bytes_ += bytes;
}

SlotWriter::SlotWriter(const std::string &fullName, std::int64_t slotLength, std::int64_t size)
    : file_(fullName, static_cast<std::uint64_t>(size)), slotLength_(slotLength) {}

void SlotWriter::write(std::int64_t slot, std::string_view bytes) {
    const std::string gap(gapBefore(slot, slotLength_, size_), '\0');
    file_.write(gap);
    file_.write(bytes);
    size_ += static_cast<std::int64_t>(gap.size() + bytes.size());
}

} // namespace boulix
