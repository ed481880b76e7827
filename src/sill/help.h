// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace boulix::help {

/// Opens the help file `file`, in the help window of that name where one is given, at the page
/// of `contextId` where one is given.
void Show(const std::string &file, const std::string &window,
          std::optional<std::int32_t> contextId = std::nullopt);

} // namespace boulix::help
