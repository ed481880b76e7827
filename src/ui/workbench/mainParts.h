// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/frame/mainWindow.h"

namespace boulix {

/// The six pages and the dialogs of the menus: the one place that knows all rooms of the screens.
MainParts mainParts();

} // namespace boulix
