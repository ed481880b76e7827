// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/widgets/listDialog.h"

namespace boulix {

class frmDisplayGame;

/// The window that shows the rows of one system.
class DisplayGameDialog : public ListDialog {
    Q_OBJECT

  public:
    explicit DisplayGameDialog(frmDisplayGame &rules, QWidget *parent = nullptr);
};

} // namespace boulix
