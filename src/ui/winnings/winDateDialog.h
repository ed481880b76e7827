// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDialog>

namespace boulix {

class frmWinDate;

/// The window that lists the draws at which a game won at one rank.
class WinDateDialog : public QDialog {
    Q_OBJECT

  public:
    explicit WinDateDialog(frmWinDate &rules, QWidget *parent = nullptr);
};

} // namespace boulix
