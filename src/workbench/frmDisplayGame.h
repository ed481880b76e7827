// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/reportList.h"

namespace boulix {

class gameDef;

/// The window that shows the rows of one system.
class frmDisplayGame {
  public:
    /// Shows `def`, which must outlive the window.
    explicit frmDisplayGame(const gameDef &def);
    frmDisplayGame(const frmDisplayGame &) = delete;
    frmDisplayGame &operator=(const frmDisplayGame &) = delete;

    reportList lvwGame;
};

} // namespace boulix
