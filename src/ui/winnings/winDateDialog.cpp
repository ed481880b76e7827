// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/winDateDialog.h"

#include "workbench/frmWinDate.h"

namespace boulix {

WinDateDialog::WinDateDialog(frmWinDate &rules, QWidget *parent)
    : ListDialog(rules.lvwWinDate, QString::fromUtf8(frmWinDate::caption), parent) {
    setNames(QStringLiteral("frmWinDate"), QStringLiteral("lvwWinDate"));
}

} // namespace boulix
