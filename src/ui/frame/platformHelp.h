// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace boulix {

/// Opens the help with the system's own help viewer, `target` being "file" or "file>window".
/// False where the system has none: the program then shows its own help window.
bool showPlatformHelp(const std::string &target, std::optional<std::int32_t> context);

} // namespace boulix
