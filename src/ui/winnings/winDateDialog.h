// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/widgets/listDialog.h"

namespace boulix {

class frmWinDate;

/// The window that lists the draws at which a game won at one rank.
class WinDateDialog : public ListDialog {
    Q_OBJECT

  public:
    explicit WinDateDialog(frmWinDate &rules, QWidget *parent = nullptr);
};

} // namespace boulix
