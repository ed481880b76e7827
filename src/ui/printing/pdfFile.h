// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/canvas.h"

#include <memory>
#include <string>

namespace boulix {

/// A document on sheets of A4, millimetre for millimetre, that becomes the file `fileName` when it
/// ends. Nothing stands there before; an earlier file is replaced in one go, as by any save, and
/// stays where the new one does not fit on the disk.
std::unique_ptr<Paper> openPdfFile(const std::string &fileName, const std::string &title);

} // namespace boulix
