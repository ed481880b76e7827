// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace boulix::help {

/// Opens the help file `file`, in the help window of that name where one is given, at the page
/// of `contextId` where one is given.
void Show(const std::string &file, const std::string &window,
          std::optional<std::int32_t> contextId = std::nullopt);

/// The help of the program itself, at the page of the place where the user is: `place` names the
/// control with the focus and what it stands in, from within outwards.
void showPageOf(const std::vector<std::string> &place);

/// The context of the page that belongs to a place; the first name that any page belongs to counts.
/// The one of the contents where there is none.
std::int32_t contextOf(const std::vector<std::string> &place);
/// The page of a context without folder and extension: "base". The number itself for a context
/// that has none.
std::string pageName(std::int32_t context);

} // namespace boulix::help
