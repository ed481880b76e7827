// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

/// What the user can do when access to `path` was refused because it lies in the application
/// folder and that folder cannot be written: a sentence on a line of its own, line end first.
/// Nothing in every other case.
std::string folderAdvice(const std::string &path);

} // namespace boulix
