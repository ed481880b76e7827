// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

class eliminator;

namespace modEliminator {

/// Bytes of a slot of the rules' file.
inline constexpr int slotSize = 256;

/// The five stored fields of a rule: label, threshold, its range, status. A record longer than a
/// slot fails with `Failure::badRecordLength`.
std::string toRecord(const eliminator &rule);

/// The rule in the bytes of a slot, taken as it stands, its flags all off. A label that does not
/// fit the slot fails with `Failure::badRecordLength`.
eliminator fromRecord(const std::string &slot);

} // namespace modEliminator
} // namespace boulix
