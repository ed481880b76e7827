// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/slotText.h"

#include "core/failure.h"
#include "files/slotFile.h"

#include <cstdint>
#include <limits>

namespace boulix {

void appendText(std::string &record, const std::string &bytes) {
    if (bytes.size() > std::numeric_limits<std::uint16_t>::max())
        fail(Failure::badRecordLength);
    appendInt16(record, static_cast<std::int16_t>(static_cast<std::uint16_t>(bytes.size())));
    record += bytes;
}

std::string readText(const std::string &slot, std::size_t room) {
    const std::size_t length = static_cast<std::uint16_t>(readInt16(slot, 0));
    if (length > room)
        fail(Failure::badRecordLength);
    std::string bytes = slot.substr(slot.size() < 2 ? slot.size() : 2, length);
    bytes.resize(length, '\0');
    return bytes;
}

} // namespace boulix
