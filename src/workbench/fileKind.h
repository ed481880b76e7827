// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace boulix {

/// What a file that the user hands over is taken for.
enum class FileKind { unknown, draws, game, system, eliminators, prizes, forecast };

/// By the extension of its name, in capitals or not. A ".lst" that holds text of the operator, and
/// not a game, is one of draws, as any ".txt" and ".csv" is. Nothing else of the file is looked
/// at: whoever loads it judges it.
FileKind fileKind(const std::string &fullName);

} // namespace boulix
