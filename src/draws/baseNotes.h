// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>

namespace boulix {

class xFile;

// What the user is told about the file of the base when the program starts. The base does not
// wait for an answer.

/// The header was refused, and that has been said: the base is empty, and its next change replaces
/// the file. A file of `size` bytes that is too short for a header is said to be just that.
void tellRefusedBase(const xFile &file, std::int64_t size);

/// Says that a file of `size` bytes, of which `count` draws were taken, ends in the middle of a
/// draw; nothing when it does not.
void tellCutBase(const xFile &file, std::int64_t size, std::int32_t count);

} // namespace boulix
