// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>

namespace boulix {

/// A text inside a record: an unsigned 16-bit length in bytes, then the bytes. A text longer than
/// 65535 bytes fails with `Failure::badRecordLength`.
void appendText(std::string &record, const std::string &bytes);

/// The text at the start of `slot`. A length above `room`, which is what its slot has room for,
/// fails with `Failure::badRecordLength`; bytes missing at the end of the slot read as zero.
std::string readText(const std::string &slot, std::size_t room);

} // namespace boulix
